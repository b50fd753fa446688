#include "CommandBar.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace desk {

namespace {

constexpr std::array<double, 14> kExaggerations = {1,   2,   5,   10,   20,   25,   50,
                                                   100, 200, 500, 1000, 2000, 5000, 10000};

constexpr wchar_t kLabel[] = L"Exaggeration";

int Gap() {
  return ScaleByDpi(4);
}

int MoreWidth() {
  return ScaleByDpi(28);
}

int ChoiceWidth() {
  return ScaleByDpi(92);
}

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
  for (const BarCommand& command : commands) {
    m_buttons.push_back(std::make_unique<WithTip<CButton>>(m_tips));
    if (!AddButton(*m_buttons.back(), command.text, command.tip, command.id)) {
      return FALSE;
    }
    m_widths.push_back(WidthOf(command.text));
  }
  if (!AddButton(m_more, L"\u00BB", L"More commands", kMoreId) ||
      !m_label.Create(kLabel, WS_CHILD | WS_VISIBLE, CRect(), this, kExaggerationId + 1) ||
      !m_exaggeration.Create(CBS_DROPDOWNLIST | WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), this,
                             kExaggerationId)) {
    return FALSE;
  }
  m_more.SetAccessibleName(L"More commands");
  m_exaggeration.SetAccessibleName(L"Vertical exaggeration");
  m_tips.AddTool(&m_exaggeration, L"How much longer levels are drawn than chainages (Ctrl+E: any value)");
  FillExaggerations(0.0);
  Arrange();
  return TRUE;
}

BOOL CommandBar::AddButton(CButton& button, const wchar_t* text, const wchar_t* tip, UINT id) {
  const BOOL made = button.Create(text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(), this, id);
  if (made != FALSE) {
    m_tips.AddTool(&button, tip);
  }
  return made;
}

/// How many buttons have room in a width: all, or as many as leave room for the button with the menu.
std::size_t CommandBar::CountWithRoom(int width) const {
  const int all =
      std::accumulate(m_widths.begin(), m_widths.end(), 0) + static_cast<int>(m_widths.size()) * Gap();
  if (all <= width) {
    return m_widths.size();
  }
  std::size_t count = 0;
  for (int left = width - MoreWidth() - Gap(); count < m_widths.size(); ++count) {
    left -= m_widths[count] + Gap();
    if (left < 0) {
      break;
    }
  }
  return count;
}

/// From the left: the buttons, that with the menu of the others, the label if it has room, the choice.
void CommandBar::Arrange() {
  const int height = Height() - 2 * Gap();
  const int width = GetClientRectangle().Width() - Gap();
  const int choice = ChoiceWidth() + 3 * Gap();
  const int label = WidthOf(kLabel) - 2 * Gap();
  const bool hasChoice = width >= MoreWidth() + 2 * Gap() + choice;
  m_shown = CountWithRoom(width - (hasChoice ? choice : 0));
  int left = Gap();
  const auto place = [&left, height](CWnd& control, int wide, bool shown) {
    control.ShowWindow(shown ? SW_SHOW : SW_HIDE);
    if (shown) {
      control.MoveWindow(CRect(CPoint(left, Gap()), CSize(wide, height)));
      left += wide + Gap();
    }
  };
  for (std::size_t i = 0; i < m_buttons.size(); ++i) {
    place(*m_buttons[i], m_widths[i], i < m_shown);
  }
  place(m_more, MoreWidth(), m_shown < m_buttons.size());
  left += 2 * Gap();
  const bool hasLabel = hasChoice && left + label + choice <= width;
  m_label.ShowWindow(hasLabel ? SW_SHOW : SW_HIDE);
  if (hasLabel) {
    const int down = (height - ScaleByDpi(16)) / 2;
    m_label.MoveWindow(CRect(CPoint(left, Gap() + down), CSize(label, height - down)));
    left += label;
  }
  place(m_exaggeration, ChoiceWidth(), hasChoice);
}

void CommandBar::FillMore(CMenu& menu) const {
  for (std::size_t i = m_shown; i < m_buttons.size(); ++i) {
    menu.AppendMenu(MF_STRING | (m_buttons[i]->IsWindowEnabled() != FALSE ? MF_ENABLED : MF_GRAYED),
                    static_cast<UINT>(m_buttons[i]->GetDlgCtrlID()), m_buttons[i]->GetWindowTextString());
  }
}

CPoint CommandBar::MenuPlace(UINT id) const {
  const CWnd* button = GetDlgItem(static_cast<int>(id));
  CRect rect;
  (button != nullptr && button->IsWindowVisible() != FALSE ? *button : m_more).GetWindowRect(&rect);
  return {rect.left, rect.bottom};
}

void CommandBar::OpenMore() {
  CMenu menu;
  menu.CreatePopupMenu();
  FillMore(menu);
  const CPoint at = MenuPlace(kMoreId);
  if (const int chosen = menu.TrackPopupMenu(TPM_RETURNCMD, at.x, at.y, this); chosen > 0) {
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(chosen, BN_CLICKED));
  }
}

/// The fixed exaggerations, in their place one that is none of them, and the entry that asks.
void CommandBar::FillExaggerations(double extra) {
  m_times.assign(kExaggerations.begin(), kExaggerations.end());
  if (extra > 0.0 && std::find(m_times.begin(), m_times.end(), extra) == m_times.end()) {
    m_times.insert(std::lower_bound(m_times.begin(), m_times.end(), extra), extra);
  }
  m_times.push_back(0.0);
  m_exaggeration.ResetContent();
  const coregui::NumberFormat format(coregui::NumberFormat::Kind::real, L"%.6g");
  for (const double times : m_times) {
    m_exaggeration.AddString(times > 0.0 ? format.Text(times) : CString(L"Other..."));
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
  stops.push_back(&m_more);
  stops.push_back(&m_exaggeration);
  std::erase_if(stops, [](const CWnd* stop) {
    return stop->IsWindowEnabled() == FALSE || stop->IsWindowVisible() == FALSE;
  });
  return stops;
}

const coregui::MessageTable& CommandBar::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&CommandBar::HandlePaint)
                                                 .On<WM_SIZE>(&CommandBar::HandleSize)
                                                 .OnMessage(WM_COMMAND, &CommandBar::HandleCommand);
  return table;
}

void CommandBar::HandlePaint() {
  CPaintDC dc(this);
  const CRect rect = GetClientRectangle();
  dc.FillSolidRect(rect, GetSysColor(COLOR_BTNFACE));
  dc.FillSolidRect(CRect(rect.left, rect.bottom - 1, rect.right, rect.bottom), GetSysColor(COLOR_BTNSHADOW));
}

void CommandBar::HandleSize(UINT /*type*/, int /*width*/, int /*height*/) {
  Arrange();
}

LRESULT CommandBar::HandleCommand(WPARAM wParam, LPARAM lParam) {
  if (LOWORD(wParam) == kMoreId) {
    OpenMore();
    return 0;
  }
  return GetParent() == nullptr ? 0 : GetParent()->SendMessage(WM_COMMAND, wParam, lParam);
}

}  // namespace desk
