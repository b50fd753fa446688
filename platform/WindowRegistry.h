#pragma once

#include <vector>

#include "platform/Types.h"
#include "platform/WindowRef.h"

namespace coregui {

/// Gives the window a handle of its own. Handles are numbers and never given twice, so a stale one is found
/// out.
HWND RegisterWindow(CWnd* window);
void UnregisterWindow(HWND handle);
/// Null for a handle that is null or gone.
CWnd* FindWindowOf(HWND handle);
/// Sees to it that at the exit of the program every window that is left, those in its statics, is destroyed
/// before the message table of this one's class is. To be called once the window was sent its first message.
void DestroyBeforeExit(const CWnd& window);
/// Every window with a handle, in the order of creation.
std::vector<WindowRef> RegisteredWindows();

}  // namespace coregui
