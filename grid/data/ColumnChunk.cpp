#include "grid/data/ColumnChunk.h"

#include <algorithm>

namespace coregui {
namespace {

template <typename Value>
void Regrow(std::unique_ptr<Value[]>& values, int count, int capacity) {
  auto grown = std::make_unique_for_overwrite<Value[]>(static_cast<std::size_t>(capacity));
  std::copy_n(values.get(), count, grown.get());
  values = std::move(grown);
}

}  // namespace

void ColumnChunk::Reserve(int count) {
  if (count <= m_capacity) return;
  // Few steps, for tables that are filled row by row; the last leaves no room to spare.
  const int capacity = count <= 2 ? 2 : count <= 8 ? 8 : count <= 24 ? 24 : ROWS;
  Regrow(m_payloads, Count(), capacity);
  if (m_tags != nullptr) Regrow(m_tags, Count(), capacity);
  m_capacity = capacity;
}

/// `count`: the cells, with the one that gets the tag.
void ColumnChunk::PutTag(int rank, int count, std::uint32_t tag) {
  if (m_tags == nullptr) {
    if (count == 1) m_tag = tag;
    if (tag == m_tag) return;
    m_tags = std::make_unique_for_overwrite<std::uint32_t[]>(Index(m_capacity));
    std::fill_n(m_tags.get(), count, m_tag);
  }
  m_tags[Index(rank)] = tag;
}

void ColumnChunk::Put(int row, const CellSlot& cell) {
  const int rank = Rank(row);
  int count = Count();
  if (!Has(row)) {
    Reserve(count + 1);
    const auto open = [rank, count](auto* values) {
      std::copy_backward(values + rank, values + count, values + count + 1);
    };
    open(m_payloads.get());
    if (m_tags != nullptr) open(m_tags.get());
    m_present |= 1ULL << row;
    ++count;
  }
  m_payloads[Index(rank)] = cell.Payload();
  PutTag(rank, count, cell.Tag());
}

void ColumnChunk::Fill(std::span<const CellSlot> rows) {
  const auto exists = [](const CellSlot& cell) { return cell.Exists(); };
  Reserve(static_cast<int>(std::count_if(rows.begin(), rows.end(), exists)));
  int rank = 0;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (!rows[row].Exists()) continue;
    m_payloads[Index(rank)] = rows[row].Payload();
    PutTag(rank, rank + 1, rows[row].Tag());
    m_present |= 1ULL << row;
    ++rank;
  }
}

CellSlot ColumnChunk::Take(int row) {
  const int rank = Rank(row);
  const int count = Count();
  const CellSlot taken = At(rank);
  const auto close = [rank, count](auto* values) {
    std::copy(values + rank + 1, values + count, values + rank);
  };
  close(m_payloads.get());
  if (m_tags != nullptr) close(m_tags.get());
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
  for (std::uint64_t moving = m_present & ~Below(from); moving != 0; moving &= moving - 1) {
    const int row = std::countr_zero(moving);
    target.Put(row - from + at, Find(row));
  }
  m_present &= Below(from);
  if (m_present == 0) Clear();
}

bool ColumnChunk::Check(int rows) const {
  const bool inside = rows >= ROWS || (m_present >> rows) == 0;
  return inside && Count() <= m_capacity && (m_present != 0) == (m_payloads != nullptr) &&
         (m_present != 0 || m_tags == nullptr);
}

}  // namespace coregui
