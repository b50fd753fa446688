#pragma once

#include "platform/WindowRef.h"

namespace coregui {

/// Which of our windows has the focus, the mouse and the front; weak, so never a destroyed one.
struct FocusState {
  WindowRef focus;
  WindowRef capture;
  WindowRef active;
};
FocusState& Focus();

/// Moves the focus (null: to no window of ours) and sends WM_KILLFOCUS and WM_SETFOCUS. Does not ask the
/// toolkit: for the native side when the focus has moved there. Returns the window that had it.
CWnd* MoveFocus(CWnd* to);
/// The same for the active top-level window, with WM_ACTIVATE.
CWnd* MoveActivation(CWnd* to, bool byClick);
/// Moves the capture and sends WM_CAPTURECHANGED to the window that loses it.
CWnd* MoveCapture(CWnd* to);
/// The window leaves: whatever it holds goes to none.
void ForgetWindow(CWnd& window);

}  // namespace coregui
