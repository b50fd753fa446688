#include "CommandBar.h"

#include <array>

namespace desk {

namespace {

constexpr std::array<int, 14> kExaggerations = {1,   2,   5,   10,   20,   25,   50,
                                                100, 200, 500, 1000, 2000, 5000, 10000};

}  // namespace

BOOL CommandBar::CreateBar(CWnd* parent, const std::vector<BarCommand>& commands) {
  if (!Create(L"CommandBar", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, Height()), parent, kId)) {
    return FALSE;
  }
  const int gap = ScaleByDpi(4);
  const int height = Height() - 2 * gap;
  int left = gap;
  for (const BarCommand& command : commands) {
    const int width = ScaleByDpi(28 + 7 * static_cast<int>(CString(command.text).GetLength()));
    auto button = std::make_unique<CButton>();
    if (!button->Create(command.text, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                        CRect(CPoint(left, gap), CSize(width, height)), this, command.id)) {
      return FALSE;
    }
    m_buttons.push_back(std::move(button));
    left += width + gap;
  }
  const int labelWidth = ScaleByDpi(84);
  left += gap;
  m_label.Create(L"Exaggeration", WS_CHILD | WS_VISIBLE,
                 CRect(CPoint(left, gap + ScaleByDpi(4)), CSize(labelWidth, height)), this,
                 kExaggerationId + 1);
  const CRect place(CPoint(left + labelWidth, gap), CSize(ScaleByDpi(84), height));
  if (!m_exaggeration.Create(CBS_DROPDOWNLIST | WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, this,
                             kExaggerationId)) {
    return FALSE;
  }
  m_exaggeration.SetAccessibleName(L"Vertical exaggeration");
  for (const int times : kExaggerations) {
    m_exaggeration.AddString(CString::Formatted(L"%d", times));
  }
  return TRUE;
}

double CommandBar::GetExaggeration() const {
  const int index = m_exaggeration.GetCurSel();
  return index < 0 ? 0.0 : kExaggerations[static_cast<std::size_t>(index)];
}

void CommandBar::ShowExaggeration(double times) {
  int found = -1;
  for (std::size_t i = 0; i < kExaggerations.size(); ++i) {
    found = kExaggerations[i] == times ? static_cast<int>(i) : found;
  }
  m_exaggeration.SetCurSel(found);
}

void CommandBar::EnableCommand(UINT id, bool on) {
  if (CWnd* control = GetDlgItem(static_cast<int>(id))) {
    control->EnableWindow(on);
  }
}

const coregui::MessageTable& CommandBar::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&CommandBar::HandlePaint)
                                                 .OnMessage(WM_COMMAND, &CommandBar::HandleCommand);
  return table;
}

void CommandBar::HandlePaint() {
  CPaintDC dc(this);
  const CRect rect = GetClientRectangle();
  dc.FillSolidRect(rect, GetSysColor(COLOR_BTNFACE));
  dc.FillSolidRect(CRect(rect.left, rect.bottom - 1, rect.right, rect.bottom), GetSysColor(COLOR_BTNSHADOW));
}

LRESULT CommandBar::HandleCommand(WPARAM wParam, LPARAM lParam) {
  return GetParent() == nullptr ? 0 : GetParent()->SendMessage(WM_COMMAND, wParam, lParam);
}

}  // namespace desk
