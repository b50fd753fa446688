#include "grid/data/InsertionOrder.h"

namespace coregui {

bool BlockSequence::Advance(Place& place, std::size_t count) const {
  Place to = place;
  to.index += count;
  while (to.index >= m_blocks[to.block].size()) {
    to.index -= m_blocks[to.block].size();
    if (++to.block == m_blocks.size()) return false;
  }
  place = to;
  return true;
}

bool BlockSequence::Retreat(Place& place) const {
  if (place.index > 0) {
    --place.index;
    return true;
  }
  if (place.block == 0) return false;
  --place.block;
  place.index = m_blocks[place.block].size() - 1;
  return true;
}

void BlockSequence::Insert(Place place, std::uint32_t item, Place& kept) {
  if (m_blocks.empty()) m_blocks.emplace_back();
  auto& block = m_blocks[place.block];
  block.insert(block.begin() + static_cast<std::ptrdiff_t>(place.index), item);
  if (kept.block == place.block && kept.index >= place.index) ++kept.index;
  if (block.size() < BLOCK) return;
  const auto half = block.begin() + static_cast<std::ptrdiff_t>(BLOCK / 2);
  std::vector<std::uint32_t> right(half, block.end());
  block.erase(half, block.end());
  const auto behind = m_blocks.begin() + static_cast<std::ptrdiff_t>(place.block) + 1;
  m_blocks.insert(behind, std::move(right));
  if (kept.block > place.block) {
    ++kept.block;
  } else if (kept.block == place.block && kept.index >= BLOCK / 2) {
    kept = {kept.block + 1, kept.index - BLOCK / 2};
  }
}

std::vector<std::uint32_t> BlockSequence::Flatten() const {
  std::vector<std::uint32_t> items;
  for (const auto& block : m_blocks) items.insert(items.end(), block.begin(), block.end());
  return items;
}

}  // namespace coregui
