#pragma once

#include <array>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

// Extended-style bits of the check box.
inline constexpr long kCheckFramed3d = 0x100;
inline constexpr long kCheckFramedFlat = 0x200;
inline constexpr long kCheckRound = 0x400;
inline constexpr long kCheckAligned = 0x800;  ///< placed by the cell's alignment, no label beside it
inline constexpr long kCheckTick = 0x1000;
inline constexpr long kCheckThreeStates = 0x2000;

/// The side of the box in a cell of this height; may be 0 or less, and below kSmallestCheckBox nothing is
/// drawn.
COREGUI_API int CheckBoxSize(int cellHeight);
inline constexpr int kSmallestCheckBox = 6;

/// Where the box stands in its cell. `alignment` counts only with kCheckAligned.
COREGUI_API CRect CheckBoxRect(const CRect& cell, int alignment, long extended);

/// The state after a click: the next one of two or of three.
COREGUI_API long NextCheckState(long state, long extended);

/// The lines of a mark, one pixel wide; each leaves out its end point.
struct CheckMark {
  std::array<CPoint, 12> points;  ///< pairs: from, to
  int lines = 0;
};
/// The cross from corner to corner of the box, doubled in a box wider than 9 pixels.
COREGUI_API CheckMark CrossMark(const CRect& box);
/// The tick, thickened in a box wider than 9 pixels.
COREGUI_API CheckMark TickMark(const CRect& box);

}  // namespace coregui
