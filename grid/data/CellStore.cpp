#include "grid/data/CellStore.h"

#include <algorithm>

namespace coregui {
/// The leaf of a row that exists; `inLeaf` is the row's index in it.
RowLeaf& CellStore::LeafOf(std::int64_t row, std::int64_t& inLeaf) {
  inLeaf = row - m_nearStart;
  // A row before the leaf has an index beyond any count.
  if (m_nearLeaf == nullptr ||
      static_cast<std::uint64_t>(inLeaf) >= static_cast<std::uint64_t>(m_nearLeaf->count)) {
    m_nearLeaf = m_rows.Find(row - m_firstRow, inLeaf);
    m_nearStart = row - inLeaf;
  }
  return *m_nearLeaf;
}

CellStore::Place CellStore::Locate(std::int64_t row) {
  std::int64_t inLeaf = 0;
  RowLeaf& leaf = LeafOf(row, inLeaf);
  return {&leaf, static_cast<int>(std::min<std::int64_t>(inLeaf, RowLeaf::ROWS)), inLeaf};
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

bool CellStore::LeafHasPosition(const RowLeaf& leaf, int row, int col) const {
  if (!leaf.HasPositions() || !leaf.positions->HasAny(row)) return false;
  const auto index = static_cast<std::size_t>(row);
  return leaf.positions->first[index] <= col && col <= m_columns.ColumnOf(leaf.positions->last[index]);
}

bool CellStore::HasPosition(int col, std::int64_t row) {
  if (!HasRow(row)) return false;
  const Place place = Locate(row);
  return LeafHasPosition(*place.leaf, place.row, col);
}

CellSlot CellStore::FindStored(int storage, std::int64_t row) {
  if (storage == ColumnMap::NONE || !HasRow(row)) return {};
  std::int64_t inLeaf = 0;
  const RowLeaf& leaf = LeafOf(row, inLeaf);
  return leaf.FindCell(storage, inLeaf);
}

CellSlot CellStore::Find(int col, std::int64_t row) {
  return FindStored(m_columns.Find(col), row);
}

void CellStore::MakeUsual() {
  m_usual.resize(static_cast<std::size_t>(m_columns.StorageCount()));
}

bool CellStore::Get(int col, std::int64_t row, CGridCell& cell) {
  const int storage = m_columns.Find(col);
  const CellSlot slot = FindStored(storage, row);
  if (!slot.Exists()) return false;
  const auto column = static_cast<std::size_t>(storage);
  if (column >= m_usual.size()) MakeUsual();
  m_codec.MergeInto(slot, m_usual[column], cell);
  return true;
}

void CellStore::Set(int col, std::int64_t row, CGridCell& cell) {
  const Place place = MakeRow(row);
  const auto index = static_cast<std::size_t>(place.row);
  RowLeaf::Positions& positions = *place.leaf->positions;
  if (!positions.HasAny(place.row)) {
    // The first write makes column 0 too.
    positions.first[index] = 0;
    positions.last[index] = m_columns.FindOrAdd(0);
  }
  const int storage = m_columns.FindOrAdd(col);
  positions.first[index] = std::min(positions.first[index], col);
  if (col > m_columns.ColumnOf(positions.last[index])) positions.last[index] = storage;
  ColumnChunk& chunk = place.leaf->FindOrAdd(storage);
  const CellSlot before = chunk.Find(place.row);
  chunk.Put(place.row, m_codec.Make(cell), m_pool);
  if (before.Exists()) m_codec.Release(before);
}

void CellStore::ReleaseCell(RowLeaf& leaf, int storage, int row) {
  ColumnChunk* const chunk = leaf.Find(storage);
  if (chunk != nullptr && chunk->Has(row)) m_codec.Release(chunk->Take(row, m_pool));
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
  if (source == ColumnMap::NONE || !leaf.FindCell(source, row).Exists()) return;
  const CellSlot slot = leaf.Find(source)->Take(row, m_pool);
  leaf.FindOrAdd(m_columns.FindOrAdd(to)).Put(row, slot, m_pool);
}

/// The rows with positions of which none is as far left as the negative column `col`.
template <typename Action>
void CellStore::ForEachRowRightOf(int col, Action action) {
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    for (int row = 0; leaf->HasPositions() && row < static_cast<int>(leaf->count); ++row) {
      const auto index = static_cast<std::size_t>(row);
      const int first = leaf->positions->first[index];
      if (first > col && leaf->positions->HasAny(row))
        action(*leaf, row, first, leaf->positions->last[index]);
    }
  }
}

void CellStore::InsertCol(int col) {
  m_columns.Insert(col);
  // Every row with positions has one at column 0. So the rows that end before `col` stay as they are, and the
  // others have moved.
  if (col >= 0) return;
  // A row that does not reach so far left stays as it is: its cells go back to where they were.
  ForEachRowRightOf(col, [this](RowLeaf& leaf, int row, int first, int& last) {
    const int end = m_columns.ColumnOf(last) - 1;
    for (int at = first; at <= end; ++at) MoveCell(leaf, row, at + 1, at);
    last = m_columns.FindOrAdd(end);
  });
}

void CellStore::ReleaseChunk(ColumnChunk& chunk) {
  for (int i = 0; i < chunk.Count(); ++i) m_codec.Release(chunk.At(i));
  chunk.Clear(m_pool);
}

/// Releases the cells of a storage column that gave up column `col`. Rows that ended there go on to do so.
void CellStore::ReleaseColumn(int storage, int col) {
  int heir = ColumnMap::NONE;
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    if (ColumnChunk* const chunk = leaf->Find(storage); chunk != nullptr) ReleaseChunk(*chunk);
    for (int row = 0; leaf->HasPositions() && row < static_cast<int>(leaf->count); ++row) {
      int& last = leaf->positions->last[static_cast<std::size_t>(row)];
      if (last != storage) continue;
      if (heir == ColumnMap::NONE) heir = m_columns.FindOrAdd(col);
      last = heir;
    }
  }
}

void CellStore::DeleteCol(int col) {
  if (const int storage = m_columns.Erase(col); storage != ColumnMap::NONE) ReleaseColumn(storage, col);
  if (col >= 0) return;
  ForEachRowRightOf(col, [this](RowLeaf& leaf, int row, int first, int& last) {
    const int end = m_columns.ColumnOf(last) + 1;
    for (int at = end; at >= first; --at) MoveCell(leaf, row, at - 1, at);
    last = m_columns.FindOrAdd(end);
  });
}

void CellStore::Clear() {
  for (RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    for (ColumnChunk& chunk : leaf->columns) ReleaseChunk(chunk);
  }
  m_rows.Clear();
  m_columns.Clear();
  m_usual.clear();
  m_codec.Clear();
  m_pool.Clear();
  m_firstRow = 0;
  ForgetPlace();
}

std::int64_t CellStore::NextRowWith(DWORD properties, int col, std::int64_t row) {
  const int storage = m_columns.Find(col);
  std::int64_t at = std::max(row, FirstRow());
  if (storage == ColumnMap::NONE || at >= EndRow() || !m_codec.Looks().HasAny(properties)) return EndRow();
  const Place place = Locate(at);
  std::int64_t inLeaf = place.wide;
  for (RowLeaf* leaf = place.leaf; leaf != nullptr; leaf = leaf->next, inLeaf = 0) {
    if (const ColumnChunk* const chunk = leaf->Find(storage); chunk != nullptr && chunk->Count() > 0) {
      for (; inLeaf < leaf->count; ++inLeaf, ++at) {
        const CellSlot slot = chunk->Find(static_cast<int>(inLeaf));
        if (slot.Exists() && (m_codec.Look(slot).flags & properties) != 0) return at;
      }
    } else {
      at += leaf->count - inLeaf;
    }
  }
  return at;
}

bool CellStore::LastPosition(std::int64_t row, int& col) {
  const Place place = Locate(row);
  if (!place.leaf->HasPositions() || !place.leaf->positions->HasAny(place.row)) return false;
  col = m_columns.ColumnOf(place.leaf->positions->last[static_cast<std::size_t>(place.row)]);
  return true;
}

void CellStore::Discard(RowTree& rows) {
  for (RowLeaf* leaf = rows.First(); leaf != nullptr; leaf = leaf->next) {
    for (ColumnChunk& chunk : leaf->columns) chunk.Clear(m_pool);
  }
}

void CellStore::Rebuild(RowTree&& rows) {
  Discard(m_rows);
  m_rows = std::move(rows);
  ForgetPlace();
}

bool CellStore::CheckLeaf(const RowLeaf& leaf, Uses& uses) const {
  for (int row = 0; leaf.HasPositions() && row < static_cast<int>(leaf.count); ++row) {
    const int last = leaf.positions->last[static_cast<std::size_t>(row)];
    if (last != ColumnMap::NONE && m_columns.Find(m_columns.ColumnOf(last)) != last) return false;
  }
  for (std::size_t storage = 0; storage < leaf.columns.size(); ++storage) {
    uses.blocks += leaf.columns[storage].BlockCount();
    for (int row = 0; row < RowLeaf::ROWS; ++row) {
      const CellSlot slot = leaf.columns[storage].Find(row);
      if (!slot.Exists()) continue;
      const int col = m_columns.ColumnOf(static_cast<int>(storage));
      if (!LeafHasPosition(leaf, row, col) || !m_codec.Check(slot)) return false;
      ++uses.looks[slot.Look()];
      uses.blocks += slot.HasBlock() ? 1 : 0;
    }
  }
  return true;
}

bool CellStore::Check() const {
  if (!m_rows.Check() || !m_columns.Check() || !m_codec.Looks().Check()) return false;
  Uses uses{std::vector<std::uint64_t>(m_codec.Looks().Size(), 0)};
  for (const RowLeaf* leaf = m_rows.First(); leaf != nullptr; leaf = leaf->next) {
    if (leaf->columns.size() > static_cast<std::size_t>(m_columns.StorageCount())) return false;
    if (!CheckLeaf(*leaf, uses)) return false;
  }
  if (uses.blocks != m_pool.InUse()) return false;
  for (std::size_t id = 0; id < uses.looks.size(); ++id) {
    if (uses.looks[id] != m_codec.Looks().Count(static_cast<std::uint32_t>(id))) return false;
  }
  return true;
}

}  // namespace coregui
