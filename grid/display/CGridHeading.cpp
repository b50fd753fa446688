#include "grid/display/CGridHeading.h"

#include <utility>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/ContextHelp.h"
#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {

CGridHeading::CGridHeading(CGridCtrl* control, HeadingKind kind)
    : m_control(control),
      m_painter(*control, *this, kind),
      m_section(kind == HeadingKind::top ? GRIDSECTION_TOPHEADING : GRIDSECTION_SIDEHEADING),
      m_sizer(*control, *this, kind),
      m_tips(*control, *this, m_section) {}

CGridHeading::~CGridHeading() = default;

const MessageTable& CGridHeading::GetMessageTable() const {
  static const MessageTable table = MessageTable(CWnd::Messages())
                                        .On<WM_PAINT>(&CGridHeading::HandlePaint)
                                        .On<WM_ERASEBKGND>(&CGridHeading::HandleErase)
                                        .On<WM_PRINTCLIENT>(&CGridHeading::HandlePrintClient)
                                        .On<WM_SYSCOLORCHANGE>(&CGridHeading::HandleSystemChange)
                                        .On<WM_THEMECHANGED>(&CGridHeading::HandleSystemChange)
                                        .On<WM_LBUTTONDOWN>(&CGridHeading::HandleLButtonDown)
                                        .On<WM_LBUTTONUP>(&CGridHeading::HandleLButtonUp)
                                        .On<WM_LBUTTONDBLCLK>(&CGridHeading::HandleLButtonDblClk)
                                        .On<WM_RBUTTONDOWN>(&CGridHeading::HandleRButtonDown)
                                        .On<WM_RBUTTONUP>(&CGridHeading::HandleRButtonUp)
                                        .On<WM_MOUSEMOVE>(&CGridHeading::HandleMouseMove)
                                        .On<WM_MOUSELEAVE>(&CGridHeading::HandleMouseLeave)
                                        .On<WM_CAPTURECHANGED>(&CGridHeading::HandleCaptureChanged)
                                        .On<WM_HELPHITTEST>(&CGridHeading::HandleHelpHitTest)
                                        .On<WM_SETCURSOR>(&CGridHeading::HandleSetCursor)
                                        .On<WM_TIMER>(&CGridHeading::HandleTimer);
  return table;
}

// --- Painting

void CGridHeading::Moved() {
  if (!HasWindow() || m_painter.IsPainting() || m_control->GetPaintMode() == 0) return;
  if (GetClientRectangle().IsRectEmpty()) {
    m_painter.Hints().ClearHints();  // with room to show them, all of its cells are painted
    return;
  }
  RECT update;
  if (GetUpdateRect(&update)) {
    UpdateWindow();
    return;
  }
  if (m_painter.IsViewStale()) m_painter.HintAll();
  if (m_painter.Hints().GetRanges().empty()) return;
  CClientDC dc(this);
  if (dc.IsValid()) m_painter.Paint(dc, GetClientRectangle());
}

void CGridHeading::RedrawRange(int startCol, long startRow, int endCol, long endRow) {
  m_painter.Hints().AddHint(startCol, startRow, endCol, endRow);
  Moved();
}

void CGridHeading::HandlePaint() {
  ValidateRect(nullptr);
  if (m_control->GetPaintMode() == 0) return;
  m_painter.HintAll();
  CClientDC dc(this);
  if (dc.IsValid()) m_painter.Paint(dc, GetClientRectangle());
}

BOOL CGridHeading::HandleErase(CDC*) {
  return TRUE;
}

LRESULT CGridHeading::HandlePrintClient(WPARAM wParam, LPARAM) {
  CDC* const dc = reinterpret_cast<CDC*>(wParam);
  if (dc == nullptr || m_painter.IsPainting()) return 0;
  // The pass takes the hints along that the screen still waits for.
  const bool pending = !m_painter.Hints().GetRanges().empty() || m_painter.IsViewStale();
  m_painter.HintAll();
  const WindowRef alive(this);
  m_painter.Paint(*dc, GetClientRectangle());
  if (alive && pending) Invalidate(FALSE);
  return 1;
}

void CGridHeading::HandleSystemChange() {
  Invalidate(TRUE);
}

// --- Mouse

bool CGridHeading::HitTest(CPoint point, Click& click) const {
  click.point = point;
  if (m_control->GetSectionCellFromPoint(m_section, point.x, point.y, &click.col, &click.row, &click.rect) ==
      0) {
    return true;
  }
  click.col = -1;
  click.row = -1;
  click.rect = RECT();
  return false;
}

void CGridHeading::HandleLButtonDown(UINT, CPoint point) {
  const WindowRef alive(this);
  m_tips.Cancel();
  if (CWnd* const body = m_control->GetGridWnd(); body != nullptr) body->SetFocus();
  if (!alive || m_control->GetEditInProgress() != 0) return;
  SetCapture();
  m_sizer.Track(point);  // a press without a movement before it counts as well
  if (!alive) return;
  if (m_sizer.IsHot()) {
    m_sizer.Begin();
    return;
  }
  m_leftDown = true;
  Click click;
  if (HitTest(point, click)) {
    PressedOn(click, point);
    if (!alive) return;
    click.processed = m_control->GetCellDelegate(click.col, click.row)
                          ->OnLClicked(click.col, click.row, 1, &click.rect, &click.point);
  }
  if (alive) NotifyLClicked(click, 1);
}

void CGridHeading::HandleLButtonUp(UINT, CPoint point) {
  const WindowRef alive(this);
  const bool clicked = std::exchange(m_leftDown, false);
  if (CWnd::GetCapture() == this) CWnd::ReleaseCapture();
  if (!alive) return;
  m_sizer.End();
  if (!alive || !clicked) return;
  ReleasedAt(point);
  if (!alive) return;
  Click click;
  if (HitTest(point, click)) {
    click.processed = m_control->GetCellDelegate(click.col, click.row)
                          ->OnLClicked(click.col, click.row, 0, &click.rect, &click.point);
  }
  if (alive) NotifyLClicked(click, 0);
}

void CGridHeading::HandleLButtonDblClk(UINT, CPoint point) {
  const WindowRef alive(this);
  m_sizer.Track(point);
  if (!alive || m_sizer.FitToContents() || !alive) return;
  Click click;
  if (HitTest(point, click)) {
    click.processed = m_control->GetCellDelegate(click.col, click.row)
                          ->OnDClicked(click.col, click.row, &click.rect, &click.point);
  }
  if (alive) NotifyDClicked(click);
}

void CGridHeading::HandleRButtonDown(UINT, CPoint point) {
  const WindowRef alive(this);
  m_tips.Cancel();
  m_rightDown = true;
  Click click;
  if (HitTest(point, click)) {
    click.processed = m_control->GetCellDelegate(click.col, click.row)
                          ->OnRClicked(click.col, click.row, 1, &click.rect, &click.point);
    if (!alive) return;
  }
  NotifyRClicked(click, 1);
  if (!alive || m_control->GetInfo().view.menu == 0) return;
  POINT screen = point;
  ClientToScreen(&screen);
  m_control->StartMenu(click.col, click.row, &screen, m_section);
}

void CGridHeading::HandleRButtonUp(UINT, CPoint point) {
  if (!m_rightDown) return;
  m_rightDown = false;
  const WindowRef alive(this);
  Click click;
  if (HitTest(point, click)) {
    click.processed = m_control->GetCellDelegate(click.col, click.row)
                          ->OnRClicked(click.col, click.row, 0, &click.rect, &click.point);
  }
  if (alive) NotifyRClicked(click, 0);
}

void CGridHeading::HandleMouseMove(UINT flags, CPoint point) {
  const WindowRef alive(this);
  if (m_sizer.IsSizing()) {
    m_sizer.Drag(point);
    return;
  }
  if ((flags & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0) {
    m_tips.PointerAt(point);
    m_sizer.Track(point);
    if (alive) ShowCursor();
  } else if (m_leftDown) {
    DraggedTo(point);
  }
}

void CGridHeading::HandleMouseLeave() {
  m_tips.Cancel();
}

LRESULT CGridHeading::HandleHelpHitTest(WPARAM, LPARAM lParam) {
  return HelpNumberAt(*m_control, m_section, lParam);
}

LRESULT CGridHeading::HandleCaptureChanged(WPARAM, LPARAM) {
  const bool lost = std::exchange(m_leftDown, false);
  const WindowRef alive(this);
  m_sizer.End();
  if (alive && lost) PressLost();
  return 0;
}

BOOL CGridHeading::HandleSetCursor(CWnd*, UINT, UINT) {
  ShowCursor();
  return TRUE;
}

void CGridHeading::ShowCursor() const {
  const CGridViewState& view = m_control->GetInfo().view;
  if (!m_sizer.IsHot()) {
    SetCursor(view.arrowCursor);
  } else {
    SetCursor(m_sizer.SizesWidths() ? view.horizontalSizingCursor : view.verticalSizingCursor);
  }
}

void CGridHeading::HandleTimer(UINT id) {
  if (id == CGridTips::kTimer) {
    m_tips.TimeElapsed();
  } else {
    TimerElapsed(id);
  }
}

void CGridHeading::PressedOn(const Click&, CPoint) {}
void CGridHeading::DraggedTo(CPoint) {}
void CGridHeading::ReleasedAt(CPoint) {}
void CGridHeading::PressLost() {}
void CGridHeading::TimerElapsed(UINT) {}

}  // namespace coregui
