#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "grid/data/CGridSourceOwner.h"
#include "grid/data/CellStore.h"
#include "grid/data/KeyCompare.h"
#include "grid/data/SortRanks.h"
#include "grid/data/WorkWatch.h"

namespace coregui {

/// Sorts a store's rows from row 0 on.
class RowSorter {
 public:
  /// `owner` compares; null for the standard comparison.
  RowSorter(CellStore& store, CGridSourceOwner* owner, int flags, WorkWatch watch)
      : m_store(store), m_owner(owner), m_flags(flags), m_watch(std::move(watch)) {}
  /// False when the watch gave up; the rows are as they were then.
  bool Sort(const std::vector<int>& cols);

 private:
  /// A row to move, or a run of rows without positions, which stay together.
  struct Item {
    RowLeaf* leaf;  // borrowed from the store
    int row;
    std::int64_t run;  // the number of rows; 0 for a single row with positions
  };
  bool IsRun(std::uint32_t item) const { return m_hasRuns && m_items[item].run > 0; }
  void Gather();
  /// Gives each row of a run an item of its own, for comparisons that may part them.
  void OpenRuns();
  std::vector<std::uint32_t> Order(const std::vector<int>& cols);
  std::vector<std::uint32_t> OrderByRanks(const SortRanks& ranks, KeyCompare& compare);
  std::vector<std::uint32_t> OrderByOwner(std::vector<KeyCells>&& keys);
  std::vector<std::uint32_t> OrderStepByStep(const std::vector<int>& cols);
  std::vector<KeyCells> ReadKeys(const std::vector<int>& cols) const;
  bool IsDescending() const { return (m_flags & SORT_DESCENDING) != 0; }
  std::size_t Count() const { return m_items.size() - m_fixed; }
  KeyCells ReadKey(int col) const;
  bool Rebuild(const std::vector<std::uint32_t>& order);
  std::vector<RowLeaf*> BuildLeaves(const std::vector<std::uint32_t>& order, RowTree& rows) const;
  bool FillColumn(int storage, const std::vector<std::uint32_t>& order, const std::vector<RowLeaf*>& leaves);

  CellStore& m_store;  // borrowed
  CGridSourceOwner* m_owner;
  int m_flags;
  WorkWatch m_watch;
  double m_ordered = 0.95;  // about the part of the work that finding the order is
  std::vector<Item> m_items;
  bool m_hasRuns = false;
  std::size_t m_fixed = 0;  // the first items, rows before row 0, stay where they are
};

}  // namespace coregui
