#include "grid/display/CGridMouse.h"

#include <algorithm>
#include <cstdlib>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/Ballistics.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {
namespace {

constexpr int kBack = 0;  // move codes of the control
constexpr int kForward = 1;
constexpr int kRowsPerNotch = 3;

}  // namespace

/// The cell under a point; col and row are -1 where there is none.
struct CGridMouse::Hit {
  bool found = false;
  int col = -1;
  long row = -1;
  RECT rect;
};

const CGridInfo& CGridMouse::Info() const {
  return m_control.GetInfo();
}

CGridMouse::Hit CGridMouse::HitTest(CPoint point) const {
  Hit hit;
  hit.found = !IsOutside(point) &&  // cells go on outside what is shown
              m_control.GetCellFromPoint(point.x, point.y, &hit.col, &hit.row, &hit.rect) == 0;
  if (!hit.found) hit = Hit();
  return hit;
}

CGridMouse::Hit CGridMouse::CurrentCell(CPoint point) const {
  Hit hit;
  hit.col = m_control.GetCurrentCol();
  hit.row = m_control.GetCurrentRow();
  hit.found = hit.col >= 0 && hit.row >= 0;
  if (!hit.found) return HitTest(point);
  m_control.GetCellRect(hit.col, hit.row, &hit.rect);
  return hit;
}

/// What tells the two buttons apart: the event's kind, and whom it is offered and told to.
struct CGridMouse::Button {
  MouseEvent event;
  int (CGridCellDelegate::*offer)(int col, long row, int updn, RECT* rect, POINT* point);
  void (CGridNotify::*tell)(int col, long row, int updn, RECT* rect, POINT* point, int processed);
};

const CGridMouse::Button CGridMouse::kLeft{MouseEvent::leftDown, &CGridCellDelegate::OnLClicked,
                                           &CGridNotify::OnLClicked};
const CGridMouse::Button CGridMouse::kRight{MouseEvent::rightDown, &CGridCellDelegate::OnRClicked,
                                            &CGridNotify::OnRClicked};

int CGridMouse::Offer(const Button& button, Hit& hit, int updn, CPoint& point) {
  if (!hit.found) return 0;
  CGridCellDelegate* const type = m_control.GetCellDelegate(hit.col, hit.row);
  return (type->*button.offer)(hit.col, hit.row, updn, &hit.rect, &point);
}

/// False when the grid is gone.
bool CGridMouse::Press(const Button& button, UINT flags, CPoint point, Hit& hit) {
  const WindowRef alive(&m_window);
  m_control.GetInfo().view.mouseEvent = button.event;
  m_control.GetInfo().view.mouseFlags = flags;
  hit = HitTest(point);
  if (hit.found) m_control.GotoCell(hit.col, hit.row);
  if (!alive) return false;
  const int processed = Offer(button, hit, 1, point);
  if (!alive) return false;
  if (&button == &kLeft) m_typeTook = processed != 0;
  (m_control.*button.tell)(hit.col, hit.row, 1, &hit.rect, &point, processed);
  if (!alive) return false;
  m_control.GetInfo().view.mouseEvent = MouseEvent::none;
  return true;
}

/// `offered` is the cell whose type is asked. False when the grid is gone.
bool CGridMouse::Release(const Button& button, Hit offered, CPoint point) {
  const WindowRef alive(&m_window);
  Hit hit = HitTest(point);
  const int processed = Offer(button, offered, 0, point);
  if (!alive) return false;
  (m_control.*button.tell)(hit.col, hit.row, 0, &hit.rect, &point, processed);
  return static_cast<bool>(alive);
}

void CGridMouse::LeftDown(UINT flags, CPoint point, bool hasFocus) {
  const WindowRef alive(&m_window);
  if (!hasFocus) m_window.SetFocus();
  if (!alive || m_control.GetEditInProgress() != 0) return;
  m_window.SetCapture();
  Hit hit;
  if (Press(kLeft, flags, point, hit)) m_leftDown = true;
}

void CGridMouse::LeftUp(UINT, CPoint point) {
  if (!m_leftDown) return;
  m_window.KillTimer(kDragTimer);
  // The type that took the press gets the release too, wherever the pointer is by then.
  if (!Release(kLeft, m_typeTook ? CurrentCell(point) : HitTest(point), point)) return;
  CWnd::ReleaseCapture();
  m_control.ResetDragCell();
  m_leftDown = false;
  m_typeTook = false;
}

void CGridMouse::RightDown(UINT flags, CPoint point) {
  if (m_control.GetEditInProgress() != 0) return;
  Hit hit;
  if (!Press(kRight, flags, point, hit)) return;
  m_rightDown = true;
  if (Info().view.menu == 0) return;
  POINT screen = point;
  m_window.ClientToScreen(&screen);
  m_control.StartMenu(hit.col, hit.row, &screen, GRIDSECTION_GRID);
}

void CGridMouse::RightUp(UINT, CPoint point) {
  if (m_rightDown && Release(kRight, HitTest(point), point)) m_rightDown = false;
}

void CGridMouse::DoubleClick(UINT, CPoint point) {
  const WindowRef alive(&m_window);
  Hit hit = HitTest(point);
  int processed = 0;
  if (hit.found) {
    processed = m_control.GetCellDelegate(hit.col, hit.row)->OnDClicked(hit.col, hit.row, &hit.rect, &point);
  }
  if (alive) m_control.OnDClicked(hit.col, hit.row, &hit.rect, &point, processed);
}

void CGridMouse::Move(UINT flags, CPoint point) {
  if (m_control.GetEditInProgress() != 0) return;
  const WindowRef alive(&m_window);
  Hit hit = m_typeTook ? CurrentCell(point) : HitTest(point);
  if (!m_typeTook) m_control.GetInfo().view.mouseFlags = flags;
  if (hit.found) {
    CGridCellDelegate* const type = m_control.GetCellDelegate(hit.col, hit.row);
    const int processed = type->OnMouseMove(hit.col, hit.row, &point, flags);
    if (!alive) return;
    m_control.OnMouseMove(hit.col, hit.row, &point, flags, processed);
    if (!alive) return;
  }
  if (m_typeTook || !m_leftDown || (flags & MK_LBUTTON) == 0) return;
  m_dragPoint = point;
  if (IsOutside(point)) {
    m_window.SetTimer(kDragTimer, kDragEvery);
  } else {
    m_window.KillTimer(kDragTimer);
  }
  Extend(hit, point);
}

/// The selection goes on growing while the pointer rests outside.
void CGridMouse::TimeElapsed() {
  if (!m_leftDown || CWnd::GetCapture() != &m_window || m_control.GetEditInProgress() != 0) {
    m_window.KillTimer(kDragTimer);
  } else {
    Extend(HitTest(m_dragPoint), m_dragPoint);
  }
}

bool CGridMouse::IsOutside(CPoint point) const {
  return !CRect(0, 0, Info().columns.Extent(), Info().rows.Extent()).PtInRect(point);
}

void CGridMouse::Extend(const Hit& hit, CPoint point) {
  const WindowRef alive(&m_window);
  m_control.GetInfo().view.keepSelectionOnGoto = 1;  // the moves extend the selection
  Drag(hit, point);
  if (alive) m_control.GetInfo().view.keepSelectionOnGoto = 0;
}

void CGridMouse::Drag(const Hit& hit, CPoint point) {
  const CGridInfo& info = Info();
  const bool partial = hit.found && (hit.col == info.columns.last || hit.row == info.rows.last);
  if (partial && info.view.scrollOnPartialCells == 0) return;
  const WindowRef alive(&m_window);
  if (hit.found && !partial && info.columns.Locked() == 0 && info.rows.Locked() == 0) {
    m_control.GotoCell(hit.col, hit.row);
    return;
  }
  DragColumn(hit, point.x);
  if (alive) DragRow(hit, point.y);
}

void CGridMouse::DragColumn(const Hit& hit, int x) {
  if (DragColumnOutside(hit, x)) return;
  const CGridColumns& columns = Info().columns;
  const int col = hit.found ? hit.col : static_cast<int>(columns.IndexAtPosition(x));
  if (col < 0) return;
  if (x < columns.LockedSize() && columns.drag >= columns.Locked()) {
    m_control.MoveCurrentCol(kBack);
  } else {
    m_control.GotoCol(col);
  }
}

void CGridMouse::DragRow(const Hit& hit, int y) {
  if (DragRowOutside(hit, y)) return;
  const CGridRows& rows = Info().rows;
  const long row = hit.found ? hit.row : rows.IndexAtPosition(y);
  if (row < 0) return;
  if (y < rows.LockedSize() && rows.drag >= rows.Locked()) {
    m_control.MoveCurrentRow(kBack);
  } else {
    m_control.GotoRow(row);
  }
}

bool CGridMouse::DragColumnOutside(const Hit& hit, int x) {
  const CGridColumns& columns = Info().columns;
  if (x < 0) return StepColumn(-1, FactorBefore(x, columns.DefaultSize()));
  if (x < columns.Extent() && !(hit.found && hit.col == columns.last)) return false;
  return StepColumn(1, FactorRightOf(x, columns.Extent(), columns.DefaultSize()));
}

bool CGridMouse::DragRowOutside(const Hit& hit, int y) {
  const CGridRows& rows = Info().rows;
  if (y < 0) return StepRow(-1, FactorBefore(y, rows.DefaultSize()));
  if (y < rows.Extent() && !(hit.found && hit.row == rows.last)) return false;
  return StepRow(1, FactorBelow(y, rows.Extent(), rows.DefaultSize()));
}

bool CGridMouse::StepColumn(int direction, double factor) {
  const int mode = Info().view.mouseBallistics.mode;
  if (mode <= 0) {
    m_control.MoveCurrentCol(direction < 0 ? kBack : kForward);
    return true;
  }
  const long step = BallisticStep(factor, mode);
  const long target = std::clamp<long>(Info().columns.drag + direction * step, 0, Info().columns.Count() - 1);
  WaitAfter(step);
  m_control.GotoCol(static_cast<int>(target));
  return true;
}

bool CGridMouse::StepRow(int direction, double factor) {
  const int mode = Info().view.mouseBallistics.mode;
  if (mode <= 0) {
    m_control.MoveCurrentRow(direction < 0 ? kBack : kForward);
    return true;
  }
  const long step = BallisticStep(factor, mode);
  const long target = std::clamp<long>(Info().rows.drag + direction * step, 0, Info().rows.Count() - 1);
  WaitAfter(step);
  m_control.GotoRow(target);
  return true;
}

/// Slow drags stay controllable: the single step waits.
void CGridMouse::WaitAfter(long step) const {
  const int delay = Info().view.mouseBallistics.delay;
  if (step == 1 && delay > 0) Sleep(static_cast<UINT>(delay));
}

void CGridMouse::Wheel(UINT flags, short delta) {
  if (m_control.GetEditInProgress() != 0) return;
  const WindowRef alive(&m_window);
  CGridViewState& view = m_control.GetInfo().view;
  view.mouseEvent = MouseEvent::wheel;
  view.mouseFlags = flags;
  m_control.SetTopRow(m_control.GetTopRow() - long{delta / WHEEL_DELTA} * kRowsPerNotch);
  if (!alive) return;
  m_control.Invalidate(TRUE);
  m_control.GetInfo().view.mouseEvent = MouseEvent::none;
}

void CGridMouse::WheelAcross(UINT flags, short delta) {
  if (m_control.GetEditInProgress() != 0) return;
  const WindowRef alive(&m_window);
  m_control.GetInfo().view.mouseEvent = MouseEvent::wheel;
  m_control.GetInfo().view.mouseFlags = flags;
  for (int notches = std::abs(delta) / WHEEL_DELTA; notches > 0 && alive; --notches) {
    m_control.MoveLeftCol(delta < 0 ? kBack : kForward);
  }
  if (alive) m_control.GetInfo().view.mouseEvent = MouseEvent::none;
}

}  // namespace coregui
