#pragma once

#include "core/Export.h"
#include "grid/display/LineWalk.h"
#include "platform/Geometry.h"

class CDC;
class CGridCtrl;

namespace coregui {

class CGridPainter;

/// Keeps what is still right of the picture when the view moves: decides how far the pixels move, moves them,
/// and hints the cells that come into view.
class COREGUI_API CGridScroller {
 public:
  CGridScroller(CGridCtrl& control, CGridPainter& painter) : m_control(control), m_painter(painter) {}

  /// A movement of pixels: those of `area` go by (-dx, -dy) inside it.
  struct Shift {
    int dx = 0;
    int dy = 0;
    CRect area;

    bool IsNone() const { return dx == 0 && dy == 0; }
  };

  /// The shift from the view that the last pass drew to the present one, in a body with this client area.
  /// Where the view moved further than the window reaches nothing is kept: everything is hinted. `dots` is
  /// device dots a pixel: a distance that is no whole number of dots is not moved either.
  Shift Plan(const CRect& client, double dots);
  /// Hints the cells that the shift brings into view, and those whose pixels it smears.
  void HintUncovered(const Shift& shift);
  /// Moves the pixels on a device.
  static void Move(CDC& dc, const Shift& shift);

 private:
  void HintAcrossLocked(const Shift& shift);

  CGridCtrl& m_control;
  CGridPainter& m_painter;
};

/// Whether `other` covers some of `window` but not all of it.
constexpr bool OverlapsPartly(const CRect& window, const CRect& other) {
  CRect common;
  return common.IntersectRect(window, other) && !(common == window);
}

}  // namespace coregui
