#include "views/PlotPages.h"

#include <cmath>
#include <utility>
#include <vector>

#include "platform/CPrinterDC.h"
#include "views/CGUIBaseView.h"

namespace coregui {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kMostPages = 10000.0;

/// How many pages of `room` dots, each `step` on from the last, show `length` dots; 0 when they cannot.
int PagesFor(double length, LONG room, LONG step) {
  if (step <= 0 || !std::isfinite(length)) {
    return 0;
  }
  // A thousandth of a dot is no reason for another page.
  const double pages = length <= room ? 1.0 : 1.0 + std::ceil((length - room - 1e-3) / step);
  return pages <= kMostPages ? static_cast<int>(pages) : 0;
}

}  // namespace

CPlotPages::CPlotPages(CViewMapping view, PlotPageScale const& scale, CSize page, CSize dotsPerInch)
    : m_first(std::move(view)) {
  m_first.now.dpiX = dotsPerInch.cx;
  m_first.now.dpiY = dotsPerInch.cy;
  m_first.now.scale = scale.horizontal * kMillimetresPerInch / dotsPerInch.cx / scale.millimetresPerUnit;
  const double unitsPerDotDown =
      scale.vertical * kMillimetresPerInch / dotsPerInch.cy / scale.millimetresPerUnit;
  m_first.vertMode = VertMode::keepRatio;
  m_first.now.vertRatio = m_first.now.scale / unitsPerDotDown;
  const CRect margins = m_first.GetMarginPixels();
  m_first.now.offsetX = SaturateToDevice(-std::int64_t{margins.left});
  m_first.now.offsetY = SaturateToDevice(-std::int64_t{margins.top});
  m_room = CSize(SaturateToDevice(std::int64_t{page.cx} - margins.left - margins.right),
                 SaturateToDevice(std::int64_t{page.cy} - margins.top - margins.bottom));
  const LONG overlapX = TruncateToDevice(scale.overlap / kMillimetresPerInch * dotsPerInch.cx);
  const LONG overlapY = TruncateToDevice(scale.overlap / kMillimetresPerInch * dotsPerInch.cy);
  m_step = CSize(SaturateToDevice(std::int64_t{m_room.cx} - overlapX),
                 SaturateToDevice(std::int64_t{m_room.cy} - overlapY));
  m_columns = PagesFor(m_first.extents.Width() / m_first.now.scale, m_room.cx, m_step.cx);
  m_rows = PagesFor(m_first.extents.Height() / unitsPerDotDown, m_room.cy, m_step.cy);
  if (static_cast<double>(m_columns) * m_rows > kMostPages) {
    m_columns = m_rows = 0;
  }
}

CViewMapping CPlotPages::GetMapping(int page) const {
  CViewMapping mapping = m_first;
  mapping.Pan(CSize(SaturateToDevice(-std::int64_t{m_step.cx} * (page % m_columns)),
                    SaturateToDevice(-std::int64_t{m_step.cy} * (page / m_columns))));
  return mapping;
}

FRect CPlotPages::GetPart(int page) const {
  const CViewMapping mapping = GetMapping(page);
  const CPoint corner = mapping.GetMarginPixels().TopLeft();
  return {mapping.WindowToUser(corner), mapping.WindowToUser(corner + m_room)};
}

int PrintToScale(CGUIBaseView& view, CPrinterDC& dc, PlotPageScale const& scale,
                 const PLOT_PART_FILTER& isDrawn) {
  const CSize page(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
  const CSize dotsPerInch(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
  const CPlotPages pages(view.GetMapping(), scale, page, dotsPerInch);
  std::vector<int> wanted;
  for (int i = 0; i < pages.GetCount(); ++i) {
    if (!isDrawn || isDrawn(pages.GetPart(i))) {
      wanted.push_back(i);
    }
  }
  const int count = static_cast<int>(wanted.size());
  for (int i = 0; i < count; ++i) {
    if (!dc.StartPage()) {
      return i;
    }
    view.PrintMapped(dc, page, pages.GetMapping(wanted[static_cast<std::size_t>(i)]), {i + 1, count});
    if (!dc.EndPage()) {
      return i;
    }
  }
  return count;
}

}  // namespace coregui
