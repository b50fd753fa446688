#include "Splitter.h"

namespace desk {

BOOL Splitter::CreateBar(CWnd* parent, UINT id) {
  return Create(L"Splitter", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, Thickness(), Thickness()), parent, id);
}

const coregui::MessageTable& Splitter::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&Splitter::HandlePaint)
                                                 .On<WM_LBUTTONDOWN>(&Splitter::HandleButtonDown)
                                                 .On<WM_LBUTTONUP>(&Splitter::HandleButtonUp)
                                                 .On<WM_MOUSEMOVE>(&Splitter::HandleMouseMove)
                                                 .On<WM_SETCURSOR>(&Splitter::HandleSetCursor);
  return table;
}

void Splitter::HandlePaint() {
  CPaintDC dc(this);
  const CRect rect = GetClientRectangle();
  dc.FillSolidRect(rect, GetSysColor(COLOR_BTNFACE));
  dc.FrameRect(m_upright ? CRect(rect.left, -1, rect.right, rect.bottom + 1)
                         : CRect(-1, rect.top, rect.right + 1, rect.bottom),
               GetSysColor(COLOR_BTNSHADOW));
}

/// The bar moves under the pointer while it is dragged, so only screen positions compare.
int Splitter::Along(CPoint point) const {
  ClientToScreen(&point);
  return m_upright ? point.x : point.y;
}

void Splitter::HandleButtonDown(UINT /*flags*/, CPoint point) {
  m_dragging = true;
  m_last = Along(point);
  SetCapture();
}

void Splitter::HandleButtonUp(UINT /*flags*/, CPoint /*point*/) {
  if (m_dragging) {
    m_dragging = false;
    ReleaseCapture();
  }
}

void Splitter::HandleMouseMove(UINT /*flags*/, CPoint point) {
  if (m_dragging) {
    const int now = Along(point);
    const int by = now - m_last;
    m_last = now;
    if (by != 0) {
      m_moved(by);
    }
  }
}

BOOL Splitter::HandleSetCursor(CWnd* /*window*/, UINT /*hitTest*/, UINT /*message*/) {
  SetCursor(LoadSystemCursor(m_upright ? SystemCursor::sizeWE : SystemCursor::sizeNS));
  return TRUE;
}

}  // namespace desk
