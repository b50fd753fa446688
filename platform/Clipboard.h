#pragma once

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

/// Puts a text on the clipboard, in place of all that was there. Other programs get it as Unicode and as
/// UTF-8. Without an application the text stays inside this process. False when the desktop refuses.
COREGUI_API bool SetClipboardText(const CString& text);
/// The clipboard's text, in whatever form another program put it there. False, with `text` unchanged, when it
/// holds none.
COREGUI_API bool GetClipboardText(CString& text);
COREGUI_API void EmptyClipboard();

}  // namespace coregui
