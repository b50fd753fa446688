#include "SectionView.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

// What is shown and how it is moved. It is drawn in SectionViewDraw.cpp and printed in SectionViewPrint.cpp.

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
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
  m_data = &data;
  m_extents = data.extents;
  m_mark = kNothing;
  m_exaggeration = RoundExaggeration(m_extents, PlaceBetween(*this, Margins(true)));
  m_size = CSize();  // whatever was zoomed before is gone
  FitAgain();
}

void SectionView::FitAgain() {
  SetBackgroundColour(SectionColors::Of(false).paper);
  const CSize size = GetClientRectangle().Size();
  if (!HasData() || !HasWindow() || size.cx < 1 || size.cy < 1) {
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
    InvalidateStation(*this, m_mark);
    m_mark = chainage;
    InvalidateStation(*this, m_mark);
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
  if (!HasData()) {
    return kNothing;
  }
  const std::vector<PNT_2D_record>& points = m_data->ground.GetPoints();
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
  if (!std::isfinite(m_mark) || !HasData()) {
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

}  // namespace desk
