#pragma once

#include "core/Export.h"
#include "platform/CString.h"

class CButton;

namespace coregui {

/// Opens a link (https:, mailto:, file: ...) or a file's path with the program that the desktop has for it.
/// False when there is none, the text is no link, or a file is not there.
COREGUI_API bool OpenLink(const CString& target);

/// Gives a push button the look of a link: no frame, underlined, the theme's colour of links, the hand
/// cursor. `visited`: the colour of links that were followed. Nothing for a button without a native window.
COREGUI_API void ShowAsLink(CButton& button, bool visited);

}  // namespace coregui
