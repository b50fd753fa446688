#pragma once

#include <vector>

#include "grid/control/CGridAxis.h"
#include "platform/Geometry.h"

namespace coregui {

/// The tabs of a grid's sheets as places: side by side from the left. Where they do not all fit, two arrows
/// stand before them and scroll them by one; a tab is never cut off at the left. Pixels of the tabs' window.
class COREGUI_API TabStrip {
 public:
  /// The tabs' widths and the window's size, as they are now. The first tab in view stays, or moves so that
  /// no room is left over behind the last one.
  void SetTabs(const std::vector<int>& widths, CSize area);
  /// Scrolls as little as needed for a tab to be in full, or to start at the left when it is too wide.
  void ShowTab(int tab);
  /// Scrolls by a number of tabs, negative ones backwards.
  void Scroll(int tabs);
  /// Whether Scroll would move in the direction of `step`.
  bool CanScroll(int step) const;

  int Count() const { return static_cast<int>(m_tabs.Count()); }
  /// Empty for a tab that is not in view.
  CRect TabRect(int tab) const;
  /// The arrow back (-1) or forward (1); empty when all tabs fit.
  CRect ArrowRect(int step) const;
  /// The tab at a point, -1 when there is none.
  int TabAt(CPoint point) const;

 private:
  CGridAxis m_tabs;
  CSize m_area;
  int m_start = 0;  ///< where the tabs begin, behind the arrows
};

}  // namespace coregui
