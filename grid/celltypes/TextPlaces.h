#pragma once

#include "core/Export.h"
#include "platform/CDC.h"
#include "platform/Geometry.h"

namespace coregui {

/// How a cell's text is put out.
enum class TextOutput {
  line,      ///< one line, clipped to the cell
  ellipsis,  ///< one line that ends in an ellipsis where it does not fit
  wrapped,   ///< as many lines as it needs
};

/// What decides where a cell's text stands. Lengths in pixels.
struct TextPlacement {
  CRect cell;
  int alignment = 0;  ///< kAlign... bits
  int margin = 0;     ///< the control's room left and right of a text
  int offset = 0;  ///< room taken at the left already, by a bitmap or a check box; negative: a text spills in
};

/// The way out that the extended-style bits choose; with both bits the ellipsis wins.
COREGUI_API TextOutput ChooseTextOutput(long extended);

/// The top left corner of a single line of the given size.
COREGUI_API CPoint PlaceLine(const TextPlacement& place, const CSize& text);

/// The rectangle of a line that may end in an ellipsis; always left-aligned, 3 pixels in.
COREGUI_API CRect PlaceEllipsisLine(const TextPlacement& place, int textHeight);

/// The rectangle that wrapped text breaks its lines in, before its height is known.
COREGUI_API CRect WrapArea(const TextPlacement& place);
/// The format that draws wrapped text of this alignment.
COREGUI_API UINT WrapFormat(int alignment);
/// Whether WrapTop needs the height of the wrapped text.
COREGUI_API bool NeedsWrappedHeight(int alignment);
/// The top of wrapped text that is `height` pixels high; above the cell when it is too high to be centred.
COREGUI_API int WrapTop(const TextPlacement& place, int height);

/// Whether a text reaches the cell that starts `distance` pixels right of its own: left-aligned, `textWidth`
/// wide, with `before` pixels (border, bitmap, margin) before it.
COREGUI_API bool TextReaches(int distance, int before, int textWidth);

}  // namespace coregui
