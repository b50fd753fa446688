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
/// Every window with a handle, in the order of creation.
std::vector<WindowRef> RegisteredWindows();

}  // namespace coregui
