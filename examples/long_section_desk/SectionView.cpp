#include "SectionView.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "SheetPlan.h"

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr int kTopMargin = 24;  // points
constexpr double kRowHeight = 44.0;
constexpr double kMostOfTable = 0.55;  // of a window's height
constexpr int kGap = 4;
constexpr double kTextPitch = 11.0;  // points from one upright text to the next
constexpr int kPaperEdge = 24;       // points around what is printed
constexpr LONG kTitleBlock = 58;     // points below the table for the title block
constexpr LONG kTableEnd = 6;        // points between the table and the frame of a sheet
constexpr double kMillimetresPerInch = 25.4;
constexpr double kLeastForLegend = 60.0;
constexpr double kGroundPen = 1.0;  // points
constexpr double kDesignPen = 1.25;
constexpr UINT kPlusKey = 0xBB;  // on the main board
constexpr UINT kMinusKey = 0xBD;
constexpr double kKeyZoom = 1.5;
constexpr int kKeyMove = 10;  // a key moves the view by a tenth of it

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

CSize EdgeDots(CSize dotsPerInch) {
  return {kPaperEdge * dotsPerInch.cx / 72, kPaperEdge * dotsPerInch.cy / 72};
}

CSize InsideEdges(CSize page, CSize dotsPerInch) {
  const CSize edges = EdgeDots(dotsPerInch);
  return {page.cx - 2 * edges.cx, page.cy - 2 * edges.cy};
}

}  // namespace

SectionView::SectionView(CWnd* parent) : CGUIBaseViewWnd(10.0, parent), m_mark(kNothing) {
  Options options;
  options.zoomUnderPointer = true;
  options.history = true;
  options.touchpad = true;
  options.crossHair = true;
  options.readOut = PlotNumberFormat::chainage;
  SetOptions(options);
}

void SectionView::Show(const SectionData& data) {
  m_ground = CPlotSeries(data.ground);
  m_design = CPlotSeries(data.design);
  m_extents = data.extents;
  m_mark = kNothing;
  m_hasData = !data.IsEmpty();
  m_exaggeration = RoundExaggeration(m_extents, PlaceBetween(*this, Margins(true)));
  m_size = CSize();  // whatever was zoomed before is gone
  FitAgain();
}

/// The table has the rows that leave the drawing most of a window's height; paper has room for all.
int SectionView::TableRows(bool forWindow) const {
  int rows = m_design.GetCount() == 0 ? 2 : 4;
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

/// Of the part of a sheet inside its edges.
CRect SectionView::PrintMargins() const {
  CRect margins = Margins(false);
  margins.right += kTableEnd;
  margins.bottom += kTitleBlock;
  return margins;
}

std::vector<coregui::CViewMapping> SectionView::Plan(const PrintChoice& choice, CSize page,
                                                     CSize dotsPerInch) const {
  coregui::CViewMapping view = GetMapping();
  view.margins = PrintMargins();
  const CSize inside = InsideEdges(page, dotsPerInch);
  if (choice.toScale) {
    return PlanSheets(view, choice.Scale(), inside, dotsPerInch, {&m_ground, &m_design});
  }
  view.now.dpiX = dotsPerInch.cx;
  view.now.dpiY = dotsPerInch.cy;
  view.now.vertRatio = m_exaggeration;
  view.FitToRect(CRect(CPoint(0, 0), inside));
  return {view};
}

int SectionView::CountSheets(const PrintChoice& choice) const {
  const PrintPage page = choice.Page();
  const auto dots = [&page](double millimetres) {
    return static_cast<LONG>(std::lround(millimetres / kMillimetresPerInch * page.dotsPerInch));
  };
  const CSize size(dots(page.width), dots(page.height));
  return static_cast<int>(Plan(choice, size, CSize(page.dotsPerInch, page.dotsPerInch)).size());
}

bool SectionView::PrintSheets(CPrinterDC& dc, const PrintChoice& choice) {
  const CSize page(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
  const CSize dotsPerInch(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
  const CSize edges = EdgeDots(dotsPerInch);
  const std::vector<coregui::CViewMapping> sheets = Plan(choice, page, dotsPerInch);
  m_sheet = {0, static_cast<int>(sheets.size()), {}};
  if (choice.toScale) {
    m_sheet.scale = CString::Formatted(L"Scale 1:%g / 1:%g", choice.horizontal, choice.vertical);
  }
  SetMargins(PrintMargins());
  bool good = !sheets.empty();
  for (const coregui::CViewMapping& sheet : sheets) {
    ++m_sheet.number;
    good = good && dc.StartPage();
    if (good) {
      dc.SetViewportOrg(edges.cx, edges.cy);
      PrintMapped(dc, InsideEdges(page, dotsPerInch), sheet);
      good = dc.EndPage();
    }
  }
  SetMargins(Margins(true));
  return good;
}

void SectionView::FitAgain() {
  SetBackgroundColour(SectionColors::Of(false).paper);
  const CSize size = GetClientRectangle().Size();
  if (!m_hasData || !HasWindow() || size.cx < 1 || size.cy < 1) {
    return;
  }
  const coregui::CViewMapping::Scale before = GetMapping().now;
  const PNT_2D_record middle = WindowToUser(MiddleOf(CRect(CPoint(0, 0), m_size)));
  const bool zoomed = m_size.cx > 0 && before.scale < before.fitScale;
  m_size = size;
  SetMargins(Margins(true));
  InitView(m_extents, m_exaggeration);
  if (zoomed) {
    // No gesture, so nothing to go back over.
    const Options options = GetOptions();
    Options quiet = options;
    quiet.history = false;
    SetOptions(quiet);
    DoZoom(middle, before.scale, false);
    SetOptions(options);
  }
}

bool SectionView::Look(bool back) {
  const bool went = back ? GoBack() : GoForward();
  m_exaggeration = GetVertRatio();
  return went;
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
  lines.push_back(m_sheet.scale.IsEmpty() ? CString::Formatted(L"Vertical exaggeration %.4g", m_exaggeration)
                                          : m_sheet.scale);
  lines.push_back(CString::Formatted(L"Sheet %d of %d", m_sheet.number, m_sheet.count));
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
  if (m_design.GetCount() > 0) {
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

BOOL SectionView::OnMouseWheel(UINT flags, short delta, CPoint screen) {
  if ((flags & MK_SHIFT) != 0) {
    MoveView(delta > 0 ? 1 : -1, 0);
    return TRUE;
  }
  return CGUIBaseViewWnd::OnMouseWheel(flags, delta, screen);
}

LRESULT SectionView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && HandleKey(static_cast<UINT>(wParam))) {
    return 0;
  }
  const LRESULT result = CGUIBaseViewWnd::WindowProc(message, wParam, lParam);
  if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && m_focusHook) {
    m_focusHook();
  }
  return result;
}

bool SectionView::HandleKey(UINT key) {
  struct Row {
    UINT key;
    StationStep step;
    int dx;  ///< how the view moves with Ctrl, in tenths
    int dy;
  };
  static constexpr Row kRows[] = {
      {VK_LEFT, StationStep::back, 1, 0},  {VK_RIGHT, StationStep::forward, -1, 0},
      {VK_UP, StationStep::back, 0, 1},    {VK_DOWN, StationStep::forward, 0, -1},
      {VK_HOME, StationStep::first, 0, 0}, {VK_END, StationStep::last, 0, 0}};
  for (const Row& row : kRows) {
    if (row.key != key) {
      continue;
    }
    if (GetKeyState(VK_CONTROL) < 0) {
      MoveView(row.dx, row.dy);
    } else if (m_stepHook) {
      m_stepHook(row.step);
    }
    return true;
  }
  if (key == VK_ADD || key == kPlusKey || key == VK_SUBTRACT || key == kMinusKey) {
    Zoom(key == VK_ADD || key == kPlusKey ? kKeyZoom : 1.0 / kKeyZoom);
    return true;
  }
  return false;
}

/// Moves the drawing by tenths of its window, as two fingers on a touchpad would.
void SectionView::MoveView(int dx, int dy) {
  const CSize size = GetClientRectangle().Size();
  SendMessage(WM_COREGUI_PAN, 0, MAKELPARAM(dx * size.cx / kKeyMove, dy * size.cy / kKeyMove));
}

void SectionView::Zoom(double factor) {
  const CRect area = Drawing();
  const LONG mark = std::isfinite(m_mark) ? UserToWindow({m_mark, 0.0}).x : -1;
  ZoomAt(OnLine(mark >= area.left && mark <= area.right ? mark : MiddleOf(area).x), factor);
}

CRect SectionView::Drawing() const {
  CRect area = GetClientRectangle();
  const CRect margins = GetMapping().GetMarginPixels();
  area.left += margins.left;
  area.top += margins.top;
  area.right -= margins.right;
  area.bottom -= margins.bottom;
  return area;
}

double SectionView::GroundAt(double chainage) const {
  const std::vector<PNT_2D_record>& points = m_ground.GetPoints();
  const auto at = std::lower_bound(points.begin(), points.end(), chainage,
                                   [](const PNT_2D_record& point, double x) { return point.x < x; });
  return at == points.end() ? kNothing : at->y;
}

CPoint SectionView::OnLine(LONG x) const {
  const CRect area = Drawing();
  const double level = GroundAt(WindowToUser(CPoint(x, 0)).x);
  const LONG y = std::isfinite(level) ? UserToWindow({0.0, level}).y : -1;
  return {x, y >= area.top && y <= area.bottom ? y : MiddleOf(area).y};
}

void SectionView::ShowMark() {
  if (!std::isfinite(m_mark) || !m_hasData) {
    return;
  }
  const CRect area = Drawing();
  const double ground = GroundAt(m_mark);
  const PNT_2D_record middle = WindowToUser(MiddleOf(area));
  const PNT_2D_record wanted = {m_mark, std::isfinite(ground) ? ground : middle.y};
  const CPoint at = UserToWindow(wanted);
  if (at.x < area.left || at.x > area.right || at.y < area.top || at.y > area.bottom) {
    // A zoom puts its centre into the middle of the window, which the table below the drawing takes in.
    const PNT_2D_record window = WindowToUser(MiddleOf(GetClientRectangle()));
    DoZoom({wanted.x + window.x - middle.x, wanted.y + window.y - middle.y}, GetScale(), false);
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
  PlotPolyline(m_ground);
  SetPlotPen({colors.design, kDesignPen, PlotUnit::points});
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

}  // namespace desk
