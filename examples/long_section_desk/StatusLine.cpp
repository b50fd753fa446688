#include "StatusLine.h"

namespace desk {

namespace {

/// Readable on the button face of the light and of the dark theme.
COLORREF WarningColor() {
  return IsDarkTheme() ? RGB(255, 176, 96) : RGB(168, 60, 0);
}

}  // namespace

BOOL StatusLine::CreateLine(CWnd* parent) {
  return Create(L"StatusLine", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, Height()), parent, kId);
}

void StatusLine::Show(const std::wstring& text, bool warning) {
  m_text = text;
  m_warning = warning;
  Say();
}

void StatusLine::ShowState(const std::wstring& text) {
  m_state = text;
  Say();
}

void StatusLine::Say() {
  SetAccessibleName((m_text + (m_state.empty() ? L"" : L"; ") + m_state).c_str());
  if (HasWindow()) {
    Invalidate();
    UpdateWindow();
  }
}

const coregui::MessageTable& StatusLine::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&StatusLine::HandlePaint)
                                                 .On<WM_SIZE>(&StatusLine::HandleSize);
  return table;
}

void StatusLine::HandlePaint() {
  CPaintDC dc(this);
  CRect rect = GetClientRectangle();
  dc.FillSolidRect(rect, GetSysColor(COLOR_BTNFACE));
  dc.FillSolidRect(CRect(rect.left, rect.top, rect.right, rect.top + 1), GetSysColor(COLOR_BTNSHADOW));
  rect.DeflateRect(ScaleByDpi(8), 1);
  dc.SetBkMode(TRANSPARENT);
  if (!m_state.empty()) {
    dc.SetTextColor(GetSysColor(COLOR_BTNTEXT));
    const auto length = static_cast<int>(m_state.size());
    dc.DrawText(m_state.c_str(), length, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_RIGHT);
    rect.right -= dc.GetTextExtent(m_state.c_str(), length).cx + ScaleByDpi(16);
    dc.FillSolidRect(CRect(rect.right + ScaleByDpi(7), rect.top + ScaleByDpi(4), rect.right + ScaleByDpi(8),
                           rect.bottom - ScaleByDpi(3)),
                     GetSysColor(COLOR_BTNSHADOW));
  }
  dc.SetTextColor(m_warning ? WarningColor() : GetSysColor(COLOR_BTNTEXT));
  dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), &rect,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void StatusLine::HandleSize(UINT /*type*/, int /*width*/, int /*height*/) {
  Invalidate();
}

}  // namespace desk
