#include "CommandBar.h"

#include <algorithm>
#include <array>

namespace desk {

namespace {

constexpr std::array<double, 14> kExaggerations = {1,   2,   5,   10,   20,   25,   50,
                                                   100, 200, 500, 1000, 2000, 5000, 10000};

}  // namespace

/// Of a text without its marks, with the room of a button's frame.
int CommandBar::WidthOf(const wchar_t* text) {
  CString shown = text;
  shown.Remove(L'&');
  const CClientDC dc(this);
  return dc.GetTextExtent(shown, shown.GetLength()).cx + ScaleByDpi(18);
}

BOOL CommandBar::CreateBar(CWnd* parent, const std::vector<BarCommand>& commands) {
  if (!Create(L"CommandBar", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, Height()), parent, kId) ||
      !m_tips.CreateTips(this)) {
    return FALSE;
  }
  const int gap = ScaleByDpi(4);
  const int height = Height() - 2 * gap;
  int left = gap;
  for (const BarCommand& command : commands) {
    const int width = WidthOf(command.text);
    auto button = std::make_unique<WithTip<CButton>>(m_tips);
    if (!button->Create(command.text, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                        CRect(CPoint(left, gap), CSize(width, height)), this, command.id)) {
      return FALSE;
    }
    m_tips.AddTool(button.get(), command.tip);
    m_buttons.push_back(std::move(button));
    left += width + gap;
  }
  left += 2 * gap;
  constexpr wchar_t kLabel[] = L"Exaggeration";
  const int labelWidth = WidthOf(kLabel);
  const int down = (height - ScaleByDpi(16)) / 2;
  m_label.Create(kLabel, WS_CHILD | WS_VISIBLE,
                 CRect(CPoint(left, gap + down), CSize(labelWidth, height - down)), this,
                 kExaggerationId + 1);
  const CRect place(CPoint(left + labelWidth - 2 * gap, gap), CSize(ScaleByDpi(92), height));
  if (!m_exaggeration.Create(CBS_DROPDOWNLIST | WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, this,
                             kExaggerationId)) {
    return FALSE;
  }
  m_exaggeration.SetAccessibleName(L"Vertical exaggeration");
  m_tips.AddTool(&m_exaggeration, L"How much longer levels are drawn than chainages (Ctrl+E: any value)");
  FillExaggerations(0.0);
  return TRUE;
}

/// The fixed exaggerations, in their place one that is none of them, and the entry that asks.
void CommandBar::FillExaggerations(double extra) {
  m_times.assign(kExaggerations.begin(), kExaggerations.end());
  if (extra > 0.0 && std::find(m_times.begin(), m_times.end(), extra) == m_times.end()) {
    m_times.insert(std::lower_bound(m_times.begin(), m_times.end(), extra), extra);
  }
  m_times.push_back(0.0);
  m_exaggeration.ResetContent();
  for (const double times : m_times) {
    m_exaggeration.AddString(times > 0.0 ? CString::Formatted(L"%.6g", times) : CString(L"Other..."));
  }
}

double CommandBar::GetExaggeration() const {
  const int index = m_exaggeration.GetCurSel();
  return index < 0 ? 0.0 : m_times[static_cast<std::size_t>(index)];
}

void CommandBar::ShowExaggeration(double times) {
  FillExaggerations(times);
  const auto found = std::find(m_times.begin(), m_times.end(), times);
  m_exaggeration.SetCurSel(static_cast<int>(found - m_times.begin()));
}

void CommandBar::EnableCommand(UINT id, bool on) {
  if (CWnd* control = GetDlgItem(static_cast<int>(id))) {
    control->EnableWindow(on);
  }
}

std::vector<CWnd*> CommandBar::Stops() {
  std::vector<CWnd*> stops;
  for (const auto& button : m_buttons) {
    stops.push_back(button.get());
  }
  stops.push_back(&m_exaggeration);
  std::erase_if(stops, [](const CWnd* stop) { return stop->IsWindowEnabled() == FALSE; });
  return stops;
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
