#include "grid/data/LeafIndex.h"

namespace coregui {

void LeafIndex::CountSearch(RowLeaf* first, std::int64_t rows) {
  constexpr std::size_t FEW = 16;
  if (++m_searches < 2 * static_cast<std::size_t>(rows) / STEP + FEW) return;
  m_searches = 0;
  Make(first);
}

void LeafIndex::Make(RowLeaf* first) {
  constexpr std::size_t MOST_FOR_LEAF = 8;
  m_entries.clear();
  std::size_t leaves = 0;
  std::int64_t start = 0;
  for (RowLeaf* leaf = first; leaf != nullptr; leaf = leaf->next, ++leaves) {
    const auto end = static_cast<std::size_t>(start + leaf->count);
    // A leaf may stand for any number of rows: where most do, the tree is small.
    if (end / STEP > MOST_FOR_LEAF * (leaves + MOST_FOR_LEAF)) return m_entries.clear();
    while (m_entries.size() * STEP < end) m_entries.push_back({leaf, start});
    start += leaf->count;
  }
}

bool LeafIndex::Check(const RowLeaf& first) const {
  const RowLeaf* leaf = &first;
  std::int64_t start = 0;
  for (std::size_t i = 0; i < m_entries.size(); ++i) {
    for (; leaf != nullptr && leaf != m_entries[i].leaf; leaf = leaf->next) start += leaf->count;
    if (leaf == nullptr || start != m_entries[i].start || start > static_cast<std::int64_t>(i * STEP))
      return false;
  }
  return true;
}

}  // namespace coregui
