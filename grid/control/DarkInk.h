#pragma once

#include "core/Export.h"
#include "platform/Types.h"

namespace coregui {

/// What a cell's text is drawn with on `back`: its own colour; but the theme's default text of a dark theme,
/// which is light, becomes black on the light cells that a program asked for.
COREGUI_API COLORREF ReadableText(COLORREF text, COLORREF back);
/// The colour of lines that are black on light cells: the theme's text colour on the dark cells of a dark
/// theme. Under a light theme always black.
COREGUI_API COLORREF LineInk(COLORREF back);
/// How bright a colour looks, 0 (black) to 255 (white).
constexpr int Brightness(COLORREF colour) {
  return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

}  // namespace coregui
