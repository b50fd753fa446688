#pragma once

#include <vector>

#include "platform/CString.h"
#include "platform/CWnd.h"
#include "platform/FileDrop.h"

namespace coregui {

/// Keeps the paths until DragFinish, or until the window is gone, and sends the window WM_DROPFILES.
void DropFiles(CWnd& window, std::vector<CString> files);

}  // namespace coregui
