#include "DeskWindow.h"

#include "DeskMemory.h"

// The window itself: its panes, keys and commands. What it does with files stands in DeskWindowFiles.cpp, how
// table and section follow each other in DeskWindowPlots.cpp.

namespace desk {

namespace {

enum : UINT { kBarId = 103, kPlotBarId = 104, kSectionId = 105, kDifferenceId = 106 };

/// Around the panes, where the one with the focus gets a frame.
int FrameWidth() {
  return ScaleByDpi(2);
}

CRect Inside(CRect pane) {
  if (pane.Width() > 2 * FrameWidth() && pane.Height() > 2 * FrameWidth()) {
    pane.DeflateRect(FrameWidth(), FrameWidth());
  }
  return pane;
}

UINT FindMessage() {
  return RegisterWindowMessage(FINDMSGSTRING);
}

}  // namespace

const DeskWindow::Command DeskWindow::kCommands[] = {
    {110, 'O', kControl, Needs::nothing, L"&Open...", L"Open a survey (Ctrl+O)", &DeskWindow::OpenWithDialog},
    {111, 0, kPlain, Needs::nothing, L"&Recent", L"Open one of the last surveys", &DeskWindow::OpenRecent},
    {112, VK_F5, kPlain, Needs::survey, nullptr, nullptr, &DeskWindow::ReadAgain},
    {113, 'S', kControl | kShift, Needs::survey, L"Save a &copy...",
     L"Copy the survey's file as a backup (Ctrl+Shift+S)", &DeskWindow::SaveCopyWithDialog},
    {114, 'P', kControl, Needs::section, L"&Print...",
     L"Print the section to PDF, to scale or on one page (Ctrl+P)", &DeskWindow::PrintWithDialog},
    {115, 'F', kControl, Needs::survey, L"Fi&nd...", L"Find a text in the table (Ctrl+F, again F3)",
     &DeskWindow::FindWithDialog},
    {116, VK_F3, kPlain, Needs::survey, nullptr, nullptr, &DeskWindow::FindOn},
    {117, VK_F3, kShift, Needs::survey, nullptr, nullptr, &DeskWindow::FindBack},
    {118, 'G', kControl, Needs::section, L"&Go to...", L"Go to a chainage (Ctrl+G)",
     &DeskWindow::AskChainage},
    {119, VK_F4, kPlain, Needs::section, L"&Fit", L"Show the whole section (F4)", &DeskWindow::Fit},
    {120, VK_LEFT, kAlt, Needs::section, L"&Back", L"The view before (Alt+Left)", &DeskWindow::LookBack},
    {121, VK_RIGHT, kAlt, Needs::section, L"For&ward", L"The view after (Alt+Right)",
     &DeskWindow::LookForward},
    {122, 'E', kControl, Needs::section, nullptr, nullptr, &DeskWindow::AskExaggeration},
    {123, VK_F1, kPlain, Needs::nothing, L"&Help", L"Keys and mouse (F1)", &DeskWindow::ShowHelp},
    {124, 'C', kControl, Needs::survey, nullptr, nullptr, &DeskWindow::CopyCells},
    {127, VK_APPS, kPlain, Needs::survey, nullptr, nullptr, &DeskWindow::OpenTableMenu},
    {128, VK_F10, kShift, Needs::survey, nullptr, nullptr, &DeskWindow::OpenTableMenu},
    {125, VK_F6, kPlain, Needs::nothing, nullptr, nullptr, &DeskWindow::NextPane},
    {126, 'Q', kControl, Needs::nothing, nullptr, nullptr, &DeskWindow::QuitCommand},
};

DeskWindow::DeskWindow()
    : m_section(this),
      m_difference(this, m_section),
      m_bar(true,
            [this](int by) {
              m_layout.MoveBar(by);
              ArrangePanes();
            }),
      m_plotBar(false,
                [this](int by) {
                  m_layout.MovePlotBar(by);
                  ArrangePanes();
                }),
      m_finder(m_grid) {}

BOOL DeskWindow::CreateDesk(CSize size) {
  const CRect rect(CPoint(80, 60), size);
  if (!Create(L"LongSectionDesk", L"", WS_OVERLAPPEDWINDOW, rect, nullptr, 0)) {
    return FALSE;
  }
  const CRect client = GetClientRectangle();
  std::vector<BarCommand> buttons;
  for (const Command& command : kCommands) {
    if (command.text != nullptr) {
      buttons.push_back({command.id, command.text, command.tip});
    }
  }
  if (!m_commands.CreateBar(this, buttons) ||
      !m_grid.CreateGrid(WS_CHILD | WS_VISIBLE, client, this, kGridId) || !m_status.CreateLine(this) ||
      !m_bar.CreateBar(this, kBarId) || !m_plotBar.CreateBar(this, kPlotBarId) ||
      !m_section.Create(CRect(0, 0, 10, 10), this, kSectionId) ||
      !m_difference.Create(CRect(0, 0, 10, 10), this, kDifferenceId)) {
    return FALSE;
  }
  m_grid.SetAccessibleName(L"Survey table");
  m_section.SetAccessibleName(L"Long-section");
  m_difference.SetAccessibleName(L"Difference of ground and design");
  m_grid.SetRowHook([this](long row) { FollowRow(row); });
  m_grid.SetSortHook([this](int col, bool downwards) { Sort(col, downwards); });
  m_section.SetStepHook([this](StationStep step) { Step(step); });
  m_grid.SetFocusHook([this] { Invalidate(FALSE); });
  m_section.SetFocusHook([this] { Invalidate(FALSE); });
  m_section.SetFuncHook(&DeskWindow::OnSectionEvent);
  m_difference.SetFuncHook(&DeskWindow::OnDifferenceEvent);
  m_section.SetSlaveView(&m_difference);
  m_status.Show(L"Open a survey with Ctrl+O. F1 shows all keys.");
  ShowSection(SectionData());
  ShowTitle();
  DragAcceptFiles(GetSafeHwnd(), TRUE);
  return TRUE;
}

void DeskWindow::ShowAsBefore() {
  RecallShares(m_layout);
  const std::optional<DeskPlace> place = RecallPlace();
  if (place) {
    MoveWindow(place->rect);
    m_placeBefore = place->rect;
  }
  ArrangePanes();
  ShowWindow(place && place->maximised ? SW_SHOWMAXIMIZED : SW_SHOW);
}

const coregui::MessageTable& DeskWindow::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_PAINT>(&DeskWindow::HandlePaint)
                                                 .On<WM_SIZE>(&DeskWindow::HandleSize)
                                                 .On<WM_SETFOCUS>(&DeskWindow::HandleSetFocus)
                                                 .On<WM_CLOSE>(&DeskWindow::HandleClose)
                                                 .OnMessage(WM_COMMAND, &DeskWindow::HandleCommand)
                                                 .OnMessage(FindMessage(), &DeskWindow::HandleFind)
                                                 .OnMessage(WM_DROPFILES, &DeskWindow::HandleDrop)
                                                 .OnMessage(WM_THEMECHANGED, &DeskWindow::HandleColours);
  return table;
}

// --- Commands

void DeskWindow::EnableCommands() {
  for (const Command& command : kCommands) {
    m_commands.EnableCommand(command.id, IsAvailable(command));
  }
  m_commands.EnableCommand(CommandBar::kExaggerationId, m_layout.hasPlots);
}

bool DeskWindow::IsAvailable(const Command& command) const {
  return !m_working && (command.needs == Needs::nothing || !m_path.empty()) &&
         (command.needs != Needs::section || m_layout.hasPlots);
}

void DeskWindow::Run(const Command& command) {
  if (IsAvailable(command)) {
    (this->*command.run)();
  }
}

BOOL DeskWindow::PreTranslateMessage(MSG* message) {
  if (message->message != WM_KEYDOWN && message->message != WM_SYSKEYDOWN) {
    return CWnd::PreTranslateMessage(message);
  }
  if (m_working) {
    m_stop = m_stop || message->wParam == VK_ESCAPE;
    return TRUE;
  }
  const auto isDown = [](UINT key, unsigned flag) { return GetKeyState(key) < 0 ? flag : 0U; };
  const unsigned modifiers = isDown(VK_CONTROL, kControl) | isDown(VK_SHIFT, kShift) | isDown(VK_MENU, kAlt);
  if (message->wParam == VK_TAB && (modifiers & ~kShift) == 0 && m_grid.GetEditInProgress() == 0) {
    MoveFocus(modifiers == 0);
    return TRUE;
  }
  for (const Command& command : kCommands) {
    if (command.key != 0 && command.key == message->wParam && command.modifiers == modifiers) {
      Run(command);
      return TRUE;
    }
  }
  return CWnd::PreTranslateMessage(message);
}

LRESULT DeskWindow::HandleCommand(WPARAM wParam, LPARAM /*lParam*/) {
  const UINT id = LOWORD(wParam);
  if (id == CommandBar::kExaggerationId && HIWORD(wParam) == CBN_SELCHANGE) {
    TakeExaggeration();
    return 0;
  }
  for (const Command& command : kCommands) {
    if (command.id == id && HIWORD(wParam) == BN_CLICKED) {
      Run(command);
      return 0;
    }
  }
  return 0;
}

LRESULT DeskWindow::HandleFind(WPARAM /*wParam*/, LPARAM lParam) {
  const TableFinder::Wanted before = m_finder.What();
  const bool find = m_finder.TakeFromDialog(lParam);
  if (m_searching) {
    // Another text is looked for at once; without the dialog nothing is looked for any more.
    m_findAfter = find && (m_findAfter || m_finder.What() != before);
    m_stop = m_stop || m_findAfter || !find;
  } else if (find && !m_working) {
    FindAgain(false);
  }
  return 0;
}

// --- Panes

void DeskWindow::ArrangePanes() {
  if (!m_status.HasWindow() || !m_difference.HasWindow()) {
    return;
  }
  m_layout.Arrange(GetClientRectangle().Size(), CommandBar::Height(), StatusLine::Height(),
                   Splitter::Thickness());
  m_commands.MoveWindow(m_layout.commands);
  m_grid.MoveWindow(Inside(m_layout.grid));
  m_status.MoveWindow(m_layout.status);
  if (m_layout.hasPlots) {
    m_bar.MoveWindow(m_layout.bar);
    m_plotBar.MoveWindow(m_layout.plotBar);
    m_section.MoveWindow(Inside(m_layout.section));
    m_difference.MoveWindow(Inside(m_layout.difference));
    m_section.FitAgain();
    m_difference.FitAgain();
  }
  Invalidate(FALSE);
}

/// The panes cover all but the frames around them.
void DeskWindow::HandlePaint() {
  CPaintDC dc(this);
  dc.FillSolidRect(GetClientRectangle(), GetSysColor(COLOR_BTNFACE));
  const CWnd* focus = GetFocus();
  const CRect* pane = nullptr;
  if (focus != nullptr && m_grid.IsChild(focus)) {
    pane = &m_layout.grid;
  } else if (focus == &m_section) {
    pane = &m_layout.section;
  }
  if (pane != nullptr) {
    dc.FillSolidRect(*pane, GetSysColor(COLOR_HIGHLIGHT));
  }
}

/// Goes round the table, the section and the controls of the bar.
void DeskWindow::MoveFocus(bool forward) {
  std::vector<CWnd*> stops = {m_grid.GetGridWnd()};
  if (m_layout.hasPlots) {
    stops.push_back(&m_section);
  }
  for (CWnd* control : m_commands.Stops()) {
    stops.push_back(control);
  }
  const CWnd* focus = GetFocus();
  std::size_t at = 0;  // other parts of the table count as the table
  for (std::size_t i = 0; i < stops.size(); ++i) {
    at = stops[i] == focus ? i : at;
  }
  stops[(at + (forward ? 1 : stops.size() - 1)) % stops.size()]->SetFocus();
}

/// From the table to the section, from there to the bar, and back to the table.
void DeskWindow::NextPane() {
  const CWnd* focus = GetFocus();
  const std::vector<CWnd*> controls = m_commands.Stops();
  if (focus != nullptr && m_grid.IsChild(focus) && m_layout.hasPlots) {
    m_section.SetFocus();
  } else if (focus != nullptr && !m_commands.IsChild(focus) && !controls.empty()) {
    controls.front()->SetFocus();
  } else {
    SetFocus();
  }
}

void DeskWindow::HandleSize(UINT type, int /*width*/, int /*height*/) {
  m_maximised = type == SIZE_MAXIMIZED;
  if (type == SIZE_RESTORED) {
    GetWindowRect(&m_placeBefore);
  }
  ArrangePanes();
}

LRESULT DeskWindow::HandleColours(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  m_section.FitAgain();
  m_difference.FitAgain();
  Invalidate(FALSE);
  return 0;
}

void DeskWindow::HandleSetFocus(CWnd* /*other*/) {
  CWnd* body = m_grid.GetGridWnd();
  if (body != nullptr && body->IsWindowEnabled() != FALSE && !m_working) {
    body->SetFocus();
  }
}

void DeskWindow::HandleClose() {
  if (m_working) {
    m_stop = m_closeAfter = true;
    return;
  }
  if (!m_unattended) {
    CRect rect;
    GetWindowRect(&rect);
    KeepPlace({m_maximised && !m_placeBefore.IsRectEmpty() ? m_placeBefore : rect, m_maximised});
    KeepShares(m_layout);
  }
  m_finder.CloseDialog();
  m_lock.Release();
  DestroyWindow();
}

}  // namespace desk
