#pragma once

#include "core/Export.h"

class CWnd;

namespace coregui {

/// Marks a control whose content has to be looked at: a reddish ground that fits the theme, a warning sign
/// inside a one-line edit box, and `reason` as tip and as what a screen reader says besides the name. An
/// empty or null reason takes the mark away. Nothing for a window without a native one.
COREGUI_API void MarkControl(CWnd& control, const wchar_t* reason);

}  // namespace coregui
