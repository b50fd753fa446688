#include "grid/data/CellStore.h"

#include <algorithm>

namespace coregui {
namespace {

bool HasAny(const RowLeaf::Positions& positions, std::size_t row) {
  return positions.last[row] >= positions.first[row];
}

}  // namespace

CellStore::Place CellStore::Locate(std::int64_t row) {
  std::int64_t inLeaf = row - m_nearStart;
  if (m_nearLeaf == nullptr || inLeaf < 0 || inLeaf >= m_nearLeaf->count) {
    m_nearLeaf = m_rows.Find(row - m_firstRow, inLeaf);
    m_nearStart = row - inLeaf;
  }
  return {m_nearLeaf, static_cast<int>(std::min<std::int64_t>(inLeaf, RowLeaf::ROWS)), inLeaf};
}

void CellStore::IncludeRow(std::int64_t row) {
  if (m_rows.Count() == 0) {
    m_firstRow = 0;
    m_rows.Append(1);
    ForgetPlace();
  }
  if (row < m_firstRow) {
    m_rows.Prepend(m_firstRow - row);
    m_firstRow = row;
    ForgetPlace();
  }
  if (row >= EndRow()) m_rows.Append(row - EndRow() + 1);
}

CellStore::Place CellStore::MakeRow(std::int64_t row) {
  IncludeRow(row);
  Place place = Locate(row);
  if (!place.leaf->HasPositions()) {
    std::int64_t inLeaf = place.wide;
    m_nearLeaf = m_rows.MakePositions(place.leaf, inLeaf);
    m_nearStart = row - inLeaf;
    place = {m_nearLeaf, static_cast<int>(inLeaf), inLeaf};
  }
  return place;
}

bool CellStore::HasPosition(int col, std::int64_t row) {
  if (!HasRow(row)) return false;
  const Place place = Locate(row);
  return place.leaf->HasPosition(col, place.row);
}

const CellSlot* CellStore::Find(int col, std::int64_t row) {
  const int storage = m_columns.Find(col);
  if (storage == ColumnMap::NONE || !HasRow(row)) return nullptr;
  const Place place = Locate(row);
  return place.leaf->FindCell(storage, place.row);
}

bool CellStore::Get(int col, std::int64_t row, CGridCell& cell) {
  const CellSlot* const slot = Find(col, row);
  if (slot == nullptr) return false;
  m_codec.MergeInto(*slot, cell);
  return true;
}

void CellStore::Set(int col, std::int64_t row, CGridCell& cell) {
  const Place place = MakeRow(row);
  const auto index = static_cast<std::size_t>(place.row);
  RowLeaf::Positions& positions = *place.leaf->positions;
  // The first write makes column 0 too.
  if (!HasAny(positions, index)) positions.first[index] = positions.last[index] = 0;
  positions.first[index] = std::min(positions.first[index], col);
  positions.last[index] = std::max(positions.last[index], col);
  ColumnChunk& chunk = place.leaf->FindOrAdd(m_columns.FindOrAdd(col));
  if (CellSlot* const slot = chunk.Find(place.row); slot != nullptr) {
    m_codec.Store(cell, *slot, false);
    return;
  }
  m_codec.Store(cell, chunk.Add(place.row), true);
}

void CellStore::ReleaseCell(RowLeaf& leaf, int storage, int row) {
  ColumnChunk* const chunk = leaf.Find(storage);
  if (chunk == nullptr || !chunk->Has(row)) return;
  CellSlot slot = chunk->Take(row);
  m_codec.Release(slot);
}

bool CellStore::Delete(int col, std::int64_t row) {
  if (!HasPosition(col, row)) return false;
  const Place place = Locate(row);
  if (const int storage = m_columns.Find(col); storage != ColumnMap::NONE) {
    ReleaseCell(*place.leaf, storage, place.row);
  }
  return true;
}

void CellStore::InsertRow(std::int64_t row) {
  m_rows.InsertRow(row - m_firstRow);
  ForgetPlace();
}

void CellStore::ReleaseRow(RowLeaf& leaf, int row) {
  if (!leaf.HasPositions()) return;
  for (int storage = 0; storage < static_cast<int>(leaf.columns.size()); ++storage)
    ReleaseCell(leaf, storage, row);
}

void CellStore::DeleteRow(std::int64_t row) {
  const Place place = Locate(row);
  ReleaseRow(*place.leaf, place.row);
  m_rows.EraseRow(row - m_firstRow);
  ForgetPlace();
  if (m_rows.Count() == 0) Clear();
}

void CellStore::MoveCell(RowLeaf& leaf, int row, int from, int to) {
  const int source = m_columns.Find(from);
  if (source == ColumnMap::NONE || leaf.FindCell(source, row) == nullptr) return;
  const CellSlot slot = leaf.Find(source)->Take(row);
  leaf.FindOrAdd(m_columns.FindOrAdd(to)).Add(row) = slot;
}

void CellStore::InsertCol(int col) {
  m_columns.Insert(col);
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    if (!leaf->HasPositions()) continue;
    RowLeaf::Positions& positions = *leaf->positions;
    if (col >= 0) {
      // Every row with positions has one at or before column 0; rows without end at -1. No branch: a vector
      // loop.
      for (int& last : positions.last) last += last >= col ? 1 : 0;
      continue;
    }
    for (std::size_t row = 0; row < static_cast<std::size_t>(leaf->count); ++row) {
      const int first = positions.first[row];
      const int last = positions.last[row];
      positions.last[row] = last + (first <= col && col <= last ? 1 : 0);
      if (first <= col || last < first) continue;
      // A row that does not reach so far left stays as it is: its cells go back to where they were.
      for (int at = first; at <= last; ++at) MoveCell(*leaf, static_cast<int>(row), at + 1, at);
    }
  }
}

void CellStore::ReleaseColumn(int storage) {
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    ColumnChunk* const chunk = leaf->Find(storage);
    if (chunk == nullptr) continue;
    for (CellSlot& slot : *chunk) m_codec.Release(slot);
    chunk->Clear();
  }
}

void CellStore::DeleteCol(int col) {
  if (const int storage = m_columns.Erase(col); storage != ColumnMap::NONE) ReleaseColumn(storage);
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    if (!leaf->HasPositions()) continue;
    RowLeaf::Positions& positions = *leaf->positions;
    if (col >= 0) {
      for (int& last : positions.last) last -= last > col ? 1 : 0;
      continue;
    }
    for (std::size_t row = 0; row < static_cast<std::size_t>(leaf->count); ++row) {
      const int first = positions.first[row];
      const int last = positions.last[row];
      positions.last[row] = last - (first <= col && col < last ? 1 : 0);
      if (first <= col || last < first) continue;
      for (int at = last; at >= first; --at) MoveCell(*leaf, static_cast<int>(row), at - 1, at);
    }
  }
}

void CellStore::Clear() {
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    for (ColumnChunk& chunk : leaf->columns) {
      for (CellSlot& slot : chunk) m_codec.Release(slot);
    }
  }
  m_rows.Clear();
  m_columns.Clear();
  m_codec.Clear();
  m_firstRow = 0;
  ForgetPlace();
}

bool CellStore::LastPosition(std::int64_t row, int& col) {
  const Place place = Locate(row);
  if (!place.leaf->HasPositions()) return false;
  const auto index = static_cast<std::size_t>(place.row);
  col = place.leaf->positions->last[index];
  return HasAny(*place.leaf->positions, index);
}

void CellStore::Rebuild(RowTree&& rows) {
  m_rows = std::move(rows);
  ForgetPlace();
}

bool CellStore::Check() const {
  if (!m_rows.Check() || !m_columns.Check() || !m_codec.Looks().Check()) return false;
  std::vector<std::uint64_t> uses(m_codec.Looks().Size(), 0);
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    if (leaf->columns.size() > static_cast<std::size_t>(m_columns.StorageCount())) return false;
    for (int col = m_columns.First(); col < m_columns.End(); ++col) {
      const ColumnChunk* const chunk =
          m_columns.Find(col) == ColumnMap::NONE ? nullptr : leaf->Find(m_columns.Find(col));
      for (int row = 0; chunk != nullptr && row < RowLeaf::ROWS; ++row) {
        const CellSlot* const slot = chunk->Find(row);
        if (slot == nullptr) continue;
        if (!leaf->HasPosition(col, row) || !m_codec.Check(*slot)) return false;
        ++uses[slot->Look()];
      }
    }
  }
  for (std::size_t id = 0; id < uses.size(); ++id) {
    if (uses[id] != m_codec.Looks().Count(static_cast<std::uint32_t>(id))) return false;
  }
  return true;
}

}  // namespace coregui
