#pragma once

#include <functional>
#include <string>
#include <vector>

#include "SurveyReader.h"
#include "coregui/coregui.h"

namespace desk {

/// The table of the desk: names of the columns above, row numbers at the side, numbers on the right with the
/// decimals that the file gave them.
class SurveyGrid : public CGridCtrl {
 public:
  /// Empties the grid and takes over the columns of a table.
  void BeginTable(const CsvDialect& dialect);
  /// Stores one row; rows come in order from 0.
  void StoreRow(std::uint64_t row, const std::vector<std::wstring_view>& fields);
  /// What the row stored last holds: for each column its number, NaN where it is empty or a text.
  const std::vector<double>& StoredNumbers() const { return m_numbers; }
  /// Sets the number of rows, sizes the columns to what they hold and shows the table.
  void EndTable(std::uint64_t rows);
  /// What a row's cell of a number column holds; false for an empty cell or a text.
  bool NumberAt(int col, long row, double& value);
  /// Sorts the rows by a column, as a person asks for it, and says so to the order hook.
  void SortFromMenu(int col, bool downwards);
  /// Opens the context menu below the current cell.
  void OpenMenuAtCurrent();
  /// Called after the current row has changed.
  void SetRowHook(std::function<void(long)> hook) { m_rowHook = std::move(hook); }
  /// Called after the rows were put into another order.
  void SetOrderHook(std::function<void()> hook) { m_orderHook = std::move(hook); }
  /// Called when a part of the table gets or loses the focus.
  void SetFocusHook(std::function<void()> hook) { m_focusHook = std::move(hook); }
  const CsvDialect& Dialect() const { return m_dialect; }

 protected:
  void OnSetup() override;
  void OnGetCell(int col, long row, CGridCell* cell) override;
  void OnRowChange(long oldRow, long newRow) override;
  void OnSetFocus(int section) override;
  void OnKillFocus(int section, CWnd* newFocus) override;
  int OnMenuStart(int col, long row, int section) override;
  void OnMenuCommand(int col, long row, int section, int item) override;

 private:
  /// The row whose field is the longest of its column, as far as characters tell.
  struct Longest {
    std::size_t characters = 0;
    long row = -1;
  };

  int WidthOf(int col, long row);

  CsvDialect m_dialect;
  std::function<void(long)> m_rowHook;
  std::function<void()> m_orderHook;
  std::function<void()> m_focusHook;
  std::vector<Longest> m_longest;  ///< for each column
  std::vector<double> m_numbers;   ///< of the row stored last
  CGridCell m_cell;                ///< reused for every cell stored or asked for a number
};

}  // namespace desk
