#include "SectionView.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr int kLeftMargin = 66;  // points
constexpr int kTopMargin = 24;
constexpr int kRightMargin = 10;
constexpr double kRowHeight = 44.0;
constexpr int kGap = 4;
constexpr double kTextPitch = 11.0;  // points from one upright text to the next

/// The largest round exaggeration that still fits the extents into the place.
double RoundExaggeration(const FRect& extents, CSize place) {
  constexpr std::array<double, 14> rounds = {1, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000, 2000, 5000, 10000};
  double best = rounds.front();
  for (const double times : rounds) {
    if (extents.Height() * times / extents.Width() <=
        static_cast<double>(place.cy) / std::max<LONG>(place.cx, 1)) {
      best = times;
    }
  }
  return best;
}

CRect DifferenceMargins() {
  return {kLeftMargin, 10, kRightMargin, 10};
}

/// The room between the margins (points) of a view's window, in pixels.
CSize PlaceBetween(const CWnd& view, const CRect& margins) {
  const CRect client = view.GetClientRectangle();
  const int dpi = view.GetDpi();
  return {client.Width() - (margins.left + margins.right) * dpi / 72,
          client.Height() - (margins.top + margins.bottom) * dpi / 72};
}

PlotTextStyle RulerText(COLORREF colour) {
  PlotTextStyle style;
  style.colour = colour;
  style.height = 7.0;
  return style;
}

}  // namespace

SectionColors SectionColors::Of(bool printing) {
  if (!printing && IsDarkTheme()) {
    return {RGB(30, 32, 36),  RGB(214, 216, 220), RGB(58, 62, 68),   RGB(196, 152, 92),
            RGB(240, 96, 96), RGB(214, 130, 74),  RGB(92, 168, 112), RGB(96, 168, 255)};
  }
  return {RGB(255, 255, 255), RGB(32, 32, 32),   RGB(226, 228, 230), RGB(134, 92, 40),
          RGB(206, 24, 24),   RGB(222, 140, 76), RGB(112, 178, 124), RGB(0, 96, 208)};
}

SectionView::SectionView(CWnd* parent) : CGUIBaseViewWnd(10.0, parent), m_mark(kNothing) {
  Options options;
  options.zoomUnderPointer = true;
  options.history = true;
  options.touchpad = true;
  options.crossHair = true;
  SetOptions(options);
}

void SectionView::Show(const SectionData& data) {
  m_ground = CPlotSeries(data.ground);
  m_design = CPlotSeries(data.design);
  m_extents = data.extents;
  m_mark = kNothing;
  m_hasData = !data.IsEmpty();
  const CRect margins = Margins();
  SetMargins(margins);
  m_exaggeration = RoundExaggeration(m_extents, PlaceBetween(*this, margins));
  FitAgain();
}

CRect SectionView::Margins() const {
  return {kLeftMargin, kTopMargin, kRightMargin,
          static_cast<LONG>((m_design.GetCount() == 0 ? 2 : 4) * kRowHeight) + 2 * kGap};
}

void SectionView::PrintPage(CPrinterDC& dc) {
  constexpr LONG edge = 24;
  constexpr LONG titleBlock = 60;
  const CRect margins = Margins();
  SetMargins(CRect(margins.left + edge, margins.top + edge, margins.right + edge,
                   margins.bottom + edge + titleBlock));
  Print(&dc, CSize(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES)));
  SetMargins(margins);
}

void SectionView::FitAgain() {
  SetBackgroundColour(SectionColors::Of(false).paper);
  if (m_hasData && HasWindow() && !GetClientRectangle().IsRectEmpty()) {
    InitView(m_extents, m_exaggeration);
  }
}

void SectionView::SetExaggeration(double times) {
  m_exaggeration = times;
  FitAgain();
}

void SectionView::Mark(double chainage) {
  if (m_mark != chainage) {
    m_mark = chainage;
    Invalidate(TRUE);
  }
}

void SectionView::OnDraw(CDC* dc) {
  CGUIBaseViewWnd::OnDraw(dc);
  if (!m_hasData) {
    return;
  }
  const SectionColors colors = SectionColors::Of(IsPrinting());
  DrawLevels(colors);
  if (!IsPrinting()) {
    DrawMark(colors);
  }
  SetPlotPen({colors.text});
  SetPlotText(RulerText(colors.text));
  PlotRulerStyle chainages;
  chainages.format = PlotNumberFormat::chainage;
  PlotRuler(PlotSide::top, chainages);
  PlotRulerStyle levels;
  levels.title = L"Level [m]";
  PlotRuler(PlotSide::left, levels);
  DrawTable(colors);
  if (IsPrinting()) {
    SetPlotPen({colors.text});
    PlotTitleBlock(
        {m_title, L"Long-section", CString::Formatted(L"Vertical exaggeration %.4g", m_exaggeration)});
  }
}

/// Only the stations that have room get texts, so that a survey of millions of rows costs no more than a
/// page.
void SectionView::DrawTable(const SectionColors& colors) {
  const CRect area = GetDrawingArea();
  const double left = GetPlotMapping().WindowToUser(area.TopLeft()).x;
  const double right = GetPlotMapping().WindowToUser(area.BottomRight()).x;
  const double step = (right - left) / std::max(1.0, area.Width() / PixelsOfPoints(kTextPitch));
  const std::vector<PNT_2D_record>& points = m_ground.GetPoints();
  std::vector<PNT_2D_record> ground;
  std::vector<PNT_2D_record> design;
  for (auto at = points.begin(); step > 0.0;) {
    const double from = ground.empty() ? left : ground.back().x + step;
    at = std::lower_bound(at, points.end(), from,
                          [](const PNT_2D_record& point, double x) { return point.x < x; });
    if (at == points.end() || at->x > right) {
      break;
    }
    ground.push_back(*at);
    if (m_design.GetCount() > 0) {
      design.push_back(m_design.GetPoints()[static_cast<std::size_t>(at - points.begin())]);
    }
  }
  std::vector<PlotTableRow> rows = {coregui::MakeStationRow(L"Station", ground, m_chainageDecimals),
                                    coregui::MakeLevelRow(L"Ground level", ground, m_levelDecimals)};
  if (m_design.GetCount() > 0) {
    rows.push_back(coregui::MakeLevelRow(L"Design level", design, m_levelDecimals));
    rows.push_back(coregui::MakeDifferenceRow(L"Difference", ground, design, m_levelDecimals));
  }
  for (PlotTableRow& row : rows) {
    row.height = kRowHeight;
  }
  SetPlotPen({colors.grid});
  PlotTable(rows, kGap);
}

void SectionView::DrawLevels(const SectionColors& colors) {
  ClipToDrawing(true);
  SetPlotPen({colors.grid});
  const CRect area = GetDrawingArea();
  const PNT_2D_record from = GetPlotMapping().WindowToUser(area.TopLeft());
  const PNT_2D_record to = GetPlotMapping().WindowToUser(area.BottomRight());
  PlotGrid(coregui::ChooseTicks(from.x, to.x, area.Width(), PixelsOfPoints(36), 0).step,
           coregui::ChooseTicks(from.y, to.y, area.Height(), PixelsOfPoints(18), 0).step);
  SetPlotPen({colors.ground, 1.0, PlotUnit::points});
  PlotPolyline(m_ground);
  SetPlotPen({colors.design, 1.25, PlotUnit::points});
  PlotPolyline(m_design);
  ClipToDrawing(false);
}

void SectionView::DrawMark(const SectionColors& colors) {
  if (std::isfinite(m_mark)) {
    ClipToDrawing(true);
    SetPlotPen({colors.mark, 1.5});
    PlotLine({m_mark, m_extents.GetTop() + 1e4}, {m_mark, m_extents.GetBottom() - 1e4});
    ClipToDrawing(false);
  }
}

DifferenceView::DifferenceView(CWnd* parent) : CGUIBaseViewWnd(1.0, parent), m_mark(kNothing) {
  SetMargins(DifferenceMargins());
  SetVertMode(VERT_FILL);
}

void DifferenceView::Show(const SectionData& data) {
  m_difference = CPlotSeries(data.difference);
  m_extents = data.differenceExtents;
  m_extents.Expand({m_extents.GetLeft(), 0.0});
  m_mark = kNothing;
  m_hasData = !data.difference.empty();
}

void DifferenceView::FitAgain(const CGUIBaseView& master) {
  SetBackgroundColour(SectionColors::Of(false).paper);
  if (m_hasData && HasWindow() && !GetClientRectangle().IsRectEmpty()) {
    InitView(m_extents, 1.0);
    FitToRect(GetClientRectangle());
    SyncToView(&master);
    m_ratioFor = 0.0;
    Invalidate(TRUE);
  }
}

void DifferenceView::Mark(double chainage) {
  if (m_mark != chainage) {
    m_mark = chainage;
    Invalidate(TRUE);
  }
}

LRESULT DifferenceView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    KeepHeight();
  }
  return CGUIBaseViewWnd::WindowProc(message, wParam, lParam);
}

/// A slave takes its master's scale for both axes; the ratio that keeps the whole difference in sight follows
/// it.
void DifferenceView::KeepHeight() {
  if (m_hasData && GetScale() != m_ratioFor) {
    m_ratioFor = GetScale();
    SetVertRatio(m_ratioFor * PlaceBetween(*this, DifferenceMargins()).cy / m_extents.Height());
  }
}

void DifferenceView::OnDraw(CDC* dc) {
  CGUIBaseViewWnd::OnDraw(dc);
  if (!m_hasData) {
    return;
  }
  const SectionColors colors = SectionColors::Of(IsPrinting());
  ClipToDrawing(true);
  SetPlotPen({colors.text});
  PlotLine({m_extents.GetLeft(), 0.0}, {m_extents.GetRight(), 0.0});
  SetPlotPen({colors.cut, 1.0, PlotUnit::points});
  PlotPolyline(m_difference);
  if (std::isfinite(m_mark)) {
    SetPlotPen({colors.mark, 1.5});
    PlotLine({m_mark, m_extents.GetTop() + 1e4}, {m_mark, m_extents.GetBottom() - 1e4});
  }
  ClipToDrawing(false);
  SetPlotPen({colors.text});
  SetPlotText(RulerText(colors.text));
  PlotRulerStyle style;
  style.title = L"Ground - design [m]";
  PlotRuler(PlotSide::left, style);
  PlotFrame();
}

}  // namespace desk
