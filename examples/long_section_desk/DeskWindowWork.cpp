#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <future>
#include <optional>
#include <utility>

#include "DeskHelp.h"
#include "DeskMemory.h"
#include "DeskWindow.h"
#include "FilePath.h"
#include "WaitCursor.h"

// What takes the desk a while: reading, making the section, sorting. The windows are kept alive meanwhile.

namespace desk {

namespace {

/// The same file from wherever it is opened again.
std::wstring WholePath(const std::wstring& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(ToPath(path), error);
  return error || path.empty() ? path : FromPath(whole.lexically_normal());
}

}  // namespace

/// Shows that the desk is at work, from its making to its end: the wait cursor, and panes that take nothing.
class DeskWindow::AtWork {
 public:
  explicit AtWork(DeskWindow& desk) : m_desk(desk), m_focus(GetFocus()) {
    m_desk.m_working = true;
    m_desk.m_stop = m_desk.m_closeAfter = false;
    m_desk.SetFocus();  // for Esc: disabled panes get no keys
    m_desk.EnablePanes(false);
  }
  ~AtWork() {
    m_desk.m_working = false;
    m_desk.EnablePanes(true);
    CWnd* focus = m_focus.Get();
    (focus != nullptr && m_desk.IsChild(focus) ? focus : &m_desk)->SetFocus();
  }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;

 private:
  WaitCursor m_wait;
  DeskWindow& m_desk;
  coregui::WindowRef m_focus;
};

bool DeskWindow::Open(const std::wstring& path) {
  if (m_working) {
    return false;
  }
  const std::wstring whole = WholePath(path);
  m_opening = coreExtractFileName(whole.c_str());
  m_report = SurveyReport();
  m_report.error = SurveyFault(whole);
  SectionData data;
  SurveyLock lock;
  // A file that is read again keeps its lock; another one gets it only when it can be shown.
  const bool sameLock = m_lock.IsFor(whole);
  if (m_report.error.empty()) {
    SurveyLock& taken = sameLock ? m_lock : lock;
    m_unattended ? taken.Look(whole) : taken.Take(whole, this);
    data = Read(whole);
  }
  if (m_closeAfter) {
    PostMessage(WM_CLOSE);  // what was read is not shown any more
    return false;
  }
  if (!m_report.error.empty()) {
    if (m_path.empty()) {
      SetWindowText((m_opening + L" (not read) - " + kDeskName).c_str());
    }
    Tell(whole + L": " + m_report.error);
    return false;
  }
  m_path = whole;
  if (!sameLock) {
    m_lock = std::move(lock);
  }
  const bool leftOut = m_stop && data.IsEmpty();
  ShowSection(std::move(data));
  m_status.Show(m_opening + L": " + m_report.Summary() + (leftOut ? L"; the section was left out" : L""),
                m_report.HasOddities() || leftOut);
  m_status.ShowState(m_lock.Text());
  ShowTitle();
  if (!m_unattended) {
    KeepSurvey(whole);
  }
  return true;
}

/// Reads a survey into the table and gives its section. The windows are kept alive meanwhile: Esc and the
/// close button stop the reading, or leave out the section when all is read.
SectionData DeskWindow::Read(const std::wstring& path) {
  const AtWork atWork(*this);
  m_report = ReadSurvey(path, *this);
  SectionData data;
  if (m_report.error.empty() && !m_closeAfter) {
    m_grid.EndTable(m_report.rows);
    const auto rows = static_cast<long>(m_report.rows);
    m_stop = false;  // Esc has had the reading stopped; what was read is shown
    // Of millions of rows the section takes a while, even of what was gathered.
    WorkBeside(L"Showing " + m_report.RowsText() + L" of " + m_opening, L" (Esc leaves out the section)",
               rows, [&](const Beside& beside) { data = m_maker.Make(rows, beside.stop); });
  }
  return data;
}

bool DeskWindow::TakesAWhile(long rows) const {
  constexpr long many = 50'000;
  return rows >= many && !m_unattended;
}

/// Does work on the rows of a table. Of many rows it takes a while: a thread does it, and the windows are
/// kept alive until it is done; the status line says `what` is done, how far it is, and what the key `escape`
/// does. Nothing else may touch what it works on.
void DeskWindow::WorkBeside(const std::wstring& what, const std::wstring& escape, long rows,
                            const Work& work) {
  constexpr std::chrono::milliseconds shortly(5);
  Beside beside;
  if (!TakesAWhile(rows)) {
    work(beside);
    return;
  }
  m_status.Show(what + escape);
  int shown = -1;
  const auto live = [&] {
    m_stop = !CWinApp::PumpPending() || m_stop;  // lets Esc and the close button stop it
    beside.stop = m_stop;
    beside.close = m_closeAfter;
    if (const int percent = beside.percent; percent != std::exchange(shown, percent)) {
      m_status.Show(what + L", " + std::to_wstring(percent) + L" %" + escape);
    }
  };
  live();
  auto working = std::async(std::launch::async, [&work, &beside] { work(beside); });
  while (working.wait_for(shortly) != std::future_status::ready) {
    live();
  }
  working.get();
}

/// False when it was stopped; the rows are as they were then.
bool DeskWindow::SortCells(CGridMem& cells, int column, bool downwards) {
  bool stopped = false;
  WorkBeside(L"Sorting by " + m_grid.Dialect().headings[static_cast<std::size_t>(column)], L" (Esc stops)",
             m_grid.GetNumberRows(), [&](Beside& beside) {
               cells.SetWatch([&](double part) {
                 beside.percent = static_cast<int>(part * 100.0);
                 stopped = beside.stop;
                 return !stopped;
               });
               cells.SortBy(column, downwards ? coregui::SORT_DESCENDING : 0);
               cells.SetWatch(nullptr);
             });
  return !stopped;
}

/// The section of rows in a new order.
void DeskWindow::TakeSortedSection(CGridMem& cells) {
  const long rows = m_grid.GetNumberRows();
  const SectionColumns columns = m_data.columns;
  SectionData section;
  WorkBeside(L"Showing the rows in their new order", {}, rows,
             [&](const Beside& beside) { section = TakeSection(cells, rows, columns, beside.close); });
  m_disposal.Take(std::exchange(m_data, std::move(section)));
}

void DeskWindow::Sort(int col, bool downwards) {
  if (m_working) {
    return;
  }
  std::optional<AtWork> atWork;
  if (TakesAWhile(m_grid.GetNumberRows())) {
    atWork.emplace(*this);  // while the table can still paint that it lost the focus
  }
  std::unique_ptr<CGridMem> cells = m_grid.LendCells();
  const bool sorted = SortCells(*cells, m_grid.GetColTranslation(col), downwards);
  const bool hasSection = !m_data.IsEmpty();
  if (sorted && hasSection) {
    TakeSortedSection(*cells);
  }
  m_grid.GiveCells(std::move(cells));
  atWork.reset();
  if (hasSection) {
    m_section.Invalidate(FALSE);
    m_difference.Invalidate(FALSE);
    FollowRow(m_grid.GetCurrentRow());
  }
  if (!sorted) {
    m_status.Show(L"The sorting was stopped; the rows are as they were.");
  }
  if (std::exchange(m_closeAfter, false)) {
    PostMessage(WM_CLOSE);
  }
}

void DeskWindow::EnablePanes(bool on) {
  for (CWnd* pane :
       std::initializer_list<CWnd*>{&m_commands, &m_grid, &m_section, &m_difference, &m_bar, &m_plotBar}) {
    pane->EnableWindow(on);
  }
  DragAcceptFiles(GetSafeHwnd(), on);
}

void DeskWindow::Begin(const CsvDialect& dialect) {
  // The section goes with its table, before the next one takes its room.
  SectionData section = std::exchange(m_data, SectionData());
  m_section.Invalidate();
  m_difference.Invalidate();
  m_disposal.Take(std::pair(std::move(section), m_grid.BeginTable(dialect)));
  m_maker.Begin(FindSectionColumns(dialect.headings, dialect.numeric));
  SetWindowText((m_opening + L" - " + kDeskName).c_str());
}

void DeskWindow::Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) {
  m_grid.StoreRow(row, fields);
  m_maker.Add(static_cast<long>(row), m_grid.StoredNumbers());
}

bool DeskWindow::Progress(double part) {
  m_grid.ShowBeginning();
  m_status.Show(L"Reading " + m_opening + L", " + std::to_wstring(static_cast<int>(part * 100.0)) +
                L" % (Esc stops)");
  return (m_unattended || CWinApp::PumpPending()) && !m_stop;
}

/// One survey at a time: the first of several files.
LRESULT DeskWindow::HandleDrop(WPARAM wParam, LPARAM /*lParam*/) {
  const auto* drop = reinterpret_cast<HDROP>(wParam);
  const UINT count = DragQueryFile(drop, DRAG_COUNT, nullptr, 0);
  std::wstring path(DragQueryFile(drop, 0, nullptr, 0), L' ');
  DragQueryFile(drop, 0, path.data(), static_cast<UINT>(path.size()) + 1);
  DragFinish(drop);
  SetActiveWindow();
  if (Open(path) && count > 1) {
    m_status.Show(m_status.Text() + L"; of " + std::to_wstring(count) + L" files the first is open", true);
  }
  return 0;
}

void DeskWindow::ShowTitle() {
  std::wstring title = kDeskName;
  if (!m_path.empty()) {
    const bool readOnly =
        m_lock.GetState() == SurveyLock::State::others || m_lock.GetState() == SurveyLock::State::unavailable;
    title = std::wstring(coreExtractFileName(m_path.c_str())) + L" (" + m_report.RowsText() +
            (readOnly ? L", read-only" : L"") + L") - " + title;
  }
  SetWindowText(title.c_str());
}

}  // namespace desk
