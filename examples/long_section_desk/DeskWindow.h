#pragma once

#include <string>

#include "StatusLine.h"
#include "SurveyGrid.h"
#include "SurveyReader.h"
#include "coregui/coregui.h"

namespace desk {

/// The desk's window: the survey's table, and below it a line that says what was read.
class DeskWindow : public CWnd, private SurveySink {
 public:
  static constexpr UINT kGridId = 101;

  /// Creates the window, hidden, with a client area of the size.
  BOOL CreateDesk(CSize size);
  /// Reads a survey into the table. False when nothing could be read; the status line says why and the table
  /// shows what it showed before.
  bool Open(const std::wstring& path);
  /// Asks for a file and opens it.
  void OpenWithDialog();
  const SurveyReport& Report() const { return m_report; }
  SurveyGrid& Grid() { return m_grid; }
  const std::wstring& StatusText() const { return m_status.Text(); }

 protected:
  const coregui::MessageTable& GetMessageTable() const override;
  BOOL PreTranslateMessage(MSG* message) override;

 private:
  void Begin(const CsvDialect& dialect) override;
  void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) override;
  bool Progress(double part) override;

  void HandleSize(UINT type, int width, int height);
  void HandleSetFocus(CWnd* other);
  void HandleClose();
  void ShowTitle();

  SurveyGrid m_grid;
  StatusLine m_status;
  std::wstring m_path;     ///< of the survey shown; empty when none is
  std::wstring m_opening;  ///< name of the file that is being read
  SurveyReport m_report;   ///< of the file tried last
};

}  // namespace desk
