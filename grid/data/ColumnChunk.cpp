#include "grid/data/ColumnChunk.h"

#include <algorithm>
#include <bit>

namespace coregui {

int ColumnChunk::BitCount(std::uint64_t bits) {
  return std::popcount(bits);
}

void ColumnChunk::Reserve(int count) {
  if (count <= m_capacity) return;
  int capacity = m_capacity == 0 ? std::max(count, 2) : m_capacity;
  while (capacity < count) capacity += std::max(capacity / 2, 2);
  // A chunk that fills up in order ends with no room to spare.
  if (capacity > 40) capacity = ROWS;
  auto cells = std::make_unique_for_overwrite<CellSlot[]>(static_cast<std::size_t>(capacity));
  std::copy(begin(), end(), cells.get());
  m_cells = std::move(cells);
  m_capacity = capacity;
}

CellSlot& ColumnChunk::Add(int row) {
  const int count = Count();
  Reserve(count + 1);
  const int rank = Rank(row);
  std::copy_backward(m_cells.get() + rank, m_cells.get() + count, m_cells.get() + count + 1);
  m_present |= 1ULL << row;
  return m_cells[rank];
}

CellSlot ColumnChunk::Take(int row) {
  const int rank = Rank(row);
  const CellSlot taken = m_cells[rank];
  std::copy(m_cells.get() + rank + 1, end(), m_cells.get() + rank);
  m_present &= ~(1ULL << row);
  if (m_present == 0) Clear();
  return taken;
}

void ColumnChunk::InsertRow(int row) {
  const std::uint64_t below = m_present & Below(row);
  m_present = below | ((m_present ^ below) << 1U);
}

void ColumnChunk::EraseRow(int row) {
  const std::uint64_t below = m_present & Below(row);
  m_present = below | ((m_present ^ below) >> 1U);
}

void ColumnChunk::MoveTail(int from, ColumnChunk& target, int at) {
  const std::uint64_t moving = m_present & ~Below(from);
  if (moving == 0) return;
  const int kept = Rank(from);
  const int present = target.Count();
  target.Reserve(present + BitCount(moving));
  std::copy(m_cells.get() + kept, end(), target.m_cells.get() + present);
  target.m_present |= (moving >> from) << at;
  m_present &= Below(from);
  if (m_present == 0) Clear();
}

bool ColumnChunk::Check(int rows) const {
  const bool inside = rows >= ROWS || (m_present >> rows) == 0;
  return inside && Count() <= m_capacity && (m_present != 0 || m_cells == nullptr);
}

}  // namespace coregui
