#pragma once

#include <cstdint>
#include <memory>

#include "grid/data/CellSlot.h"

namespace coregui {

/// One storage column's cells in up to 64 rows: a bit for each row that has a cell, and the cells without
/// gaps. Inserting a row without a cell moves bits only.
class ColumnChunk {
 public:
  static constexpr int ROWS = 64;

  bool Has(int row) const { return ((m_present >> row) & 1U) != 0; }
  /// The row's cell, or null.
  CellSlot* Find(int row) const { return Has(row) ? &m_cells[Rank(row)] : nullptr; }
  /// Makes room for a cell in a row that has none. Its content is undefined.
  CellSlot& Add(int row);
  /// Takes the row's cell out, without releasing it.
  CellSlot Take(int row);
  void InsertRow(int row);
  /// The row has no cell any more.
  void EraseRow(int row);
  /// Moves the cells of rows from `from` on to the end of `target`, which gets them from row `at` on.
  void MoveTail(int from, ColumnChunk& target, int at);
  std::uint64_t Present() const { return m_present; }
  /// All cells, by row.
  CellSlot* begin() const { return m_cells.get(); }
  CellSlot* end() const { return m_cells.get() + Count(); }
  int Count() const { return BitCount(m_present); }
  void Clear() { *this = {}; }
  bool Check(int rows) const;

 private:
  static std::uint64_t Below(int row) { return (1ULL << row) - 1; }
  static int BitCount(std::uint64_t bits);
  int Rank(int row) const {
    // The rows before have no gap in most chunks.
    const std::uint64_t before = m_present & Below(row);
    return before == Below(row) ? row : BitCount(before);
  }
  void Reserve(int count);

  std::uint64_t m_present = 0;
  std::unique_ptr<CellSlot[]> m_cells;
  int m_capacity = 0;
};

}  // namespace coregui
