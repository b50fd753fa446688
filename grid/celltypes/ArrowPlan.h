#pragma once

#include <array>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

// Extended-style bits of the arrow.
inline constexpr long kArrowSingle = 16;
inline constexpr long kArrowWithBar = 32;
inline constexpr long kArrowDouble = 64;
inline constexpr long kArrowDoubleWithBar = 128;

/// The glyph as lines one pixel wide that leave out their end points, centred in the cell. None in a cell
/// narrower than 4 pixels. A style of none of the bits is the single arrow.
struct ArrowGlyph {
  struct Line {
    CPoint from;
    CPoint to;
  };
  std::array<Line, 12> lines;
  int count = 0;
};
COREGUI_API ArrowGlyph PlanArrow(const CRect& cell, long style);

/// The width that a cell with the glyph wants.
COREGUI_API int ArrowWidth(long style);

}  // namespace coregui
