#pragma once

#include <cstdint>
#include <memory>

#include "grid/data/LeafIndex.h"
#include "grid/data/RowInner.h"

namespace coregui {

/// The rows in order, numbered from 0: a B+-tree of leaves with counts. Finding, inserting and erasing a row
/// cost O(log n); going on to the next leaf costs nothing.
class RowTree {
 public:
  /// `pool` keeps the cells. Borrowed.
  explicit RowTree(CellPool& pool) : m_pool(&pool) {}
  std::unique_ptr<RowLeaf> MakeLeaf() const { return std::make_unique<RowLeaf>(*m_pool); }
  std::int64_t Count() const { return m_count; }
  RowLeaf* First() const { return m_first; }
  RowLeaf* Last() const { return m_last; }
  /// The leaf that holds the row, and the row's index in it. 0 <= row < Count().
  RowLeaf* Find(std::int64_t row, std::int64_t& inLeaf) const {
    RowLeaf* const leaf = m_index.Find(row, inLeaf);
    return leaf != nullptr ? leaf : Search(row, inLeaf);
  }
  /// A row without positions takes the index `row`, at most Count().
  void InsertRow(std::int64_t row);
  /// The row has no cells any more.
  void EraseRow(std::int64_t row);
  /// Rows without positions at the end, or before the first.
  void Append(std::int64_t rows);
  void Prepend(std::int64_t rows);
  /// Makes the leaf around a row of a leaf without positions have positions; updates the row's index in its
  /// leaf.
  RowLeaf* MakePositions(RowLeaf* leaf, std::int64_t& inLeaf);
  /// Rows without positions at the end, none of them in a leaf that has some.
  void AppendRun(std::int64_t rows);
  void AppendLeaf(std::unique_ptr<RowLeaf> leaf);
  void Clear();
  bool Check() const;

 private:
  RowLeaf* Search(std::int64_t row, std::int64_t& inLeaf) const;
  std::unique_ptr<RowLeaf> MakeRun(std::int64_t rows) const;
  RowLeaf* InsertBeside(RowLeaf& leaf, bool after, std::unique_ptr<RowLeaf> added);
  void InsertNode(RowNode& neighbour, bool after, std::unique_ptr<RowNode> added, std::int64_t rows);
  RowInner* SplitInner(RowInner& inner, int& at);
  void AddRows(RowNode& node, std::int64_t rows);
  void Remove(RowLeaf& leaf);
  void Collapse();
  void MergeWithNext(RowLeaf& leaf);
  RowLeaf* Split(RowLeaf& leaf, int from);
  RowLeaf* CutRun(RowLeaf& leaf, std::int64_t from);
  bool CheckNode(const RowNode& node, std::int64_t& rows, const RowLeaf*& previous) const;

  CellPool* m_pool;
  std::unique_ptr<RowNode> m_root;
  RowLeaf* m_first = nullptr;  // borrowed from the root
  RowLeaf* m_last = nullptr;
  std::int64_t m_count = 0;
  mutable LeafIndex m_index;
};

}  // namespace coregui
