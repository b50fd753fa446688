#include "grid/display/CGridScrollTip.h"

#include <algorithm>

#include "platform/CDC.h"
#include "platform/System.h"

namespace coregui {

namespace {

constexpr int padding = 4;  // at 96 dots per inch

}  // namespace

const MessageTable& CGridScrollTip::GetMessageTable() const {
  static const MessageTable table = MessageTable(CWnd::Messages()).On<WM_PAINT>(&CGridScrollTip::HandlePaint);
  return table;
}

void CGridScrollTip::ShowAt(CWnd& grid, const CString& text, CPoint anchor, CFont* font) {
  if (!HasWindow() &&
      Create(L"CoreGuiGridTip", L"", WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 1, 1), &grid, 0) == FALSE) {
    return;
  }
  m_text = text;
  m_font = font;
  CClientDC dc(this);
  dc.SelectObject(font);
  const CSize extent = dc.GetTextExtent(text, text.GetLength());
  const int room = 2 * ScaleByDpi(padding);
  const int left = std::max(0, static_cast<int>(anchor.x - extent.cx - room));
  const int top = std::max(0, static_cast<int>(anchor.y - extent.cy - room));
  MoveWindow(left, top, extent.cx + room, extent.cy + room);
  BringWindowToTop();
  ShowWindow(SW_SHOWNOACTIVATE);
  Invalidate(FALSE);
  UpdateWindow();
}

void CGridScrollTip::Hide() {
  if (HasWindow()) {
    ShowWindow(SW_HIDE);
  }
}

void CGridScrollTip::HandlePaint() {
  CPaintDC dc(this);
  const CRect client = GetClientRectangle();
  dc.FillSolidRect(client, GetSysColor(COLOR_INFOBK));
  dc.Draw3dRect(client, GetSysColor(COLOR_INFOTEXT), GetSysColor(COLOR_INFOTEXT));
  dc.SelectObject(m_font);
  dc.SetBkMode(TRANSPARENT);
  dc.SetTextColor(GetSysColor(COLOR_INFOTEXT));
  const int room = ScaleByDpi(padding);
  dc.TextOut(room, room, m_text, m_text.GetLength());
}

}  // namespace coregui
