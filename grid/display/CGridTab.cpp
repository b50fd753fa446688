#include "grid/display/CGridTab.h"

#include "grid/control/CGridCtrl.h"
#include "grid/display/TabPlan.h"
#include "platform/CDC.h"
#include "platform/System.h"

namespace {

constexpr int padding = 8;  // at 96 dots per inch, on each side of a tab's text

}  // namespace

const coregui::MessageTable& CGridTab::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&CGridTab::HandlePaint)
                                                 .On<WM_LBUTTONDOWN>(&CGridTab::HandleLButtonDown)
                                                 .On<WM_KEYDOWN>(&CGridTab::HandleKeyDown)
                                                 .On<WM_GETDLGCODE>(&CGridTab::HandleGetDlgCode)
                                                 .On<WM_SETFOCUS>(&CGridTab::HandleFocusChange)
                                                 .On<WM_KILLFOCUS>(&CGridTab::HandleFocusChange);
  return table;
}

std::vector<CRect> CGridTab::GetTabs() const {
  CClientDC dc(const_cast<CGridTab*>(this));
  return dc.IsValid() ? Measure(dc) : std::vector<CRect>();
}

std::vector<CRect> CGridTab::Measure(CDC& dc) const {
  std::vector<int> widths;
  for (int sheet = 0; sheet < m_control->GetNumberSheets(); ++sheet) {
    const CString name = m_control->GetSheetName(sheet);
    widths.push_back(dc.GetTextExtent(name, name.GetLength()).cx + 2 * ScaleByDpi(padding));
  }
  return coregui::PlanTabs(widths, m_control->GetSheetNumber(), GetClientRectangle().Size());
}

void CGridTab::HandlePaint() {
  CPaintDC dc(this);
  dc.FillSolidRect(GetClientRectangle(), GetSysColor(COLOR_BTNFACE));
  dc.SetBkMode(TRANSPARENT);
  const std::vector<CRect> tabs = Measure(dc);
  for (int sheet = 0; sheet < static_cast<int>(tabs.size()); ++sheet) {
    DrawTab(dc, tabs[static_cast<std::size_t>(sheet)], sheet);
  }
}

void CGridTab::DrawTab(CDC& dc, const CRect& rect, int sheet) const {
  const bool current = sheet == m_control->GetSheetNumber();
  const COLORREF edge = GetSysColor(COLOR_BTNSHADOW);
  dc.FillSolidRect(rect, GetSysColor(current ? COLOR_WINDOW : COLOR_BTNFACE));
  dc.FillSolidRect(CRect(rect.right - 1, rect.top, rect.right, rect.bottom), edge);
  if (!current) {
    dc.FillSolidRect(CRect(rect.left, rect.top, rect.right, rect.top + 1), edge);
  }
  dc.SetTextColor(GetSysColor(current ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
  const CString name = m_control->GetSheetName(sheet);
  CRect text = rect;
  dc.DrawText(name, name.GetLength(), &text, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  if (current && GetFocus() == this) {
    text = rect;
    text.DeflateRect(2, 2);
    dc.DrawFocusRect(text);
  }
}

void CGridTab::HandleLButtonDown(UINT, CPoint point) {
  const std::vector<CRect> tabs = GetTabs();
  for (int sheet = 0; sheet < static_cast<int>(tabs.size()); ++sheet) {
    if (tabs[static_cast<std::size_t>(sheet)].PtInRect(point)) {
      Select(sheet);
      return;
    }
  }
}

void CGridTab::HandleKeyDown(UINT key, UINT, UINT) {
  if (key == VK_LEFT) {
    Select(m_control->GetSheetNumber() - 1);
  } else if (key == VK_RIGHT) {
    Select(m_control->GetSheetNumber() + 1);
  }
}

UINT CGridTab::HandleGetDlgCode() {
  return DLGC_WANTARROWS;
}
void CGridTab::HandleFocusChange(CWnd*) {
  Invalidate(TRUE);
}

void CGridTab::Select(int sheet) {
  if (sheet == m_control->GetSheetNumber()) {
    return;
  }
  if (m_control->SetSheetNumber(sheet) == 0) {
    m_control->OnTabSelected(sheet);
  }
}
