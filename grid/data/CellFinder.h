#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "grid/data/CellStore.h"
#include "grid/data/WorkWatch.h"

namespace coregui {

/// One search through a store for a text.
class CellFinder {
 public:
  /// `text` is upper-cased already when case does not count. The search covers the given numbers of columns
  /// and rows.
  CellFinder(CellStore& store, const CString& text, int flags, int numberCols, long numberRows);
  /// Searches on from the cell after (`col`, `row`), around the end, for at most one row more than there are.
  /// On a match `col` and `row` receive it. False too when `watch` gives up.
  bool FindNext(int& col, long& row, WorkWatch watch = WorkWatch());

 private:
  struct Column {
    int col;
    int storage;
  };
  bool ScanRows(std::int64_t first, std::int64_t count, int& col, long& row);
  bool GoesOnAfter(const RowLeaf& leaf);
  bool ScanLeaf(RowLeaf& leaf, int from, int to, std::int64_t start, int& col, long& row);
  bool ScanRow(RowLeaf& leaf, int inLeaf, int& col) const;
  bool FinishRow(int& col, long row);
  bool Matches(const CellSlot& slot) const;
  bool MatchesText(const StoredText& text) const;
  wchar_t Fold(const StoredText& text, std::uint32_t index) const;
  bool CanStandInNumbers() const;
  void ListColumns(int from, int to);

  CellStore& m_store;  // borrowed
  std::wstring m_text;
  bool m_partial;
  bool m_noCase;
  bool m_allColumns;
  int m_step;  // 1, or -1 upwards
  int m_numberCols;
  std::int64_t m_numberRows;
  bool m_numbersCount;                // a number's text can match
  std::array<wchar_t, 256> m_fold{};  // what the first 256 characters compare as
  std::vector<Column> m_columns;      // to look at in a row, in the order of the search
  mutable CellText m_scratch;
  WorkWatch m_watch;
  std::int64_t m_rowsDone = 0;
  std::size_t m_cellsUnasked = 0;  // looked at since the watch was asked last
};

}  // namespace coregui
