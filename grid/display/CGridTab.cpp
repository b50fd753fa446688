#include "grid/display/CGridTab.h"

#include <algorithm>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "platform/CDC.h"
#include "platform/Keys.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace {

// At 96 dots per inch.
constexpr int padding = 8;     // on each side of a tab's text
constexpr int arrowDepth = 4;  // from an arrow's tip to its foot

}  // namespace

const coregui::MessageTable& CGridTab::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&CGridTab::HandlePaint)
                                                 .On<WM_SIZE>(&CGridTab::HandleSize)
                                                 .On<WM_LBUTTONDOWN>(&CGridTab::HandleLButtonDown)
                                                 .On<WM_LBUTTONDBLCLK>(&CGridTab::HandleLButtonDown)
                                                 .On<WM_MOUSEWHEEL>(&CGridTab::HandleMouseWheel)
                                                 .On<WM_KEYDOWN>(&CGridTab::HandleKeyDown)
                                                 .On<WM_GETDLGCODE>(&CGridTab::HandleGetDlgCode)
                                                 .On<WM_SETFOCUS>(&CGridTab::HandleFocusChange)
                                                 .On<WM_KILLFOCUS>(&CGridTab::HandleFocusChange);
  return table;
}

// --- Places

void CGridTab::Measure(CDC& dc) {
  std::vector<int> widths;
  for (int sheet = 0; sheet < m_control->GetNumberSheets(); ++sheet) {
    const CString name = m_control->GetSheetName(sheet);
    widths.push_back(dc.GetTextExtent(name, name.GetLength()).cx + 2 * ScaleByDpi(padding));
  }
  m_strip.SetTabs(widths, GetClientRectangle().Size());
}

const coregui::TabStrip& CGridTab::GetStrip() {
  CClientDC dc(this);
  // A strip without room asks for no font: at the start of a program that would be the first one.
  if (dc.IsValid() && !GetClientRectangle().IsRectEmpty()) {
    Measure(dc);
  }
  return m_strip;
}

void CGridTab::ShowSheets() {
  GetStrip();
  m_strip.ShowTab(m_control->GetSheetNumber());
  Invalidate(TRUE);
}

void CGridTab::HandleSize(UINT, int, int) {
  ShowSheets();
}

void CGridTab::Scroll(int tabs) {
  m_strip.Scroll(tabs);
  Invalidate(TRUE);
}

// --- Drawing

void CGridTab::HandlePaint() {
  CPaintDC dc(this);
  Measure(dc);
  const CRect client = GetClientRectangle();
  dc.FillSolidRect(client, GetSysColor(COLOR_BTNFACE));
  dc.SetBkMode(TRANSPARENT);
  for (int sheet = 0; sheet < m_strip.Count(); ++sheet) {
    if (!m_strip.TabRect(sheet).IsRectEmpty()) {
      DrawTab(dc, sheet);
    }
  }
  DrawArrow(dc, -1);
  DrawArrow(dc, 1);
  // A tab that is cut off ends before the scroll bar begins.
  dc.FillSolidRect(CRect(client.right - 1, client.top, client.right, client.bottom),
                   GetSysColor(COLOR_BTNSHADOW));
}

void CGridTab::DrawTab(CDC& dc, int sheet) const {
  const bool current = sheet == m_control->GetSheetNumber();
  const CRect rect = m_strip.TabRect(sheet);
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

void CGridTab::DrawArrow(CDC& dc, int step) const {
  const CRect rect = m_strip.ArrowRect(step);
  if (rect.IsRectEmpty()) {
    return;
  }
  const COLORREF colour = GetSysColor(m_strip.CanScroll(step) ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
  const int depth = ScaleByDpi(arrowDepth);
  const CPoint middle((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
  for (int i = 0; i < depth; ++i) {
    const LONG x = middle.x + step * (depth / 2 - i);
    dc.FillSolidRect(CRect(x, middle.y - i, x + 1, middle.y + i + 1), colour);
  }
}

// --- Input

void CGridTab::HandleLButtonDown(UINT, CPoint point) {
  GetStrip();
  const int sheet = m_strip.TabAt(point);
  if (m_strip.ArrowRect(-1).PtInRect(point)) {
    Scroll(-1);
  } else if (m_strip.ArrowRect(1).PtInRect(point)) {
    Scroll(1);
  } else if (sheet == m_control->GetSheetNumber()) {
    SetFocus();
  } else if (sheet >= 0) {
    const coregui::WindowRef alive(this);
    m_control->SetFocus();
    if (alive) {
      Select(sheet);
    }
  }
}

BOOL CGridTab::HandleMouseWheel(UINT, short delta, CPoint) {
  Scroll(delta > 0 ? -1 : 1);
  return TRUE;
}

void CGridTab::HandleKeyDown(UINT key, UINT, UINT) {
  switch (key) {
    case VK_LEFT:
      Select(m_control->GetSheetNumber() - 1);
      break;
    case VK_RIGHT:
      Select(m_control->GetSheetNumber() + 1);
      break;
    case VK_HOME:
      Select(0);
      break;
    case VK_END:
      Select(m_control->GetNumberSheets() - 1);
      break;
    case VK_UP:
    case VK_DOWN:
      m_control->SetFocus();
      break;
    default:
      break;
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
