#include "grid/display/TabPlan.h"

#include <algorithm>

namespace coregui {

std::vector<CRect> PlanTabs(const std::vector<int>& widths, int current, CSize area) {
  std::vector<CRect> tabs;
  LONG x = 0;
  for (const int width : widths) {
    tabs.emplace_back(x, 0, x + width, area.cy);
    x += width;
  }
  if (current < 0 || current >= static_cast<int>(tabs.size())) {
    return tabs;
  }
  const CRect shown = tabs[static_cast<std::size_t>(current)];
  const LONG shift = std::min(std::max<LONG>(shown.right - area.cx, 0), shown.left);
  for (CRect& tab : tabs) {
    tab.OffsetRect(-shift, 0);
  }
  return tabs;
}

}  // namespace coregui
