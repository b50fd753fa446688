// The body's mouse, key, focus and timer messages, handed to its rooms.

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/CGrid.h"
#include "grid/display/ContextHelp.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

using namespace coregui;

// --- Mouse

void CGrid::HandleLButtonDown(UINT flags, CPoint point) {
  m_tips.Cancel();
  m_mouse.LeftDown(flags, point, m_painter.Frame().HasFocus());
}

void CGrid::HandleLButtonUp(UINT flags, CPoint point) {
  m_mouse.LeftUp(flags, point);
}

void CGrid::HandleLButtonDblClk(UINT flags, CPoint point) {
  m_mouse.DoubleClick(flags, point);
}

void CGrid::HandleRButtonDown(UINT flags, CPoint point) {
  m_tips.Cancel();
  m_mouse.RightDown(flags, point);
}

void CGrid::HandleRButtonUp(UINT flags, CPoint point) {
  m_mouse.RightUp(flags, point);
}

void CGrid::HandleMouseMove(UINT flags, CPoint point) {
  m_tips.PointerAt(point);
  m_mouse.Move(flags, point);
}

void CGrid::HandleMouseLeave() {
  m_tips.Cancel();
}

BOOL CGrid::HandleMouseWheel(UINT flags, short delta, CPoint) {
  m_tips.Cancel();
  m_mouse.Wheel(flags, delta);
  return TRUE;
}

BOOL CGrid::HandleMouseHWheel(UINT flags, short delta, CPoint) {
  m_tips.Cancel();
  m_mouse.WheelAcross(flags, delta);
  return TRUE;
}

LRESULT CGrid::HandleHelpHitTest(WPARAM, LPARAM lParam) {
  return HelpNumberAt(*m_control, GRIDSECTION_GRID, lParam);
}

BOOL CGrid::HandleSetCursor(CWnd*, UINT, UINT) {
  SetCursor(m_control->GetInfo().view.arrowCursor);
  return TRUE;
}

LRESULT CGrid::HandleMouseActivate(WPARAM, LPARAM) {
  return MA_ACTIVATE;
}

// --- Keys and focus

void CGrid::HandleKeyDown(UINT key, UINT, UINT) {
  m_tips.Cancel();
  m_keys.KeyDown(key);
}

void CGrid::HandleKeyUp(UINT key, UINT, UINT) {
  m_keys.KeyUp(key);
}

void CGrid::HandleChar(UINT key, UINT, UINT) {
  m_keys.Character(key);
}

UINT CGrid::HandleGetDlgCode() {
  return DLGC_WANTARROWS | DLGC_WANTALLKEYS;
}

void CGrid::HandleSetFocus(CWnd*) {
  const WindowRef alive(this);
  m_painter.Frame().SetFocus(true);
  m_keys.ResetRepeat();
  m_mouse.ReleaseType();
  m_control->OnSetFocus(GRIDSECTION_GRID);
  if (!alive) return;
  const int col = m_control->GetCurrentCol();
  const long row = m_control->GetCurrentRow();
  if (col < 0 || row < 0) return;
  m_painter.HintCurrent(col, row);
  CRect rect;
  m_control->GetCellRect(col, row, &rect);
  if (m_control->GetHighlightRow() != 0) {
    rect.left = 0;
    rect.right = GetClientRectangle().right;
  }
  PaintDrawHintsNow(&rect);
}

void CGrid::HandleKillFocus(CWnd* other) {
  const WindowRef alive(this);
  m_painter.Frame().SetFocus(false);
  m_control->OnKillFocus(GRIDSECTION_GRID, other);
  if (!alive) return;
  m_painter.HintCurrent(m_control->GetCurrentCol(), m_control->GetCurrentRow());
  Moved();
}

void CGrid::HandleTimer(UINT id) {
  if (id == CGridTips::kTimer) m_tips.TimeElapsed();
  if (id == CGridMouse::kDragTimer) m_mouse.TimeElapsed();
}
