#include <algorithm>
#include <cmath>

#include "SectionView.h"

// How the section is drawn, on the screen and on paper.

namespace desk {

namespace {

constexpr int kTopMargin = 24;  // points, as all lengths here
constexpr double kRowHeight = 44.0;
constexpr double kMostOfTable = 0.55;  // of a window's height
constexpr int kGap = 4;
constexpr double kTextPitch = 11.0;  // from one upright text to the next
constexpr double kLeastForLegend = 60.0;
constexpr double kGroundPen = 1.0;
constexpr double kDesignPen = 1.25;

}  // namespace

/// The table has the rows that leave the drawing most of a window's height; paper has room for all.
int SectionView::TableRows(bool forWindow) const {
  int rows = HasDesign() ? 4 : 2;
  const double height = forWindow ? GetClientRectangle().Height() * 72.0 / GetDpi() : HUGE_VAL;
  while (rows > 0 && rows * kRowHeight > kMostOfTable * height) {
    --rows;
  }
  return rows;
}

CRect SectionView::Margins(bool forWindow) const {
  return {kLeftMargin, kTopMargin, kRightMargin,
          static_cast<LONG>(TableRows(forWindow) * kRowHeight) + 2 * kGap};
}

void SectionView::OnDraw(CDC* dc) {
  CGUIBaseViewWnd::OnDraw(dc);
  if (!HasData()) {
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
  DrawLegend(colors);
  if (IsPrinting()) {
    DrawTitleBlock(colors);
  }
}

/// The title block, and the frame around the sheet.
void SectionView::DrawTitleBlock(const SectionColors& colors) {
  const CRect area = GetDrawingArea();
  const auto chainage = [&](CPoint at) {
    const double x =
        std::clamp(GetPlotMapping().WindowToUser(at).x, m_extents.GetLeft(), m_extents.GetRight());
    return coregui::FormatPlotNumber(x, 1.0, PlotNumberFormat::chainage, 0);
  };
  std::vector<CString> lines = {m_title};
  lines.push_back(L"Long-section " + chainage(area.TopLeft()) + L" to " + chainage(area.BottomRight()));
  lines.push_back(m_printScale.IsEmpty() ? CString::Formatted(L"Vertical exaggeration %.4g", m_exaggeration)
                                         : m_printScale);
  lines.push_back(CString::Formatted(L"Sheet %d of %d", GetPrintPage().number, GetPrintPage().count));
  SetPlotPen({colors.text});
  PlotTitleBlock(lines);
  const CRect sheet = GetPlotArea();
  DrawDeviceLine({sheet.left, sheet.top}, {sheet.right, sheet.top});
  DrawDeviceLine({sheet.right, sheet.top}, {sheet.right, sheet.bottom});
  DrawDeviceLine({sheet.right, sheet.bottom}, {sheet.left, sheet.bottom});
  DrawDeviceLine({sheet.left, sheet.bottom}, {sheet.left, sheet.top});
}

/// Which line is which, in the upper left corner of the drawing.
void SectionView::DrawLegend(const SectionColors& colors) {
  struct Entry {
    const wchar_t* name;
    COLORREF colour;
    double width;
  };
  std::vector<Entry> entries = {{L"Ground", colors.ground, kGroundPen}};
  if (HasDesign()) {
    entries.push_back({L"Design", colors.design, kDesignPen});
  }
  const auto pixels = [this](double points) { return static_cast<LONG>(PixelsOfPoints(points)); };
  const CRect area = GetDrawingArea();
  if (area.Height() < pixels(kLeastForLegend)) {
    return;
  }
  PlotTextStyle text = RulerText(colors.text);
  text.align = TA_LEFT | TA_TOP;
  SetPlotText(text);
  LONG top = area.top + pixels(5);
  KeepInPlace(
      {area.left, area.top, area.left + pixels(80), top + pixels(10) * static_cast<LONG>(entries.size())});
  for (const Entry& entry : entries) {
    const LONG left = area.left + pixels(6);
    const LONG middle = top + pixels(4);
    SetPlotPen({entry.colour, entry.width, PlotUnit::points});
    PlotLine(GetPlotMapping().WindowToUser({left, middle}),
             GetPlotMapping().WindowToUser({left + pixels(18), middle}));
    PlotText(GetPlotMapping().WindowToUser({left + pixels(22), top}), entry.name);
    top += pixels(10);
  }
}

/// Only the stations that have room get texts, so that a survey of millions of rows costs no more than a
/// page.
void SectionView::DrawTable(const SectionColors& colors) {
  const CRect area = GetDrawingArea();
  const double left = GetPlotMapping().WindowToUser(area.TopLeft()).x;
  const double right = GetPlotMapping().WindowToUser(area.BottomRight()).x;
  const double step = (right - left) / std::max(1.0, area.Width() / PixelsOfPoints(kTextPitch));
  const std::vector<PNT_2D_record>& points = m_data->ground.GetPoints();
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
    if (HasDesign()) {
      design.push_back(m_data->design.GetPoints()[static_cast<std::size_t>(at - points.begin())]);
    }
  }
  std::vector<PlotTableRow> rows = {coregui::MakeStationRow(L"Station", ground, m_chainageDecimals),
                                    coregui::MakeLevelRow(L"Ground level", ground, m_levelDecimals)};
  if (HasDesign()) {
    rows.push_back(coregui::MakeLevelRow(L"Design level", design, m_levelDecimals));
    rows.push_back(coregui::MakeDifferenceRow(L"Difference", ground, design, m_levelDecimals));
  }
  rows.resize(static_cast<std::size_t>(TableRows(!IsPrinting())));
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
  SetPlotPen({colors.ground, kGroundPen, PlotUnit::points});
  PlotPolyline(m_data->ground);
  SetPlotPen({colors.design, kDesignPen, PlotUnit::points});
  PlotPolyline(m_data->design);
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

}  // namespace desk
