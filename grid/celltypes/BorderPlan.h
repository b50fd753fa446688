#pragma once

#include <array>
#include <cstdint>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// What a border line is drawn with.
enum class BorderInk : std::uint8_t {
  cellPen,  ///< the cell's own border pen, else the control's default one
  gridPen,  ///< the control's default border pen
  light,    ///< the lit edge of a three-dimensional border
  shadow,   ///< its dark edge
};

/// One line, one pixel wide, that leaves out its end point.
struct BorderLine {
  CPoint from;
  CPoint to;
  BorderInk ink = BorderInk::cellPen;
  bool wide = false;  ///< one of several that stand side by side

  constexpr bool operator==(const BorderLine&) const = default;
};

/// The lines of one cell's border and the room that is left inside.
class COREGUI_API BorderPlan {
 public:
  /// The lines of the border style `bits` around `cell`. `spreadsheet` adds the lines at the right and at the
  /// bottom that the cell does not draw itself; `height3d` is how many pixels wide a three-dimensional edge
  /// is (0 to 4).
  BorderPlan(const CRect& cell, int bits, bool spreadsheet, int height3d);

  int Count() const { return m_count; }
  const BorderLine& operator[](int index) const { return m_lines[static_cast<std::size_t>(index)]; }
  /// The cell less the width drawn on each side; never inside out.
  const CRect& Inner() const { return m_inner; }

 private:
  enum Side { left, top, right, bottom };
  void AddSide(const CRect& cell, Side side, int width, BorderInk ink);
  void AddLine(const CRect& cell, Side side, int depth, BorderInk ink);

  std::array<BorderLine, 32> m_lines;
  int m_count = 0;
  CRect m_inner;
};

}  // namespace coregui
