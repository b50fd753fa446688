#include "grid/display/CGridCnrBtn.h"

#include <algorithm>
#include <utility>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/ContextHelp.h"
#include "platform/CDC.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

using namespace coregui;

namespace {

constexpr int kEdgeWidth = 4;

}  // namespace

CGridCnrBtn::CGridCnrBtn(CGridCtrl* control) : m_control(control), m_cells(*control, m_hints) {}

CGridCnrBtn::~CGridCnrBtn() = default;

const MessageTable& CGridCnrBtn::GetMessageTable() const {
  static const MessageTable table = MessageTable(CWnd::Messages())
                                        .On<WM_PAINT>(&CGridCnrBtn::HandlePaint)
                                        .On<WM_ERASEBKGND>(&CGridCnrBtn::HandleErase)
                                        .On<WM_PRINTCLIENT>(&CGridCnrBtn::HandlePrintClient)
                                        .On<WM_SYSCOLORCHANGE>(&CGridCnrBtn::HandleSystemChange)
                                        .On<WM_THEMECHANGED>(&CGridCnrBtn::HandleSystemChange)
                                        .On<WM_LBUTTONDOWN>(&CGridCnrBtn::HandleLButtonDown)
                                        .On<WM_LBUTTONUP>(&CGridCnrBtn::HandleLButtonUp)
                                        .On<WM_LBUTTONDBLCLK>(&CGridCnrBtn::HandleLButtonDblClk)
                                        .On<WM_RBUTTONDOWN>(&CGridCnrBtn::HandleRButtonDown)
                                        .On<WM_RBUTTONUP>(&CGridCnrBtn::HandleRButtonUp)
                                        .On<WM_MOUSEMOVE>(&CGridCnrBtn::HandleMouseMove)
                                        .On<WM_CAPTURECHANGED>(&CGridCnrBtn::HandleCaptureChanged)
                                        .On<WM_HELPHITTEST>(&CGridCnrBtn::HandleHelpHitTest)
                                        .On<WM_SETCURSOR>(&CGridCnrBtn::HandleSetCursor);
  return table;
}

// --- Painting

void CGridCnrBtn::HandlePaint() {
  ValidateRect(nullptr);
  if (m_control->GetPaintMode() == 0) return;
  CClientDC dc(this);
  if (dc.IsValid()) Draw(dc);
}

BOOL CGridCnrBtn::HandleErase(CDC*) {
  return TRUE;
}

LRESULT CGridCnrBtn::HandlePrintClient(WPARAM wParam, LPARAM) {
  CDC* const dc = reinterpret_cast<CDC*>(wParam);
  if (dc == nullptr) return 0;
  Draw(*dc);
  return 1;
}

void CGridCnrBtn::Draw(CDC& dc) {
  const WindowRef alive(this);
  dc.SelectObject(m_control->GetDefFont());
  m_control->OnScreenDCSetup(&dc, nullptr, GRIDSECTION_CORNERBUTTON);
  if (!alive) return;
  dc.FillSolidRect(GetClientRectangle(), m_control->OnGetDefBackColor(GRIDSECTION_CORNERBUTTON));
  const int rows = m_control->GetTH_NumberRows();
  const int cols = m_control->GetSH_NumberCols();
  m_hints = {};
  for (int row = -1; row >= -rows; --row) {
    for (int col = -1; col >= -cols && alive; --col) {
      const CGridHeadings& headings = m_control->GetInfo().headings;
      const CGridHeadings::Span x = headings.SideColSpan(col);
      const CGridHeadings::Span y = headings.TopRowSpan(row);
      CGridCellPainter::Cell cell{col, row, CRect(x.start, y.start, x.end, y.end), false};
      if (cell.rect.IsRectEmpty()) continue;
      const CGridCellPainter::Fetched fetched = m_cells.Fetch(cell, alive);
      if (fetched == CGridCellPainter::Fetched::gone) return;
      if (fetched == CGridCellPainter::Fetched::drawn) continue;
      const int saved = dc.SaveDC();
      m_cells.Draw(dc, cell, 0, 0);
      if (!alive) return;
      dc.RestoreDC(saved);
    }
  }
}

void CGridCnrBtn::HandleSystemChange() {
  Invalidate(TRUE);
}

// --- Sizing

/// The right edge comes first.
CGridCnrBtn::Edge CGridCnrBtn::FindEdge(CPoint point) {
  if (m_control->GetUserSizingMode() == 0) return Edge::none;
  const WindowRef alive(this);
  const CRect client = GetClientRectangle();
  if (point.x > client.right - kEdgeWidth) {
    const int allowed = m_control->OnCanSizeSideHdg();
    return alive && allowed != 0 ? Edge::right : Edge::none;
  }
  if (point.y > client.bottom - kEdgeWidth) {
    const int allowed = m_control->OnCanSizeTopHdg();
    return alive && allowed != 0 ? Edge::bottom : Edge::none;
  }
  return Edge::none;
}

void CGridCnrBtn::DragTo(CPoint point) {
  const WindowRef alive(this);
  if (m_edge == Edge::bottom) {
    int height = std::max<int>(point.y, 0);
    m_control->OnTopHdgSizing(&height);  // Kept: the answer counts in the heading itself only
    if (alive && m_sizing) m_control->SetTH_Height(height);
  } else {
    int width = std::max<int>(point.x, 0);
    m_control->OnSideHdgSizing(&width);
    if (alive && m_sizing) m_control->SetSH_Width(width);
  }
  if (alive) m_control->AdjustComponentSizes();
}

void CGridCnrBtn::EndDrag() {
  if (!std::exchange(m_sizing, false)) return;
  const WindowRef alive(this);
  if (m_edge == Edge::bottom) {
    int height = m_control->GetTH_Height();
    m_control->OnTopHdgSized(&height);
    if (alive && height != m_control->GetTH_Height()) m_control->SetTH_Height(height);
  } else {
    int width = m_control->GetSH_Width();
    m_control->OnSideHdgSized(&width);
    if (alive && width != m_control->GetSH_Width()) m_control->SetSH_Width(width);
  }
  if (!alive) return;
  m_edge = Edge::none;
  m_control->AdjustComponentSizes();
  if (alive) m_control->RedrawAll();
}

// --- Mouse

void CGridCnrBtn::HandleLButtonDown(UINT, CPoint point) {
  const WindowRef alive(this);
  if (CWnd* const body = m_control->GetGridWnd(); body != nullptr) body->SetFocus();
  if (!alive) return;
  SetCapture();
  m_edge = FindEdge(point);
  if (!alive) return;
  if (m_edge != Edge::none) {
    m_sizing = true;
    return;
  }
  m_leftDown = true;
  RECT rect = GetClientRectangle();
  const int processed = m_control->GetCellDelegate(-1, -1)->OnLClicked(-1, -1, 1, &rect, &point);
  if (alive) m_control->OnCB_LClicked(1, &rect, &point, processed);
}

void CGridCnrBtn::HandleLButtonUp(UINT, CPoint point) {
  const WindowRef alive(this);
  const bool clicked = std::exchange(m_leftDown, false);
  if (CWnd::GetCapture() == this) CWnd::ReleaseCapture();
  if (!alive) return;
  EndDrag();
  if (!alive || !clicked) return;
  RECT rect = GetClientRectangle();
  const int processed = m_control->GetCellDelegate(-1, -1)->OnLClicked(-1, -1, 0, &rect, &point);
  if (alive) m_control->OnCB_LClicked(0, &rect, &point, processed);
}

void CGridCnrBtn::HandleLButtonDblClk(UINT, CPoint point) {
  const WindowRef alive(this);
  RECT rect = GetClientRectangle();
  const int processed = m_control->GetCellDelegate(-1, -1)->OnDClicked(-1, -1, &rect, &point);
  if (alive) m_control->OnCB_DClicked(&rect, &point, processed);
}

void CGridCnrBtn::HandleRButtonDown(UINT, CPoint point) {
  const WindowRef alive(this);
  m_rightDown = true;
  RECT rect = GetClientRectangle();
  const int processed = m_control->GetCellDelegate(-1, -1)->OnRClicked(-1, -1, 1, &rect, &point);
  if (!alive) return;
  m_control->OnCB_RClicked(1, &rect, &point, processed);
  if (!alive || m_control->GetInfo().view.menu == 0) return;
  POINT screen = point;
  ClientToScreen(&screen);
  m_control->StartMenu(-1, -1, &screen, GRIDSECTION_CORNERBUTTON);
}

void CGridCnrBtn::HandleRButtonUp(UINT, CPoint point) {
  if (!m_rightDown) return;
  m_rightDown = false;
  const WindowRef alive(this);
  RECT rect = GetClientRectangle();
  const int processed = m_control->GetCellDelegate(-1, -1)->OnRClicked(-1, -1, 0, &rect, &point);
  if (alive) m_control->OnCB_RClicked(0, &rect, &point, processed);
}

void CGridCnrBtn::HandleMouseMove(UINT flags, CPoint point) {
  const WindowRef alive(this);
  if (m_sizing) {
    DragTo(point);
  } else if ((flags & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0) {
    const Edge edge = FindEdge(point);
    if (!alive) return;
    m_edge = edge;
    ShowCursor();
  }
}

LRESULT CGridCnrBtn::HandleHelpHitTest(WPARAM, LPARAM lParam) {
  return HelpNumberAt(*m_control, GRIDSECTION_CORNERBUTTON, lParam);
}

/// A dialog that opens takes the mouse away: there will be no release.
LRESULT CGridCnrBtn::HandleCaptureChanged(WPARAM, LPARAM) {
  m_leftDown = false;
  EndDrag();
  return 0;
}

BOOL CGridCnrBtn::HandleSetCursor(CWnd*, UINT, UINT) {
  ShowCursor();
  return TRUE;
}

void CGridCnrBtn::ShowCursor() const {
  const CGridViewState& view = m_control->GetInfo().view;
  switch (m_edge) {
    case Edge::none:
      SetCursor(view.arrowCursor);
      break;
    case Edge::right:
      SetCursor(view.horizontalSizingCursor);
      break;
    case Edge::bottom:
      SetCursor(view.verticalSizingCursor);
      break;
  }
}
