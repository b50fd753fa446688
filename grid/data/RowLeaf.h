#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "grid/data/ColumnChunk.h"
#include "grid/data/ColumnMap.h"

namespace coregui {

class RowInner;

/// A node of the tree of rows.
class RowNode {
 public:
  virtual ~RowNode() = default;
  RowNode(const RowNode&) = delete;
  RowNode& operator=(const RowNode&) = delete;
  bool IsLeaf() const { return m_isLeaf; }

  RowInner* parent = nullptr;  // borrowed: the node that owns this one; null for the root
  int place = 0;               // this node's index in the parent

 protected:
  explicit RowNode(bool isLeaf) : m_isLeaf(isLeaf) {}

 private:
  bool m_isLeaf;
};

/// Neighbouring rows. A leaf with positions has at most 64 rows and keeps their cells; a leaf without stands
/// for any number of rows that have no position at all. What finds a cell lies in one cache line.
class alignas(64) RowLeaf final : public RowNode {
 public:
  static constexpr int ROWS = ColumnChunk::ROWS;
  /// The positions of each row: from the column `first`, 0 or below, to the one that the storage column
  /// `last` holds; none when that is ColumnMap::NONE. So an inserted column moves the ends of the rows that
  /// reach it, and no row is touched.
  struct Positions {
    std::array<int, ROWS> first{};
    std::array<int, ROWS> last{};
    bool HasAny(int row) const { return last[static_cast<std::size_t>(row)] != ColumnMap::NONE; }
  };

  /// The cells of all leaves of a tree are in one pool, which outlives them. Borrowed.
  explicit RowLeaf(CellPool& cellPool) : RowNode(true), pool(cellPool) {}
  bool HasPositions() const { return positions != nullptr; }
  /// Gives a leaf of at most 64 rows its positions, none for each row.
  void MakePositions();
  /// The storage column's cells, or null.
  ColumnChunk* Find(int storage) {
    return static_cast<std::size_t>(storage) < columns.size() ? &columns[static_cast<std::size_t>(storage)]
                                                              : nullptr;
  }
  /// The cell of a row of this leaf, if there is one. A leaf without positions has no columns.
  CellSlot FindCell(int storage, std::int64_t row) const {
    return static_cast<std::size_t>(storage) < columns.size()
               ? columns[static_cast<std::size_t>(storage)].Find(static_cast<int>(row))
               : CellSlot();
  }
  ColumnChunk& FindOrAdd(int storage);
  /// Appends a row without positions; there is room.
  void AppendRow();
  void InsertRow(int row);
  /// The row has no cells any more.
  void EraseRow(int row);
  /// Moves the rows from `from` on behind the rows of `target`, which has room.
  void MoveTail(int from, RowLeaf& target);
  bool Check() const;

  CellPool& pool;
  std::int64_t count = 0;
  std::unique_ptr<Positions> positions;  // null: a run of rows without positions
  std::vector<ColumnChunk> columns;      // by storage column
  RowLeaf* previous = nullptr;           // borrowed: the tree owns them
  RowLeaf* next = nullptr;
};

}  // namespace coregui
