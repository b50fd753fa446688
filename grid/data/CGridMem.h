#pragma once

#include <functional>
#include <memory>

#include "grid/data/CGridDataSource.h"

namespace coregui {
class CellStore;
}

/// The store in memory that every sheet starts with: a cell for every position that was written.
///
/// What it answers is what a list of rows, each a list of positions, would answer. Rows form one gapless
/// range that holds row 0, and the positions of a row one gapless range that holds column 0, both from the
/// first write on; a write outside a range extends it with empty rows or positions. A position without a cell
/// is not a missing position: InsertCol, DeleteCol, DeleteCell and GetNumRows tell them apart. Every
/// operation on a row or cell costs O(log n) in any order of access. Underneath, cells whose properties other
/// than the value are equal share them.
class COREGUI_API CGridMem : public CGridDataSource {
 public:
  CGridMem();
  ~CGridMem() override;

  /// 1 when no cell is stored there; `cell` then keeps what it had.
  int GetCell(int col, long row, CGridCell* cell) override;
  /// Creates what is missing up to the position. A cell with no property set is stored too. 1 when `cell` is
  /// null or the row does not fit in 32 bits.
  int SetCell(int col, long row, CGridCell* cell) override;
  /// Leaves the position without a cell. 1 when the row or the position does not exist.
  int DeleteCell(int col, long row) override;
  /// 1 when the row does not exist.
  int InsertRow(long row) override;
  /// 0 also when the row does not exist.
  int DeleteRow(long row) override;
  /// Inserts at the grid column that shows `col` (at `col` itself when none does), in every row that reaches
  /// it, and moves the owner's translations from there on up by one. 1 when no row exists.
  int InsertCol(int col) override;
  /// Removes the position `col` from every row that reaches it; a row's last position stays, without its
  /// cell. Moves the owner's translations from `col` on down by one. 1 when no row exists.
  int DeleteCol(int col) override;
  /// Nothing is stored: rows and columns come into being when they are written.
  int AppendRow() override;
  using CGridDataSource::AppendRow;
  int AppendCol() override;
  int Empty() override;
  /// The index of the last row; 0 when nothing is stored.
  long GetNumRows() override;
  int GetPrevNonBlankCol(int* col, long row) override;
  /// The first row from `row` on whose cell in the column belongs to a joined block; one behind the stored
  /// rows when there is none.
  long NextJoinedRow(int col, long row) const;

  int FindFirst(CString* text, int* col, long* row, long flags) override;
  int FindNext(CString* text, int* col, long* row, int flags) override;
  /// 1 when nothing is stored. Rows before row 0 stay where they are.
  int SortBy(int* cols, int count, int flags) override;
  int SortBy(int col, int flags) override;

  /// Asked every few milliseconds while a search or a sort runs, on the thread that runs it, with the part
  /// that is done, from 0 to 1. False gives up: a search finds nothing, a sort leaves the rows as they are,
  /// and both answer 1. It may read cells, and must not change them. Null, as at first: nobody is asked.
  using Watch = std::function<bool(double part)>;
  void SetWatch(Watch watch) { m_watch = std::move(watch); }

  /// Whether the structure is sound; tests ask after each step.
  bool Check() const;

 private:
  std::unique_ptr<coregui::CellStore> m_store;
  Watch m_watch;
};
