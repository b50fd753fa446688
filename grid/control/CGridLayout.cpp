#include "grid/control/CGridLayout.h"

#include <algorithm>

#include "grid/control/CGridInfo.h"

namespace coregui {

namespace {

/// Sizes of the bars that the sheet needs; 0: none.
struct Bars {
  int vertical = 0;
  int horizontal = 0;
};

Bars NeededBars(const CGridInfo& info, CSize area) {
  Bars bars;
  bars.horizontal = info.view.tabWidth > 0 ? info.view.hScrollHeight : 0;
  // Each bar takes room from the other direction: the second round sees what the first one took.
  for (int round = 0; round < 2; ++round) {
    if (info.rows.TotalSize() > area.cy - bars.horizontal) {
      bars.vertical = info.view.vScrollWidth;
    }
    if (info.columns.TotalSize() > area.cx - bars.vertical) {
      bars.horizontal = info.view.hScrollHeight;
    }
  }
  return bars;
}

}  // namespace

CGridLayout CGridLayout::Of(const CGridInfo& info, CSize client) {
  const int top = std::min<int>(info.headings.TopRows() == 0 ? 0 : info.headings.topHeight, client.cy);
  const int left = std::min<int>(info.headings.SideCols() == 0 ? 0 : info.headings.sideWidth, client.cx);
  const Bars bars = NeededBars(info, CSize(client.cx - left, client.cy - top));
  const int right = std::max<int>(left, client.cx - bars.vertical);
  const int bottom = std::max<int>(top, client.cy - bars.horizontal);
  const int tabsEnd = std::min<int>(info.view.tabWidth, right);
  CGridLayout layout;
  layout.corner = CRect(0, 0, left, top);
  layout.topHeading = CRect(left, 0, right, top);
  layout.sideHeading = CRect(0, top, left, bottom);
  layout.body = CRect(left, top, right, bottom);
  layout.vScroll = bars.vertical > 0 ? CRect(right, 0, client.cx, bottom) : CRect();
  layout.hScroll = bars.horizontal > 0 ? CRect(tabsEnd, bottom, right, client.cy) : CRect();
  layout.tabs = tabsEnd > 0 && bars.horizontal > 0 ? CRect(0, bottom, tabsEnd, client.cy) : CRect();
  return layout;
}

}  // namespace coregui
