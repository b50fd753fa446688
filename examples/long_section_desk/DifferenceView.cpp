#include "DifferenceView.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

CRect DifferenceMargins() {
  return {kLeftMargin, 10, kRightMargin, 10};
}

}  // namespace

DifferenceView::DifferenceView(CWnd* parent, SectionView& master)
    : CGUIBaseViewWnd(1.0, parent), m_master(master), m_mark(kNothing) {
  SetMargins(DifferenceMargins());
  SetVertMode(VERT_FILL);
}

void DifferenceView::Show(const SectionData& data) {
  m_data = &data;
  m_extents = data.differenceExtents;
  m_extents.Expand({m_extents.GetLeft(), 0.0});
  m_mark = kNothing;
}

void DifferenceView::FitAgain() {
  SetBackgroundColour(SectionColors::Of(false).paper);
  if (HasData() && HasWindow() && !GetClientRectangle().IsRectEmpty()) {
    InitView(m_extents, 1.0);
    FitToRect(GetClientRectangle());
    SyncToView(&m_master);
    m_ratioFor = 0.0;
    Invalidate(TRUE);
  }
}

void DifferenceView::Mark(double chainage) {
  if (m_mark != chainage) {
    InvalidateStation(*this, m_mark);
    m_mark = chainage;
    InvalidateStation(*this, m_mark);
  }
}

LRESULT DifferenceView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      KeepHeight();
      break;
    case WM_SETFOCUS:
      m_master.SetFocus();
      return 0;
    case WM_MOUSEWHEEL:
      return m_master.SendMessage(message, wParam, ToMasterScreen(lParam));
    case WM_MBUTTONDOWN: {  // captures the mouse for the master, which gets the rest of the drag
      POINT at = CPoint::FromLParam(lParam);
      ClientToScreen(&at);
      m_master.ScreenToClient(&at);
      return m_master.SendMessage(message, wParam, MAKELPARAM(at.x, at.y));
    }
    case WM_COREGUI_PINCH:
      return m_master.SendMessage(message, wParam, ToMasterClient(lParam));
    case WM_COREGUI_WANTPAN:
    case WM_COREGUI_PAN:
      return m_master.SendMessage(message, wParam, lParam);
    default:
      break;
  }
  return CGUIBaseViewWnd::WindowProc(message, wParam, lParam);
}

/// The same chainage on the master's line, which a zoom there keeps in sight.
LPARAM DifferenceView::ToMasterClient(LPARAM client) const {
  const CPoint at = m_master.OnLine(CPoint::FromLParam(client).x);
  return MAKELPARAM(at.x, at.y);
}

LPARAM DifferenceView::ToMasterScreen(LPARAM screen) const {
  POINT at = CPoint::FromLParam(screen);
  ScreenToClient(&at);
  at = m_master.OnLine(at.x);
  m_master.ClientToScreen(&at);
  return MAKELPARAM(at.x, at.y);
}

/// A slave takes its master's scale for both axes; the ratio that keeps the whole difference in sight follows
/// it.
void DifferenceView::KeepHeight() {
  if (HasData() && GetScale() != m_ratioFor) {
    m_ratioFor = GetScale();
    SetVertRatio(m_ratioFor * PlaceBetween(*this, DifferenceMargins()).cy / m_extents.Height());
  }
}

/// Areas between the line and zero, from one place a pixel: the line drawn over them shows what lies between.
void DifferenceView::DrawFills(const SectionColors& colors) {
  const CRect area = GetDrawingArea();
  const std::vector<PNT_2D_record>& points = m_data->difference.GetPoints();
  std::vector<PNT_2D_record> cut;
  std::vector<PNT_2D_record> fill;
  const auto flush = [&] {
    for (auto* part : {&cut, &fill}) {
      if (part->size() > 1) {
        part->push_back({part->back().x, 0.0});
        part->push_back({part->front().x, 0.0});
        const COLORREF colour = part == &cut ? colors.cut : colors.fill;
        SetPlotPen({colour});
        SetPlotFill({PlotFill::Kind::solid, colour});
        PlotPolygon(*part);
      }
      part->clear();
    }
  };
  auto at = points.begin();
  for (LONG x = area.left; x <= area.right; ++x) {
    const double chainage = GetPlotMapping().WindowToUser({x, area.top}).x;
    at = std::lower_bound(at, points.end(), chainage,
                          [](const PNT_2D_record& point, double value) { return point.x < value; });
    if (at == points.begin() || at == points.end()) {
      continue;
    }
    const PNT_2D_record& before = *(at - 1);
    const double level = before.y + (at->y - before.y) * ((chainage - before.x) / (at->x - before.x));
    if (!std::isfinite(level)) {
      flush();
      continue;
    }
    cut.push_back({chainage, std::max(level, 0.0)});
    fill.push_back({chainage, std::min(level, 0.0)});
  }
  flush();
}

void DifferenceView::OnDraw(CDC* dc) {
  CGUIBaseViewWnd::OnDraw(dc);
  if (!HasData()) {
    return;
  }
  const SectionColors colors = SectionColors::Of(IsPrinting());
  ClipToDrawing(true);
  DrawFills(colors);
  SetPlotPen({colors.text});
  PlotLine({m_extents.GetLeft(), 0.0}, {m_extents.GetRight(), 0.0});
  SetPlotPen({colors.difference, 1.0, PlotUnit::points});
  PlotPolyline(m_data->difference);
  if (std::isfinite(m_mark)) {
    SetPlotPen({colors.mark, 1.5});
    PlotLine({m_mark, m_extents.GetTop() + 1e4}, {m_mark, m_extents.GetBottom() - 1e4});
  }
  ClipToDrawing(false);
  SetPlotPen({colors.text});
  SetPlotText(RulerText(colors.text));
  PlotRulerStyle style;
  style.title = L"Cut +, fill \u2212 [m]";
  PlotRuler(PlotSide::left, style);
  PlotFrame();
}

}  // namespace desk
