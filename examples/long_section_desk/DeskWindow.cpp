#include "DeskWindow.h"

#include <algorithm>
#include <cmath>

namespace desk {

namespace {

constexpr wchar_t kDeskName[] = L"Long-section desk";
enum : UINT { kBarId = 103, kPlotBarId = 104, kSectionId = 105, kDifferenceId = 106 };

std::wstring FileName(const std::wstring& path) {
  return coreExtractFileName(path.c_str());
}

}  // namespace

const DeskWindow::Command DeskWindow::kCommands[] = {
    {110, 'O', true, L"&Open...", &DeskWindow::OpenWithDialog},
    {111, 'P', true, L"&Print to PDF...", &DeskWindow::PrintWithDialog},
    {112, VK_F2, false, L"&Fit", &DeskWindow::Fit},
    {113, VK_F3, false, L"&Back", &DeskWindow::LookBack},
    {114, VK_F4, false, L"For&ward", &DeskWindow::LookForward},
    {115, 'C', true, nullptr, &DeskWindow::CopyCells},
    {116, 'Q', true, nullptr, &DeskWindow::QuitCommand},
};

DeskWindow::DeskWindow()
    : m_section(this),
      m_difference(this),
      m_bar(true,
            [this](int by) {
              m_layout.MoveBar(by);
              ArrangePanes();
            }),
      m_plotBar(false, [this](int by) {
        m_layout.MovePlotBar(by);
        ArrangePanes();
      }) {}

BOOL DeskWindow::CreateDesk(CSize size) {
  const CRect rect(CPoint(80, 60), size);
  if (!Create(L"LongSectionDesk", kDeskName, WS_OVERLAPPEDWINDOW, rect, nullptr, 0)) {
    return FALSE;
  }
  const CRect client = GetClientRectangle();
  std::vector<BarCommand> buttons;
  for (const Command& command : kCommands) {
    if (command.text != nullptr) {
      buttons.push_back({command.id, command.text});
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
  m_grid.SetOrderHook([this] { m_data = TakeSection(m_grid); });
  m_section.SetFuncHook(&DeskWindow::OnViewEvent);
  m_section.SetSlaveView(&m_difference);
  m_layout.hasPlots = false;
  ArrangePanes();
  m_status.Show(L"Open a survey with Ctrl+O.");
  return TRUE;
}

bool DeskWindow::Open(const std::wstring& path) {
  m_opening = FileName(path);
  m_report = ReadSurvey(path, *this);
  if (!m_report.error.empty()) {
    m_status.Show(path + L": " + m_report.error, true);
    ShowTitle();
    return false;
  }
  m_path = path;
  m_grid.EndTable(m_report.rows);
  ShowSection();
  m_status.Show(m_opening + L": " + m_report.Summary(), m_report.HasOddities());
  ShowTitle();
  return true;
}

void DeskWindow::ShowSection() {
  m_data = TakeSection(m_grid);
  m_layout.hasPlots = !m_data.IsEmpty();
  m_layout.hasDifference = !m_data.difference.empty();
  for (CWnd* pane : std::initializer_list<CWnd*>{&m_bar, &m_section}) {
    pane->ShowWindow(m_layout.hasPlots ? SW_SHOW : SW_HIDE);
  }
  for (CWnd* pane : std::initializer_list<CWnd*>{&m_plotBar, &m_difference}) {
    pane->ShowWindow(m_layout.hasPlots && m_layout.hasDifference ? SW_SHOW : SW_HIDE);
  }
  ArrangePanes();
  m_section.SetTitle(FileName(m_path).c_str());
  if (m_layout.hasPlots) {
    m_section.SetDecimals(m_grid.Dialect().decimals[static_cast<std::size_t>(m_data.columns.chainage)],
                          m_grid.Dialect().decimals[static_cast<std::size_t>(m_data.columns.ground)]);
  }
  m_difference.Show(m_data);
  m_section.Show(m_data);
  m_difference.FitAgain(m_section);
  m_commands.ShowExaggeration(m_section.GetExaggeration());
  for (const UINT id : {111U, 112U, 113U, 114U, CommandBar::kExaggerationId}) {
    m_commands.EnableCommand(id, m_layout.hasPlots);
  }
  FollowRow(m_grid.GetCurrentRow());
}

void DeskWindow::ShowTitle() {
  std::wstring title = kDeskName;
  if (!m_report.error.empty()) {
    title = m_opening + L" (not read) - " + title;
  } else if (!m_path.empty()) {
    title = FileName(m_path) + L" (" + m_report.RowsText() + L") - " + title;
  }
  SetWindowText(title.c_str());
}

void DeskWindow::Begin(const CsvDialect& dialect) {
  m_grid.BeginTable(dialect);
}

void DeskWindow::Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) {
  m_grid.StoreRow(row, fields);
}

bool DeskWindow::Progress(double part) {
  m_status.Show(L"Reading " + m_opening + L" " + std::to_wstring(static_cast<int>(part * 100.0)) + L" %");
  return true;
}

void DeskWindow::OnViewEvent(PNT_2D_record const& position, EVENT_TYPE event, char /*keyFlags*/, char /*key*/,
                             CWnd* parent) {
  auto* self = dynamic_cast<DeskWindow*>(parent);
  if (self != nullptr && (event == EVENT_MOVE || event == EVENT_LBUTTON_DOWN)) {
    self->FollowPointer(position);
  }
}

/// The row nearest to the pointer becomes the table's current one, and the status line reads it out.
void DeskWindow::FollowPointer(PNT_2D_record const& position) {
  const long point = m_data.NearestPoint(position.x);
  if (point < 0 || m_following) {
    return;
  }
  const auto index = static_cast<std::size_t>(point);
  m_following = true;
  m_grid.GotoRow(m_data.rows[index]);
  m_following = false;
  MarkChainage(m_data.ground[index].x);
  CString text = CString(L"Station ") +
                 coregui::FormatPlotNumber(m_data.ground[index].x, 0.001, PlotNumberFormat::chainage, 3);
  const auto append = [&text](const wchar_t* name, double value) {
    if (std::isfinite(value)) {
      text += CString::Formatted(L"   %s %.3f", name, value);
    }
  };
  append(L"ground", m_data.ground[index].y);
  if (!m_data.design.empty()) {
    append(L"design", m_data.design[index].y);
    const double difference = m_data.difference[index].y;
    append(difference < 0.0 ? L"fill" : L"cut", std::abs(difference));
  }
  append(L"pointer at level", position.y);
  m_status.Show(text.Str());
}

void DeskWindow::FollowRow(long row) {
  double chainage = 0.0;
  if (!m_following && m_layout.hasPlots && m_grid.NumberAt(m_data.columns.chainage, row, chainage)) {
    MarkChainage(chainage);
  }
}

void DeskWindow::MarkChainage(double chainage) {
  m_section.Mark(chainage);
  m_difference.Mark(chainage);
}

bool DeskWindow::PrintToPdf(const std::wstring& path) {
  PrintPage page;
  page.width = 420.0;
  page.height = 297.0;
  CPrinterDC dc(PrintOutput::pdf, path.c_str(), page);
  if (!m_section.HasData() || !dc.StartDoc(FileName(m_path).c_str()) || !dc.StartPage()) {
    return false;
  }
  m_section.PrintPage(dc);
  return dc.EndPage() && dc.EndDoc();
}

void DeskWindow::OpenWithDialog() {
  CFileDialog dialog(TRUE, nullptr, m_path.c_str(), OFN_FILEMUSTEXIST,
                     L"Tables (*.csv *.txt)|*.csv;*.txt|All files|*||", this);
  dialog.SetTitle(L"Open a survey");
  if (dialog.DoModal() == IDOK) {
    Open(dialog.GetPathName().Str());
  }
}

void DeskWindow::PrintWithDialog() {
  const std::wstring proposal = coreChangeFileExt(m_path.c_str(), L"pdf");
  CFileDialog dialog(FALSE, L"pdf", proposal.c_str(), OFN_OVERWRITEPROMPT, L"PDF (*.pdf)|*.pdf||", this);
  dialog.SetTitle(L"Print to PDF");
  if (dialog.DoModal() == IDOK) {
    const bool done = PrintToPdf(dialog.GetPathName().Str());
    m_status.Show(dialog.GetPathName().Str() + (done ? L" is written." : L" could not be written."), !done);
  }
}

const coregui::MessageTable& DeskWindow::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .On<WM_SIZE>(&DeskWindow::HandleSize)
                                                 .On<WM_SETFOCUS>(&DeskWindow::HandleSetFocus)
                                                 .On<WM_CLOSE>(&DeskWindow::HandleClose)
                                                 .OnMessage(WM_COMMAND, &DeskWindow::HandleCommand)
                                                 .OnMessage(WM_THEMECHANGED, &DeskWindow::HandleColours);
  return table;
}

BOOL DeskWindow::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    for (const Command& command : kCommands) {
      if (command.key == message->wParam && command.withControl == control) {
        (this->*command.run)();
        return TRUE;
      }
    }
  }
  return CWnd::PreTranslateMessage(message);
}

void DeskWindow::ArrangePanes() {
  if (!m_status.HasWindow() || !m_difference.HasWindow()) {
    return;
  }
  m_layout.Arrange(GetClientRectangle().Size(), CommandBar::Height(), StatusLine::Height(),
                   Splitter::Thickness());
  m_commands.MoveWindow(m_layout.commands);
  m_grid.MoveWindow(m_layout.grid);
  m_status.MoveWindow(m_layout.status);
  if (m_layout.hasPlots) {
    m_bar.MoveWindow(m_layout.bar);
    m_plotBar.MoveWindow(m_layout.plotBar);
    m_section.MoveWindow(m_layout.section);
    m_difference.MoveWindow(m_layout.difference);
    m_section.FitAgain();
    m_difference.FitAgain(m_section);
  }
}

LRESULT DeskWindow::HandleCommand(WPARAM wParam, LPARAM /*lParam*/) {
  const UINT id = LOWORD(wParam);
  if (id == CommandBar::kExaggerationId && HIWORD(wParam) == CBN_SELCHANGE) {
    TakeExaggeration();
    return 0;
  }
  for (const Command& command : kCommands) {
    if (command.id == id && HIWORD(wParam) == BN_CLICKED) {
      (this->*command.run)();
      return 0;
    }
  }
  return 0;
}

void DeskWindow::TakeExaggeration() {
  if (const double times = m_commands.GetExaggeration(); times > 0.0) {
    m_section.SetExaggeration(times);
  }
}

void DeskWindow::HandleSize(UINT /*type*/, int /*width*/, int /*height*/) {
  ArrangePanes();
}

LRESULT DeskWindow::HandleColours(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  m_section.FitAgain();
  m_difference.FitAgain(m_section);
  return 0;
}

void DeskWindow::HandleSetFocus(CWnd* /*other*/) {
  if (CWnd* body = m_grid.GetGridWnd()) {
    body->SetFocus();
  }
}

void DeskWindow::HandleClose() {
  DestroyWindow();
}

}  // namespace desk
