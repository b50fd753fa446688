#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "SurveyReader.h"
#include "coregui/coregui.h"

namespace desk {

/// The table of the desk: names of the columns above, row numbers at the side, numbers on the right with the
/// decimals that the file gave them.
///
/// Its cells lie in a source of their own, which a thread can have while the windows live on: to sort or to
/// free those of millions of rows takes seconds.
class SurveyGrid : public CGridCtrl {
 public:
  ~SurveyGrid() override { TakeSource(); }
  /// Begins an empty table with other columns. Gives the cells shown so far, for whoever frees them.
  std::unique_ptr<CGridMem> BeginTable(const CsvDialect& dialect);
  /// Hands out the cells; until GiveCells nothing of the table is painted.
  std::unique_ptr<CGridMem> LendCells();
  void GiveCells(std::unique_ptr<CGridMem> cells);
  /// Whom a search in the table asks whether it is to go on (CGridMem::SetWatch); null for nobody.
  void WatchSearch(CGridMem::Watch watch);
  /// Stores one row; rows come in order from 0.
  void StoreRow(std::uint64_t row, const std::vector<std::wstring_view>& fields);
  /// What the row stored last holds: for each column its number, NaN where it is empty or a text.
  const std::vector<double>& StoredNumbers() const { return m_numbers; }
  /// Shows the rows stored so far, the first time that it is called for a table; more may come.
  void ShowBeginning();
  /// Sets the number of rows, sizes the columns to what they hold and shows the table.
  void EndTable(std::uint64_t rows);
  /// Opens the context menu below the current cell.
  void OpenMenuAtCurrent();
  /// Called after the current row has changed.
  void SetRowHook(std::function<void(long)> hook) { m_rowHook = std::move(hook); }
  /// Called when the rows are to be sorted by a column.
  void SetSortHook(std::function<void(int col, bool downwards)> hook) { m_sortHook = std::move(hook); }
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
  int OnHint(int col, long row, int section, CString* text) override;

 private:
  /// The row whose field is the longest of its column, as far as characters tell.
  struct Longest {
    std::size_t characters = 0;
    long row = -1;
  };

  int WidthOf(int col, long row);
  int WidthOf(const CString& text);
  std::unique_ptr<CGridMem> TakeSource();
  void UseSource(std::unique_ptr<CGridMem> cells);
  void HoldPainting(bool hold);

  std::unique_ptr<CGridMem> m_cells;  ///< null before the first table and while they are lent
  int m_source = 0;                   ///< where the cells are registered; 0 without them
  CsvDialect m_dialect;
  std::function<void(long)> m_rowHook;
  std::function<void(int, bool)> m_sortHook;
  std::function<void()> m_focusHook;
  std::uint64_t m_stored = 0;  ///< rows stored so far
  bool m_beginningShown = false;
  std::vector<Longest> m_longest;  ///< for each column
  std::vector<double> m_numbers;   ///< of the row stored last
  CGridCell m_cell;                ///< reused for every cell stored
};

}  // namespace desk
