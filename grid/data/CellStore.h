#pragma once

#include <cstdint>
#include <vector>

#include "grid/data/CellCodec.h"
#include "grid/data/ColumnMap.h"
#include "grid/data/RowTree.h"

class CGridCell;

namespace coregui {

/// The cells of a memory store: rows in a tree, their cells by storage column, values in slots. It answers
/// what a list of rows with a list of positions each would answer (see CGridMem).
class CellStore {
 public:
  CellStore() = default;
  ~CellStore() { Clear(); }
  CellStore(const CellStore&) = delete;
  CellStore& operator=(const CellStore&) = delete;

  // Rows: FirstRow() to EndRow() - 1; none when the store is empty.
  bool IsEmpty() const { return m_rows.Count() == 0; }
  std::int64_t FirstRow() const { return m_firstRow; }
  std::int64_t EndRow() const { return m_firstRow + m_rows.Count(); }
  bool HasRow(std::int64_t row) const { return row >= FirstRow() && row < EndRow(); }
  bool HasPosition(int col, std::int64_t row);

  /// The stored cell, if there is one. Valid until the cell changes.
  CellSlot Find(int col, std::int64_t row);
  /// Merges the stored cell over `cell`; false when there is none.
  bool Get(int col, std::int64_t row, CGridCell& cell);
  void Set(int col, std::int64_t row, CGridCell& cell);
  /// Leaves the position empty; false when it does not exist.
  bool Delete(int col, std::int64_t row);
  void InsertRow(std::int64_t row);  ///< the row exists
  void DeleteRow(std::int64_t row);  ///< the row exists
  void InsertCol(int col);
  void DeleteCol(int col);
  void Clear();
  /// The first row from `row` on whose cell in the column has one of the properties set (CELLPROP_ bits);
  /// EndRow() or behind when there is none.
  std::int64_t NextRowWith(DWORD properties, int col, std::int64_t row);
  /// The last position of a row that exists; false when it has none.
  bool LastPosition(std::int64_t row, int& col);

  const RowTree& Rows() const { return m_rows; }
  const ColumnMap& Columns() const { return m_columns; }
  const CellCodec& Codec() const { return m_codec; }
  CellPool& Pool() { return m_pool; }
  /// Puts the rows in the order of `rows`, which names each row that has positions once; runs without
  /// positions go as one.
  void Rebuild(RowTree&& rows);
  /// Gives back what the rows of a tree that was to replace these took; their cells stay those of this store.
  void Discard(RowTree& rows);
  bool Check() const;

 private:
  /// A row of the tree: its leaf and its index in the leaf.
  struct Place {
    RowLeaf* leaf = nullptr;
    int row = 0;
    std::int64_t wide = 0;  // the index where the leaf is a run
  };
  RowLeaf& LeafOf(std::int64_t row, std::int64_t& inLeaf);
  Place Locate(std::int64_t row);
  CellSlot FindStored(int storage, std::int64_t row);
  void MakeUsual();
  Place MakeRow(std::int64_t row);
  void IncludeRow(std::int64_t row);
  void ForgetPlace() { m_nearLeaf = nullptr; }
  bool LeafHasPosition(const RowLeaf& leaf, int row, int col) const;
  void ReleaseCell(RowLeaf& leaf, int storage, int row);
  void ReleaseRow(RowLeaf& leaf, int row);
  void ReleaseChunk(ColumnChunk& chunk);
  void ReleaseColumn(int storage, int col);
  template <typename Action>
  void ForEachRowRightOf(int col, Action action);
  void MoveCell(RowLeaf& leaf, int row, int from, int to);
  /// What the leaves use, counted anew.
  struct Uses {
    std::vector<std::uint64_t> looks;
    std::size_t blocks = 0;
  };
  bool CheckLeaf(const RowLeaf& leaf, Uses& uses) const;

  CellPool m_pool;
  RowTree m_rows{m_pool};
  std::int64_t m_firstRow = 0;
  ColumnMap m_columns;
  CellCodec m_codec{m_pool};
  std::vector<UsualCell> m_usual;  // by storage column, of those that were read
  RowLeaf* m_nearLeaf = nullptr;   // borrowed: the leaf used last, where the next access mostly falls
  std::int64_t m_nearStart = 0;    // the row that it begins with
};

}  // namespace coregui
