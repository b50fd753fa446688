#include "grid/control/SizeTable.h"

#include <algorithm>
#include <bit>

namespace coregui {

namespace {

std::size_t LowestBit(std::size_t value) {
  return value & (~value + 1);
}

}  // namespace

void SizeTable::Set(long index, int size) {
  const auto at = static_cast<std::size_t>(index);
  const std::int64_t change = size - m_sizes[at];
  m_sizes[at] = size;
  for (std::size_t i = at + 1; i <= m_tree.size(); i += LowestBit(i)) {
    m_tree[i - 1] += change;
  }
}

void SizeTable::Resize(long count, int size) {
  const auto wanted = static_cast<std::size_t>(count);
  if (wanted <= m_sizes.size()) {
    // A node sums only what stands before it, so the nodes that stay are right as they are.
    m_sizes.resize(wanted);
    m_tree.resize(wanted);
    return;
  }
  if (wanted > 2 * m_sizes.size()) {
    m_sizes.resize(wanted, size);
    Rebuild();
    return;
  }
  m_sizes.reserve(std::max(wanted, m_sizes.capacity()));
  while (m_sizes.size() < wanted) {
    const std::size_t node = m_sizes.size() + 1;
    const std::int64_t before =
        SumBefore(static_cast<long>(node - 1)) - SumBefore(static_cast<long>(node - LowestBit(node)));
    m_sizes.push_back(size);
    m_tree.push_back(before + size);
  }
}

void SizeTable::Insert(long index, int size) {
  m_sizes.insert(m_sizes.begin() + index, size);
  Rebuild();
}

void SizeTable::Erase(long index) {
  m_sizes.erase(m_sizes.begin() + index);
  Rebuild();
}

void SizeTable::Move(long from, long to) {
  const int size = At(from);
  m_sizes.erase(m_sizes.begin() + from);
  m_sizes.insert(m_sizes.begin() + to, size);
  Rebuild();
}

void SizeTable::Clear() {
  m_sizes = {};
  m_tree = {};
}

std::int64_t SizeTable::SumBefore(long index) const {
  std::int64_t sum = 0;
  for (auto i = static_cast<std::size_t>(index); i > 0; i -= LowestBit(i)) {
    sum += m_tree[i - 1];
  }
  return sum;
}

long SizeTable::IndexAt(std::int64_t pixel) const {
  std::size_t index = 0;
  for (std::size_t step = std::bit_floor(m_tree.size()); step > 0; step /= 2) {
    if (index + step <= m_tree.size() && m_tree[index + step - 1] <= pixel) {
      index += step;
      pixel -= m_tree[index - 1];
    }
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
  return m_tree.size() == m_sizes.size() && SumBefore(Count()) == sum;
}

void SizeTable::Rebuild() {
  m_tree.assign(m_sizes.begin(), m_sizes.end());
  for (std::size_t i = 1; i <= m_tree.size(); ++i) {
    const std::size_t parent = i + LowestBit(i);
    if (parent <= m_tree.size()) {
      m_tree[parent - 1] += m_tree[i - 1];
    }
  }
}

}  // namespace coregui
