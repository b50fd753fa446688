#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "grid/data/RowLeaf.h"

namespace coregui {

/// Which leaf holds each 64th row: it leads to any row in one step, in place of one for each level of the
/// tree. Good for the rows that there were when it was made; it lives until a row in front of others comes or
/// goes.
class LeafIndex {
 public:
  /// The leaf that holds the row, and the row's index in it; null when the index does not reach it. Rows that
  /// were cut off a leaf or appended since are behind it.
  RowLeaf* Find(std::int64_t row, std::int64_t& inLeaf) const {
    const auto place = static_cast<std::size_t>(row) / STEP;
    if (place >= m_entries.size()) return nullptr;
    RowLeaf* leaf = m_entries[place].leaf;
    inLeaf = row - m_entries[place].start;
    for (; inLeaf >= leaf->count; leaf = leaf->next) inLeaf -= leaf->count;
    return leaf;
  }
  /// Told of each search in the tree; makes the index once the searches have cost as much as that does.
  void CountSearch(RowLeaf* first, std::int64_t rows);
  void Clear() {
    m_entries.clear();
    m_searches = 0;
  }
  bool Check(const RowLeaf& first) const;

 private:
  static constexpr std::size_t STEP = RowLeaf::ROWS;
  struct Entry {
    RowLeaf* leaf;  // borrowed
    std::int64_t start;
  };
  void Make(RowLeaf* first);

  std::vector<Entry> m_entries;
  std::size_t m_searches = 0;
};

}  // namespace coregui
