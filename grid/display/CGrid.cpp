#include "grid/display/CGrid.h"

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "platform/CBitmap.h"
#include "platform/CDC.h"
#include "platform/WindowRef.h"

using namespace coregui;

CGrid::CGrid(CGridCtrl* control)
    : m_control(control),
      m_painter(*control, *this),
      m_scroller(*control, m_painter),
      m_mouse(*control, *this),
      m_keys(*control, *this),
      m_tips(*control, *this, GRIDSECTION_GRID) {}

CGrid::~CGrid() = default;

const MessageTable& CGrid::GetMessageTable() const {
  static const MessageTable table = MessageTable(CWnd::Messages())
                                        .On<WM_PAINT>(&CGrid::HandlePaint)
                                        .On<WM_ERASEBKGND>(&CGrid::HandleErase)
                                        .On<WM_PRINTCLIENT>(&CGrid::HandlePrintClient)
                                        .On<WM_SIZE>(&CGrid::HandleSize)
                                        .On<WM_SYSCOLORCHANGE>(&CGrid::HandleSystemChange)
                                        .On<WM_THEMECHANGED>(&CGrid::HandleSystemChange)
                                        .On<WM_LBUTTONDOWN>(&CGrid::HandleLButtonDown)
                                        .On<WM_LBUTTONUP>(&CGrid::HandleLButtonUp)
                                        .On<WM_LBUTTONDBLCLK>(&CGrid::HandleLButtonDblClk)
                                        .On<WM_RBUTTONDOWN>(&CGrid::HandleRButtonDown)
                                        .On<WM_RBUTTONUP>(&CGrid::HandleRButtonUp)
                                        .On<WM_MOUSEMOVE>(&CGrid::HandleMouseMove)
                                        .On<WM_MOUSEWHEEL>(&CGrid::HandleMouseWheel)
                                        .On<WM_MOUSEHWHEEL>(&CGrid::HandleMouseHWheel)
                                        .On<WM_MOUSELEAVE>(&CGrid::HandleMouseLeave)
                                        .On<WM_HELPHITTEST>(&CGrid::HandleHelpHitTest)
                                        .On<WM_SETCURSOR>(&CGrid::HandleSetCursor)
                                        .On<WM_MOUSEACTIVATE>(&CGrid::HandleMouseActivate)
                                        .On<WM_KEYDOWN>(&CGrid::HandleKeyDown)
                                        .On<WM_KEYUP>(&CGrid::HandleKeyUp)
                                        .On<WM_CHAR>(&CGrid::HandleChar)
                                        .On<WM_GETDLGCODE>(&CGrid::HandleGetDlgCode)
                                        .On<WM_SETFOCUS>(&CGrid::HandleSetFocus)
                                        .On<WM_KILLFOCUS>(&CGrid::HandleKillFocus)
                                        .On<WM_TIMER>(&CGrid::HandleTimer);
  return table;
}

CScrollBar* CGrid::GetScrollBarCtrl(int bar) const {
  return m_control->GetScrollBarCtrl(bar);
}

LRESULT CGrid::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_HSCROLL || message == WM_VSCROLL) return m_control->SendMessage(message, wParam, lParam);
  return CWnd::WindowProc(message, wParam, lParam);
}

// --- Repainting on request

void CGrid::RedrawCell(int col, long row) {
  RedrawRange(col, row, col, row);
}

void CGrid::RedrawRow(long row) {
  RedrawRange(0, row, m_control->GetNumberCols() - 1, row);
}

void CGrid::RedrawCol(int col) {
  RedrawRange(col, 0, col, m_control->GetNumberRows() - 1);
}

void CGrid::RedrawRange(int startCol, long startRow, int endCol, long endRow) {
  m_painter.Hints().AddHint(startCol, startRow, endCol, endRow);
  if (m_painter.IsPainting()) {
    m_painter.RequestDuringPass({startCol, startRow, endCol, endRow});
  } else {
    Moved();
  }
}

void CGrid::Moved() {
  if (!HasWindow() || m_painter.IsPainting() || m_control->GetPaintMode() == 0) return;
  RECT update;
  if (GetUpdateRect(&update)) {
    UpdateWindow();
    return;
  }
  if (NeedsFullRepaint()) {
    Invalidate(TRUE);
    UpdateWindow();
    return;
  }
  CClientDC dc(this);
  if (!dc.IsValid()) return;
  const CGridScroller::Shift shift = m_scroller.Plan(GetClientRectangle(), dc.GetScaleFactor());
  if (!shift.IsNone()) m_scroller.HintUncovered(shift);
  const int col = m_control->GetCurrentCol();
  const long row = m_control->GetCurrentRow();
  m_painter.HintCurrent(m_painter.ShownCol(), m_painter.ShownRow());
  if (col != m_painter.ShownCol() || row != m_painter.ShownRow()) m_painter.HintCurrent(col, row);
  if (m_buffer == nullptr) {
    if (!shift.IsNone()) CGridScroller::Move(dc, shift);
    DrawCellsIntern(&dc, nullptr);
  } else {
    CMemoryDC memory(&dc, m_buffer.get());
    if (!shift.IsNone()) CGridScroller::Move(memory, shift);
    DrawCellsIntern(&dc, &memory);
  }
}

bool CGrid::NeedsFullRepaint() const {
  return m_control->IsFindDialogOpen() != 0 || m_control->GetInfo().view.forceFullRepaint != 0 || IsCovered();
}

/// Whether a window lies over a part of this one. What only its own windows or the screen cut off does not
/// count: the picture is kept in full, so that pixels can be moved in what cannot be seen too.
bool CGrid::IsCovered() const {
  CRect own;
  GetWindowRect(&own);
  CRect other;
  CRect common;
  for (const CWnd* above = GetWindow(GW_HWNDPREV); above != nullptr; above = above->GetWindow(GW_HWNDPREV)) {
    if (!above->IsWindowVisible()) continue;
    above->GetWindowRect(&other);
    if (common.IntersectRect(own, other)) return true;
  }
  const CWnd* const active = CWnd::GetActiveWindow();
  if (active == nullptr || active == this || active->IsChild(this)) return false;
  active->GetWindowRect(&other);
  return OverlapsPartly(own, other);
}

void CGrid::PaintDrawHintsNow(const RECT* rect) {
  if (!HasWindow() || m_painter.IsPainting() || m_control->GetPaintMode() == 0) return;
  // The context validates all that is pending, so that has to be painted too.
  CRect pending;
  if (m_painter.IsViewStale()) {
    m_painter.HintAll();
  } else if (GetUpdateRect(&pending)) {
    HintUpdateRect(pending);
  }
  InvalidateRect(m_painter.IsViewStale() ? nullptr : rect, FALSE);
  CPaintDC dc(this);
  PaintPass(dc);
}

// --- Painting

void CGrid::HandlePaint() {
  CRect update;
  GetUpdateRect(&update);
  ValidateRect(nullptr);  // else the request would come again and again while painting is disabled
  if (m_control->GetPaintMode() == 0) return;
  if (update.IsRectNull() || m_painter.IsViewStale()) {
    m_painter.HintAll();
  } else {
    HintUpdateRect(update);
  }
  CClientDC dc(this);
  if (dc.IsValid()) PaintPass(dc);
}

void CGrid::PaintPass(CDC& screen) {
  // Another scale, or another place between two dots of the screen: the pixels have other dots now.
  if (m_buffer != nullptr && !m_buffer->IsCompatible(screen)) SetDoubleBufferMode(m_bufferMode);
  if (m_buffer == nullptr) {
    DrawCellsIntern(&screen, nullptr);
  } else {
    CMemoryDC memory(&screen, m_buffer.get());
    DrawCellsIntern(&screen, &memory);
  }
}

/// Hints the cells under the rectangle, to the end of a joined block that it ends in, and the current cell.
void CGrid::HintUpdateRect(const CRect& update) {
  const CGridInfo& info = m_control->GetInfo();
  const auto at = [](long index, long count) {
    return index < 0 ? count : index;
  };  // -1: behind the last one
  const int startCol = static_cast<int>(at(info.columns.IndexAtPosition(update.left), info.columns.Count()));
  const long startRow = at(info.rows.IndexAtPosition(update.top), info.rows.Count());
  int endCol = static_cast<int>(at(info.columns.IndexAtPosition(update.right - 1), info.columns.Count()));
  long endRow = at(info.rows.IndexAtPosition(update.bottom - 1), info.rows.Count());
  int joinCol = endCol;
  long joinRow = endRow;
  int joinEndCol = 0;
  long joinEndRow = 0;
  if (m_control->GetJoinRange(&joinCol, &joinRow, &joinEndCol, &joinEndRow) == 0) {
    endCol = std::max(endCol, joinEndCol);
    endRow = std::max(endRow, joinEndRow);
  }
  m_painter.Hints().AddHint(startCol, startRow, endCol, endRow);
  const int col = m_control->GetCurrentCol();
  const long row = m_control->GetCurrentRow();
  const bool exactly = startCol >= col && endCol <= col && startRow >= row && endRow <= row;
  // The current cell alone is drawn alone, in a highlighted row too, but where the row's frame has to go.
  if (!exactly || m_painter.Frame().HasToGo()) m_painter.HintCurrent(col, row);
}

void CGrid::DrawCellsIntern(CDC* screenDC, CDC* memDC) {
  const WindowRef alive(this);
  m_painter.Paint({screenDC, memDC, GetClientRectangle()});
  if (alive) FinishPass();
}

/// What had to wait until the pass was over.
void CGrid::FinishPass() {
  for (const CGridDrawHint::Range& range : m_painter.TakeRequested()) {
    RECT rect;
    const int startCol = std::max(range.startCol, 0);
    const long startRow = std::max(range.startRow, 0L);
    if (m_control->GetRangeRect(startCol, startRow, range.endCol, range.endRow, &rect) == 0) {
      InvalidateRect(&rect, FALSE);
    }
  }
  if (m_bufferStale) {
    m_bufferStale = false;
    SetDoubleBufferMode(m_bufferMode);
  }
}

BOOL CGrid::HandleErase(CDC*) {
  return TRUE;
}

LRESULT CGrid::HandlePrintClient(WPARAM wParam, LPARAM) {
  CDC* const dc = reinterpret_cast<CDC*>(wParam);
  if (dc == nullptr || m_painter.IsPainting()) return 0;
  const WindowRef alive(this);
  m_painter.Print(*dc, GetClientRectangle());
  if (alive) FinishPass();
  return 1;
}

int CGrid::SetDoubleBufferMode(int mode) {
  if (m_painter.IsPainting()) {  // the bitmap is in use
    m_bufferMode = mode;
    m_bufferStale = true;
    return 0;
  }
  m_buffer.reset();
  m_bufferMode = mode;
  if (mode != 1 || !HasWindow()) return 0;
  const CRect client = GetClientRectangle();
  const CClientDC dc(this);
  auto buffer = std::make_unique<CBitmap>();
  if (!buffer->CreateCompatibleBitmap(&dc, std::max<int>(client.Width(), 1),
                                      std::max<int>(client.Height(), 1))) {
    m_bufferMode = 0;
    return 1;
  }
  m_buffer = std::move(buffer);
  Invalidate(FALSE);  // the new bitmap holds no picture yet
  return 0;
}

void CGrid::HandleSize(UINT, int, int) {
  SetDoubleBufferMode(m_bufferMode);
}

void CGrid::HandleSystemChange() {
  Invalidate(TRUE);
}
