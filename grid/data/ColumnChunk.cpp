#include "grid/data/ColumnChunk.h"

#include <algorithm>

namespace coregui {
namespace {

template <typename Value>
Value* Allocate(int capacity, CellPool& pool) {
  return static_cast<Value*>(pool.Allocate(sizeof(Value) * static_cast<std::size_t>(capacity)));
}

template <typename Value>
void Release(Value* values, int capacity, CellPool& pool) {
  if (values != nullptr) pool.Release(values, sizeof(Value) * static_cast<std::size_t>(capacity));
}

template <typename Value>
void Regrow(Value*& values, int count, int before, int capacity, CellPool& pool) {
  auto* const grown = Allocate<Value>(capacity, pool);
  std::copy_n(values, count, grown);
  Release(values, before, pool);
  values = grown;
}

}  // namespace

void ColumnChunk::Reserve(int count, CellPool& pool) {
  if (count <= m_capacity) return;
  // Few steps, for tables that are filled row by row; the last leaves no room to spare.
  const int capacity = count <= 2 ? 2 : count <= 8 ? 8 : count <= 24 ? 24 : ROWS;
  Regrow(m_payloads, Count(), m_capacity, capacity, pool);
  if (m_tags != nullptr) Regrow(m_tags, Count(), m_capacity, capacity, pool);
  m_capacity = capacity;
}

/// `count`: the cells, with the one that gets the tag.
void ColumnChunk::PutTag(int rank, int count, std::uint32_t tag, CellPool& pool) {
  if (m_tags == nullptr) {
    if (count == 1) m_tag = tag;
    if (tag == m_tag) return;
    m_tags = Allocate<std::uint32_t>(m_capacity, pool);
    std::fill_n(m_tags, count, m_tag);
  }
  m_tags[Index(rank)] = tag;
}

void ColumnChunk::Put(int row, const CellSlot& cell, CellPool& pool) {
  const int rank = Rank(row);
  int count = Count();
  if (!Has(row)) {
    Reserve(count + 1, pool);
    const auto open = [rank, count](auto* values) {
      std::copy_backward(values + rank, values + count, values + count + 1);
    };
    open(m_payloads);
    if (m_tags != nullptr) open(m_tags);
    m_present |= 1ULL << row;
    ++count;
  }
  m_payloads[Index(rank)] = cell.Payload();
  PutTag(rank, count, cell.Tag(), pool);
}

void ColumnChunk::Fill(std::span<const CellSlot> rows, CellPool& pool) {
  const auto exists = [](const CellSlot& cell) { return cell.Exists(); };
  Reserve(static_cast<int>(std::count_if(rows.begin(), rows.end(), exists)), pool);
  int rank = 0;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (!rows[row].Exists()) continue;
    m_payloads[Index(rank)] = rows[row].Payload();
    PutTag(rank, rank + 1, rows[row].Tag(), pool);
    m_present |= 1ULL << row;
    ++rank;
  }
}

CellSlot ColumnChunk::Take(int row, CellPool& pool) {
  const int rank = Rank(row);
  const int count = Count();
  const CellSlot taken = At(rank);
  const auto close = [rank, count](auto* values) {
    std::copy(values + rank + 1, values + count, values + rank);
  };
  close(m_payloads);
  if (m_tags != nullptr) close(m_tags);
  m_present &= ~(1ULL << row);
  if (m_present == 0) Clear(pool);
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

void ColumnChunk::MoveTail(int from, ColumnChunk& target, int at, CellPool& pool) {
  for (std::uint64_t moving = m_present & ~Below(from); moving != 0; moving &= moving - 1) {
    const int row = std::countr_zero(moving);
    target.Put(row - from + at, Find(row), pool);
  }
  m_present &= Below(from);
  if (m_present == 0) Clear(pool);
}

void ColumnChunk::Clear(CellPool& pool) {
  Release(m_payloads, m_capacity, pool);
  Release(m_tags, m_capacity, pool);
  *this = {};
}

bool ColumnChunk::Check(int rows) const {
  const bool inside = rows >= ROWS || (m_present >> rows) == 0;
  return inside && Count() <= m_capacity && (m_present != 0) == (m_payloads != nullptr) &&
         (m_present != 0 || m_tags == nullptr);
}

}  // namespace coregui
