#pragma once

#include <string>

#include "CommandBar.h"
#include "DeskLayout.h"
#include "SectionData.h"
#include "SectionView.h"
#include "Splitter.h"
#include "StatusLine.h"
#include "SurveyGrid.h"
#include "SurveyReader.h"
#include "coregui/coregui.h"

namespace desk {

/// The desk's window: the survey's table at the left, its long-section at the right with the difference of
/// the levels below it, and a line that says what was read or what the pointer shows.
class DeskWindow : public CWnd, private SurveySink {
 public:
  static constexpr UINT kGridId = 101;

  DeskWindow();
  /// Creates the window, hidden, with a client area of the size.
  BOOL CreateDesk(CSize size);
  /// Reads a survey into the table. False when nothing could be read; the status line says why and the table
  /// shows what it showed before.
  bool Open(const std::wstring& path);
  /// Asks for a file and opens it.
  void OpenWithDialog();
  /// Prints the long-section on one page in landscape. False when the file cannot be written.
  bool PrintToPdf(const std::wstring& path);
  void PrintWithDialog();

  const SurveyReport& Report() const { return m_report; }
  SurveyGrid& Grid() { return m_grid; }
  SectionView& Section() { return m_section; }
  const std::wstring& StatusText() const { return m_status.Text(); }

 protected:
  const coregui::MessageTable& GetMessageTable() const override;
  BOOL PreTranslateMessage(MSG* message) override;

 private:
  /// What a key or a button of the bar does.
  struct Command {
    UINT id;
    UINT key;
    bool withControl;
    const wchar_t* text;  ///< of the button; null: a key alone
    void (DeskWindow::*run)();
  };
  static const Command kCommands[];

  void Begin(const CsvDialect& dialect) override;
  void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) override;
  bool Progress(double part) override;

  static void OnViewEvent(PNT_2D_record const& position, EVENT_TYPE event, char keyFlags, char key,
                          CWnd* parent);
  void FollowPointer(PNT_2D_record const& position);
  void FollowRow(long row);
  void MarkChainage(double chainage);
  void ArrangePanes();
  void ShowTitle();
  void ShowSection();

  void HandleSize(UINT type, int width, int height);
  void HandleSetFocus(CWnd* other);
  void HandleClose();
  LRESULT HandleColours(WPARAM wParam, LPARAM lParam);
  void QuitCommand() { PostMessage(WM_CLOSE); }
  void LookBack() { m_section.GoBack(); }
  void LookForward() { m_section.GoForward(); }
  void Fit() { m_section.Redraw(); }
  void CopyCells() { m_grid.CopySelected(); }
  void TakeExaggeration();
  LRESULT HandleCommand(WPARAM wParam, LPARAM lParam);

  CommandBar m_commands;
  SurveyGrid m_grid;
  SectionView m_section;
  DifferenceView m_difference;
  Splitter m_bar;
  Splitter m_plotBar;
  StatusLine m_status;
  DeskLayout m_layout;
  SectionData m_data;
  std::wstring m_path;       ///< of the survey shown; empty when none is
  std::wstring m_opening;    ///< name of the file that is being read
  SurveyReport m_report;     ///< of the file tried last
  bool m_following = false;  ///< table and section follow each other; not in circles
};

}  // namespace desk
