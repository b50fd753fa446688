#include "grid/celltypes/CGridDropListType.h"

#include <algorithm>

#include "grid/celltypes/AbuttingLine.h"
#include "grid/celltypes/DropListPlan.h"
#include "grid/control/CGridCtrl.h"
#include "platform/CDC.h"
#include "platform/Keys.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

using namespace coregui;

CGridDropListType::CGridDropListType() : m_buttonWidth(GetSystemMetrics(SM_CXVSCROLL)) {
  m_canOverlap = 0;
}

const wchar_t* CGridDropListType::GetName() {
  return L"DropList";
}

GridID CGridDropListType::GetGridID() {
  return {0x6B1C52A0, 0x2F47, 0x4C0E, {0x9D, 0x11, 0x5E, 0x70, 0xC4, 0x2A, 0x83, 0x01}};
}

int CGridDropListType::GetEditArea(RECT* rect) {
  rect->right = std::max(rect->left, rect->right - m_buttonWidth);
  return 1;
}

// --- Clicks and keys

int CGridDropListType::OnLClicked(int col, long row, int updn, RECT* rect, POINT* point) {
  if (updn == 0) {
    if (!m_pressed) return 0;
    Release(m_col, m_row);
    return 1;
  }
  // A click that extends the selection does not open lists.
  if (m_control != nullptr && m_control->GetMultiSelectMode() != 0 &&
      (GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_CONTROL) < 0)) {
    return 1;
  }
  if (!DropButtonRect(*rect, m_buttonWidth).PtInRect(*point)) return 0;
  m_pressed = true;
  m_col = col;
  m_row = row;
  if (m_control == nullptr) return 1;
  const WindowRef alive(m_control);
  m_control->RedrawCell(col, row);
  if (alive) StartDropList(col, row);
  return 1;
}

int CGridDropListType::OnDClicked(int col, long row, RECT* rect, POINT* point) {
  return OnLClicked(col, row, 1, rect, point);
}

int CGridDropListType::OnKeyDown(int col, long row, UINT* key) {
  const bool opens = *key == VK_RETURN || (*key == VK_DOWN && GetKeyState(VK_CONTROL) < 0);
  if (!opens) return 0;
  *key = 0;  // consumed: it moves nothing
  StartDropList(col, row);
  return 1;
}

void CGridDropListType::OnKillFocus(int, long, CGridCell*) {
  m_pressed = false;
  m_col = -1;
  m_row = -1;
}

void CGridDropListType::Release(int col, long row) {
  m_pressed = false;
  if (m_control != nullptr) m_control->RedrawCell(col, row);
}

bool CGridDropListType::StartDropList(int col, long row) {
  if (m_control == nullptr) return false;
  CGridCell cell;
  m_control->GetCellIndirect(col, row, &cell);
  if (cell.GetReadOnly() != 0) return false;
  const WindowRef alive(m_control);
  m_control->GotoCell(col, row);
  if (!alive) return false;
  m_col = col;
  m_row = row;
  CStringList choices = SplitChoices(CString(cell.GetLabelText()));
  if (OnCellTypeNotify(m_id, col, row, kDropListStart, reinterpret_cast<long>(&choices)) == 0 || !alive)
    return false;
  m_choices = choices;
  return true;
}

// --- Drawing

void CGridDropListType::OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected,
                               int current) {
  RECT inner;
  DrawBorder(dc, rect, &inner, cell);
  const CRect button = DropButtonRect(inner, m_buttonWidth);
  RECT text = inner;
  text.right = button.left;
  DrawText(dc, &text, 0, col, row, cell, selected, current);
  DrawButton(*dc, button, m_pressed && col == m_col && row == m_row);
}

void CGridDropListType::DrawButton(CDC& dc, const CRect& button, bool pressed) const {
  if (button.IsRectEmpty()) return;
  dc.FillSolidRect(button, GetSysColor(COLOR_BTNFACE));
  const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
  const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
  dc.Draw3dRect(button, pressed ? shadow : light, pressed ? light : shadow);
  constexpr int kHalf = 3;  // the glyph: a triangle 7 pixels wide, 4 high
  const int shift = pressed ? 1 : 0;
  const int x = button.left + button.Width() / 2 + shift;
  const int y = button.top + (button.Height() - kHalf) / 2 + shift;
  const int saved = dc.SaveDC();
  dc.IntersectClipRect(button);
  CPen pen(PS_SOLID, 1, GetSysColor(COLOR_BTNTEXT));
  CPen* const before = dc.SelectObject(&pen);
  for (int line = 0; line <= kHalf; ++line) {
    DrawAbuttingLine(dc, CPoint(x - kHalf + line, y + line), CPoint(x + kHalf - line + 1, y + line));
  }
  dc.SelectObject(before);
  dc.RestoreDC(saved);
}

int CGridDropListType::GetMaxStringWidth(CDC* dc, const CStringList& choices) const {
  int widest = 0;
  for (const CString& choice : choices) {
    widest = std::max<int>(widest, dc->GetTextExtent(choice, choice.GetLength()).cx);
  }
  return widest;
}

void CGridDropListType::GetBestSize(CDC* dc, CSize* size, CGridCell* cell) {
  CGridCellType::GetBestSize(dc, size, cell);
  size->cx += m_buttonWidth;
}
