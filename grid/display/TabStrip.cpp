#include "grid/display/TabStrip.h"

namespace coregui {

namespace {

constexpr int fewestArrowWidths = 4;  // a strip narrower than this has no room for the arrows

}  // namespace

void TabStrip::SetTabs(const std::vector<int>& widths, CSize area) {
  m_area = area;
  m_tabs.SetCount(static_cast<long>(widths.size()));
  for (long tab = 0; tab < m_tabs.Count(); ++tab) {
    m_tabs.SetSize(tab, widths[static_cast<std::size_t>(tab)]);
  }
  const bool arrows = m_tabs.TotalSize() > area.cx && area.cx >= fewestArrowWidths * area.cy;
  m_start = arrows ? 2 * area.cy : 0;
  m_tabs.SetExtent(area.cx - m_start);
  Scroll(0);
}

void TabStrip::ShowTab(int tab) {
  m_tabs.drag = tab;
  m_tabs.KeepDragInView();
}

void TabStrip::Scroll(int tabs) {
  m_tabs.SetFirst(m_tabs.ClampFirst(m_tabs.First() + tabs));
}

bool TabStrip::CanScroll(int step) const {
  return m_tabs.ClampFirst(m_tabs.First() + step) != m_tabs.First();
}

CRect TabStrip::TabRect(int tab) const {
  const auto left = static_cast<LONG>(m_start + m_tabs.PositionOf(tab));
  return tab < m_tabs.First() || left >= m_area.cx ? CRect()
                                                   : CRect(left, 0, left + m_tabs.SizeOf(tab), m_area.cy);
}

CRect TabStrip::ArrowRect(int step) const {
  const int left = step < 0 ? 0 : m_start / 2;
  return m_start == 0 ? CRect() : CRect(left, 0, left + m_start / 2, m_area.cy);
}

int TabStrip::TabAt(CPoint point) const {
  if (point.x < m_start || point.x >= m_area.cx || point.y < 0 || point.y >= m_area.cy) {
    return -1;
  }
  return static_cast<int>(m_tabs.IndexAtPosition(point.x - m_start));
}

}  // namespace coregui
