#pragma once

#include <cstdint>
#include <span>

#include "platform/Geometry.h"
#include "platform/qt/Surface.h"

namespace coregui {

/// The lengths of the dashes and gaps, in turn, of thin lines of a PS_ style, in units of a pixel or of the
/// pen's dash unit; none for solid ones.
std::span<const double> DashUnits(int style);

/// How hard lines put their dots.
struct LinePen {
  std::uint32_t colour = 0;  ///< in the surface's order
  int rop = 13;
  int thickness = 1;        ///< dots across the line's lesser direction
  int before = 0;           ///< how many of them lie before the line
  int style = 0;            ///< dashes: PS_ values
  double dash = 1.0;        ///< dots per unit of the dash pattern
  std::int64_t walked = 0;  ///< dots of the line before this part, which the pattern goes on from
  std::uint32_t gap = 0;    ///< colour of the gaps
  bool fillsGaps = false;
};

/// Draws the dots from (x0, y0) to (x1, y1), the last one left out, inside `clip`. The dots are those of the
/// whole line however it is clipped, so pieces drawn through the parts of a region fit together, and drawing
/// twice in XOR restores. Ends may lie anywhere.
void DrawHardLine(Surface& surface, const CRect& clip, const LinePen& pen, std::int64_t x0, std::int64_t y0,
                  std::int64_t x1, std::int64_t y1);

/// Puts `count` dots in a row by the raster mode.
void PutDots(std::uint32_t* at, int count, std::uint32_t colour, int rop);

}  // namespace coregui
