#pragma once

#include "platform/Types.h"

class CWnd;

namespace coregui {

/// Queues a message for DeliverPosted and wakes the event loop.
void QueueMessage(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam);
/// Delivers the messages that were queued before the call, in order; those to destroyed windows are dropped.
/// False when there was none.
bool DeliverPosted();
/// Offers a message to PreTranslateMessage of the window and its parents, then sends it.
/// False when PreTranslateMessage took it.
bool TranslateAndSend(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result = nullptr);

/// Has PaintPending send WM_PAINT to the window.
void QueuePaint(CWnd& window);
/// Queues the window and everything below it that has something to paint.
void QueuePaintTree(CWnd& window);
/// Sends WM_PAINT to the queued windows that are still invalid and visible. A window that does not validate
/// itself stays queued. False when there was none.
bool PaintPending();
/// Sends WM_PAINT now if the window is invalid, visible and paints itself.
void PaintNow(CWnd& window);

}  // namespace coregui
