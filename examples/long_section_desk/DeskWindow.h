#pragma once

#include <atomic>
#include <functional>
#include <string>

#include "CommandBar.h"
#include "DeskLayout.h"
#include "DifferenceView.h"
#include "Disposal.h"
#include "PrintChoice.h"
#include "SectionData.h"
#include "SectionMaker.h"
#include "SectionView.h"
#include "Splitter.h"
#include "StatusLine.h"
#include "SurveyGrid.h"
#include "SurveyLock.h"
#include "SurveyReader.h"
#include "TableFinder.h"
#include "coregui/coregui.h"

namespace desk {

/// The desk's window: the survey's table at the left, its long-section at the right with the difference of
/// the levels below it, and a line that says what was read or what the pointer shows.
///
/// The survey that is open is locked for other programs (SurveyLock). What goes wrong is told in a box; an
/// unattended desk, which serves a script, shows none: it says it in the status output, and locks nothing.
class DeskWindow : public CWnd, private SurveySink {
 public:
  static constexpr UINT kGridId = 101;

  DeskWindow();
  /// Creates the window, hidden, with a client area of the size.
  BOOL CreateDesk(CSize size);
  /// No boxes, no locks, nothing remembered from now on.
  void SetUnattended() { m_unattended = true; }
  /// Takes the place and the shares of the run before, and shows the window.
  void ShowAsBefore();
  /// Reads a survey into the table. False when nothing could be read; then the reason is told and the table
  /// shows what it showed before.
  bool Open(const std::wstring& path);
  /// Copies the survey's file. False, with the reason told, when it could not be copied.
  bool SaveCopy(const std::wstring& path);
  /// Prints the long-section. False, with nothing told, when it cannot be printed so or the file cannot be
  /// written.
  bool PrintToPdf(const std::wstring& path, const PrintChoice& choice = PrintChoice());
  /// Makes the station nearest to a chainage the current one, in the table and in the section.
  void GoToChainage(double chainage);
  /// Sorts the table by a column.
  void Sort(int col, bool downwards);
  /// Goes to the next cell with a text; tells when there is none.
  void Find(const CString& text);

  const SurveyReport& Report() const { return m_report; }
  SurveyGrid& Grid() { return m_grid; }
  SectionView& Section() { return m_section; }
  const SectionData& Data() const { return m_data; }
  DifferenceView& Difference() { return m_difference; }
  const SurveyLock& Lock() const { return m_lock; }
  const std::wstring& StatusText() const { return m_status.Text(); }
  const std::wstring& StateText() const { return m_status.StateText(); }

 protected:
  const coregui::MessageTable& GetMessageTable() const override;
  BOOL PreTranslateMessage(MSG* message) override;

 private:
  enum Modifiers : unsigned { kPlain = 0, kControl = 1, kShift = 2, kAlt = 4 };
  /// What a command works on: without it, the command is not available.
  enum class Needs { nothing, survey, section };
  /// What a key or a button of the bar does.
  struct Command {
    UINT id;
    UINT key;
    unsigned modifiers;
    Needs needs;
    const wchar_t* text;  ///< of the button; null: a key alone
    const wchar_t* tip;
    void (DeskWindow::*run)();
  };
  static const Command kCommands[];
  bool IsAvailable(const Command& command) const;
  void Run(const Command& command);
  void EnableCommands();

  // The survey
  void Begin(const CsvDialect& dialect) override;
  void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) override;
  bool Progress(double part) override;
  SectionData Read(const std::wstring& path);
  /// What the window and a thread that works beside it tell each other.
  struct Beside {
    std::atomic<bool> stop = false;   ///< the work is to stop
    std::atomic<bool> close = false;  ///< and the window to close after it
    std::atomic<int> percent = -1;    ///< that are done; -1 when nobody knows
  };
  using Work = std::function<void(Beside& beside)>;
  class AtWork;
  bool TakesAWhile(long rows) const;
  void WorkBeside(const std::wstring& what, const std::wstring& escape, long rows, const Work& work);
  bool SortCells(CGridMem& cells, int column, bool downwards);
  void TakeSortedSection(CGridMem& cells);
  void EnablePanes(bool on);
  void Tell(const std::wstring& text);
  void ShowTitle();
  void ShowSection(SectionData data);

  // Table and section follow each other
  static void OnSectionEvent(PNT_2D_record const& position, EVENT_TYPE event, char keyFlags, char key,
                             CWnd* parent);
  static void OnDifferenceEvent(PNT_2D_record const& position, EVENT_TYPE event, char keyFlags, char key,
                                CWnd* parent);
  void FollowPointer(double chainage, const double* level);
  void FollowRow(long row);
  void Step(StationStep step);
  void GoToPoint(long point);
  void MarkChainage(double chainage);
  void ShowStation(long point, const double* pointerLevel);

  // Commands
  void OpenWithDialog();
  void OpenRecent();
  void ReadAgain();
  void SaveCopyWithDialog();
  void PrintWithDialog();
  void FindWithDialog() { m_finder.OpenDialog(this); }
  void FindOn() { FindAgain(false); }
  void FindBack() { FindAgain(true); }
  void FindAgain(bool back);
  class Searching;
  void TellFound(TableFinder::Result result);
  void AskChainage();
  void Fit() { m_section.Redraw(); }
  void LookBack() { Look(true); }
  void LookForward() { Look(false); }
  void Look(bool back);
  void AskExaggeration();
  void CopyCells() { m_grid.CopySelected(); }
  void OpenTableMenu() { m_grid.OpenMenuAtCurrent(); }
  void NextPane();
  void ShowHelp();
  void QuitCommand() { PostMessage(WM_CLOSE); }
  void TakeExaggeration();

  // The window
  void ArrangePanes();
  void MoveFocus(bool forward);
  void HandlePaint();
  void HandleSize(UINT type, int width, int height);
  void HandleSetFocus(CWnd* other);
  void HandleClose();
  LRESULT HandleColours(WPARAM wParam, LPARAM lParam);
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);
  LRESULT HandleFind(WPARAM wParam, LPARAM lParam);
  LRESULT HandleDrop(WPARAM wParam, LPARAM lParam);

  SectionData m_data;  ///< the views draw from it, so it outlives them
  CommandBar m_commands;
  SurveyGrid m_grid;
  SectionView m_section;
  DifferenceView m_difference;
  Splitter m_bar;
  Splitter m_plotBar;
  StatusLine m_status;
  TableFinder m_finder;
  DeskLayout m_layout;
  SurveyLock m_lock;
  std::wstring m_path;     ///< of the survey shown; empty when none is
  std::wstring m_opening;  ///< name of the file that is being read
  SurveyReport m_report;   ///< of the file tried last
  Disposal m_disposal;     ///< frees the cells and the sections of surveys that are shown no more
  SectionMaker m_maker;    ///< gathers the section of the file that is being read
  CRect m_placeBefore;     ///< of the window when it was last not maximised
  bool m_maximised = false;
  bool m_unattended = false;
  bool m_following = false;   ///< table and section follow each other; not in circles
  bool m_working = false;     ///< something takes a while, with the windows kept alive
  bool m_stop = false;        ///< that is to stop
  bool m_closeAfter = false;  ///< and the window to close
  bool m_searching = false;   ///< what takes a while is a search
  bool m_findAfter = false;   ///< it is to stop for another one
};

}  // namespace desk
