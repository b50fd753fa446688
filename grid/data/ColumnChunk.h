#pragma once

#include <bit>
#include <cstdint>
#include <span>

#include "grid/data/CellPool.h"
#include "grid/data/CellSlot.h"

namespace coregui {

/// One storage column's cells in up to 64 rows: a bit for each row that has a cell, and the cells without
/// gaps. Inserting a row without a cell moves bits only.
///
/// The cells of a column are mostly of one kind and look. Their tag then stands here once, beside the bits:
/// it takes no room in the cells, and what to do with a cell is known before its value has come from memory.
/// No chunk lies across two cache lines, which would be two waits for memory.
class alignas(32) ColumnChunk {
 public:
  static constexpr int ROWS = 64;

  bool Has(int row) const { return ((m_present >> row) & 1U) != 0; }
  /// The row's cell, if it has one.
  CellSlot Find(int row) const { return Has(row) ? At(Rank(row)) : CellSlot(); }
  /// Makes `cell` the row's, without releasing the one before.
  void Put(int row, const CellSlot& cell, CellPool& pool);
  /// Gives the rows from 0 on these cells; the chunk has none yet.
  void Fill(std::span<const CellSlot> rows, CellPool& pool);
  /// Takes the row's cell out, without releasing it.
  CellSlot Take(int row, CellPool& pool);
  void InsertRow(int row);
  /// The row has no cell any more.
  void EraseRow(int row);
  /// Moves the cells of rows from `from` on to the end of `target`, which gets them from row `at` on.
  void MoveTail(int from, ColumnChunk& target, int at, CellPool& pool);
  int Count() const { return std::popcount(m_present); }
  /// The cells in the order of their rows, 0 to Count() - 1.
  CellSlot At(int rank) const { return {m_payloads[Index(rank)], TagOf(rank)}; }
  void Clear(CellPool& pool);
  /// Blocks of the pool that it holds.
  std::size_t BlockCount() const { return (m_payloads != nullptr ? 1U : 0U) + (m_tags != nullptr ? 1U : 0U); }
  bool Check(int rows) const;

 private:
  static std::size_t Index(int rank) { return static_cast<std::size_t>(rank); }
  static std::uint64_t Below(int row) { return (1ULL << row) - 1; }
  int Rank(int row) const {
    // The rows before have no gap in most chunks.
    const std::uint64_t before = m_present & Below(row);
    return before == Below(row) ? row : std::popcount(before);
  }
  std::uint32_t TagOf(int rank) const { return m_tags == nullptr ? m_tag : m_tags[Index(rank)]; }
  void PutTag(int rank, int count, std::uint32_t tag, CellPool& pool);
  void Reserve(int count, CellPool& pool);

  std::uint64_t m_present = 0;
  std::uint64_t* m_payloads = nullptr;  // the pool's, as are the tags
  std::uint32_t* m_tags = nullptr;      // null while all cells have the same
  std::uint32_t m_tag = 0;              // that one
  int m_capacity = 0;
};

}  // namespace coregui
