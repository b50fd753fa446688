#include "grid/display/ScrollPlan.h"

#include <algorithm>

#include "grid/control/CGridAxis.h"

namespace coregui {

SCROLLINFO PlanScroll(const CGridAxis& axis) {
  const long last = std::max(axis.Count() - 1, axis.Locked());
  SCROLLINFO info;
  info.nMin = static_cast<int>(axis.Locked());
  info.nMax = static_cast<int>(last);
  info.nPage = static_cast<UINT>(last - axis.MaxFirst() + 1);
  info.nPos = static_cast<int>(axis.First());
  return info;
}

int MoveCodeOf(int scrollCode) {
  switch (scrollCode) {
    case SB_LINEUP:
      return 0;
    case SB_LINEDOWN:
      return 1;
    case SB_PAGEUP:
      return 2;
    case SB_PAGEDOWN:
      return 3;
    case SB_TOP:
      return 4;
    case SB_BOTTOM:
      return 5;
    default:
      return -1;
  }
}

}  // namespace coregui
