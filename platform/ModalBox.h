#pragma once

#include "core/Export.h"

class CBitmap;

namespace coregui {

/// Draws the modal box or dialog in front, whoever made it, as it is shown: for programs that picture
/// themselves. False, with the bitmap as it was, when there is none.
COREGUI_API bool DrawModalBox(CBitmap& picture);
/// Closes the one in front: a box of buttons without an answer, a dialog as its close button does (it may
/// refuse). False when there is none.
COREGUI_API bool CloseModalBox();

}  // namespace coregui
