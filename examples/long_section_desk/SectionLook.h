#pragma once

#include "coregui/coregui.h"

namespace desk {

/// The look that both plots of the desk share; it follows the theme, and paper is always light.
struct SectionColors {
  COLORREF paper;
  COLORREF text;
  COLORREF grid;
  COLORREF ground;
  COLORREF design;
  COLORREF difference;
  COLORREF cut;
  COLORREF fill;
  COLORREF mark;

  static SectionColors Of(bool printing);
};

/// Both plots begin and end at the same place, so that a chainage stands below itself.
inline constexpr int kLeftMargin = 66;   // points
inline constexpr int kRightMargin = 20;  // half a chainage of the ruler

inline CPoint MiddleOf(const CRect& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

/// Has the line through a view repainted that marks a chainage; nothing for one that is not finite.
void InvalidateStation(CGUIBaseView& view, double chainage);

PlotTextStyle RulerText(COLORREF colour);
/// The room between the margins (points) of a view's window, in pixels.
CSize PlaceBetween(const CWnd& view, const CRect& margins);

}  // namespace desk
