#include "grid/control/SizeTable.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace coregui {

namespace {

std::size_t LowestBit(std::size_t value) {
  return value & (~value + 1);
}

}  // namespace

void SizeTable::Set(long index, int size) {
  const auto at = static_cast<std::size_t>(index);
  const std::int64_t change = std::int64_t{size} - m_sizes[at];
  m_sizes[at] = size;
  m_blocks[at / blockSize] += change;
  for (std::size_t i = at / blockSize + 1; i <= m_tree.size(); i += LowestBit(i)) {
    m_tree[i - 1] += change;
  }
}

void SizeTable::Resize(long count, int size) {
  const std::size_t firstChanged = std::min(m_sizes.size(), static_cast<std::size_t>(count)) / blockSize;
  m_sizes.resize(static_cast<std::size_t>(count), size);
  SumBlocksFrom(firstChanged);
}

void SizeTable::Insert(long index, int size) {
  m_sizes.insert(m_sizes.begin() + index, size);
  const std::size_t first = static_cast<std::size_t>(index) / blockSize;
  // Every full block behind gets its neighbour's last entry and gives its own last one away.
  for (std::size_t block = first + 1; block < m_blocks.size(); ++block) {
    const std::size_t start = block * blockSize;
    const std::size_t end = start + blockSize;
    m_blocks[block] += m_sizes[start] - (end < m_sizes.size() ? std::int64_t{m_sizes[end]} : 0);
  }
  if (m_blocks.size() * blockSize < m_sizes.size()) {
    m_blocks.push_back(m_sizes.back());
  }
  m_blocks[first] = SumOfBlock(first);
  SumTree();
}

void SizeTable::Erase(long index) {
  const std::size_t first = static_cast<std::size_t>(index) / blockSize;
  for (std::size_t block = first + 1; block < m_blocks.size(); ++block) {
    const std::size_t start = block * blockSize;
    const std::size_t end = start + blockSize;
    m_blocks[block] += (end < m_sizes.size() ? std::int64_t{m_sizes[end]} : 0) - m_sizes[start];
  }
  m_sizes.erase(m_sizes.begin() + index);
  m_blocks.resize((m_sizes.size() + blockSize - 1) / blockSize);
  if (first < m_blocks.size()) {
    m_blocks[first] = SumOfBlock(first);
  }
  SumTree();
}

void SizeTable::Move(long from, long to) {
  const int size = At(from);
  m_sizes.erase(m_sizes.begin() + from);
  m_sizes.insert(m_sizes.begin() + to, size);
  SumBlocksFrom(static_cast<std::size_t>(std::min(from, to)) / blockSize);
}

void SizeTable::Clear() {
  m_sizes = {};
  m_blocks = {};
  m_tree = {};
}

std::int64_t SizeTable::SumBefore(long index) const {
  const auto at = static_cast<std::size_t>(index);
  const std::size_t block = at / blockSize;
  std::int64_t sum = 0;
  for (std::size_t i = block; i > 0; i -= LowestBit(i)) {
    sum += m_tree[i - 1];
  }
  return std::accumulate(m_sizes.begin() + static_cast<std::ptrdiff_t>(block * blockSize),
                         m_sizes.begin() + index, sum);
}

long SizeTable::IndexAt(std::int64_t pixel) const {
  std::size_t block = 0;
  for (std::size_t step = std::bit_floor(m_tree.size()); step > 0; step /= 2) {
    if (block + step <= m_tree.size() && m_tree[block + step - 1] <= pixel) {
      block += step;
      pixel -= m_tree[block - 1];
    }
  }
  std::size_t index = std::min(block * blockSize, m_sizes.size());
  while (index < m_sizes.size() && m_sizes[index] <= pixel) {
    pixel -= m_sizes[index++];
  }
  return static_cast<long>(index);
}

bool SizeTable::Check() const {
  std::int64_t sum = 0;
  for (long i = 0; i < Count(); ++i) {
    if (SumBefore(i) != sum) {
      return false;
    }
    sum += At(i);
  }
  return m_blocks.size() == (m_sizes.size() + blockSize - 1) / blockSize && SumBefore(Count()) == sum;
}

std::int64_t SizeTable::SumOfBlock(std::size_t block) const {
  const auto start = m_sizes.begin() + static_cast<std::ptrdiff_t>(block * blockSize);
  const auto end =
      m_sizes.begin() + static_cast<std::ptrdiff_t>(std::min((block + 1) * blockSize, m_sizes.size()));
  return std::accumulate(start, end, std::int64_t{0});
}

void SizeTable::SumBlocksFrom(std::size_t block) {
  m_blocks.resize((m_sizes.size() + blockSize - 1) / blockSize);
  for (; block < m_blocks.size(); ++block) {
    m_blocks[block] = SumOfBlock(block);
  }
  SumTree();
}

void SizeTable::SumTree() {
  m_tree = m_blocks;
  for (std::size_t i = 1; i <= m_tree.size(); ++i) {
    const std::size_t parent = i + LowestBit(i);
    if (parent <= m_tree.size()) {
      m_tree[parent - 1] += m_tree[i - 1];
    }
  }
}

}  // namespace coregui
