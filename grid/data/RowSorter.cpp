#include "grid/data/RowSorter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <unordered_map>

#include "grid/data/CGridCell.h"
#include "grid/data/InsertionOrder.h"
#include "grid/data/RankInsertion.h"
#include "grid/data/SortKeys.h"

namespace coregui {
namespace {

/// Compares rows by the owner's own comparison. A missing cell is one with no property set.
class OwnerCompare {
 public:
  OwnerCompare(const CellCodec& codec, CGridSourceOwner& owner, int flags, std::vector<KeyCells> cells)
      : m_codec(codec), m_owner(owner), m_flags(flags), m_cells(std::move(cells)), m_taken(m_cells.size()) {}
  void Take(std::uint32_t row) {
    for (std::size_t key = 0; key < m_cells.size(); ++key) Read(m_cells[key][row], m_taken[key]);
  }
  int First(std::uint32_t other) { return m_cells.empty() ? 0 : CompareKey(0, other); }
  int All(std::uint32_t other) {
    for (std::size_t key = 0; key < m_cells.size(); ++key) {
      if (const int result = CompareKey(key, other); result != 0) return result;
    }
    return 0;
  }

 private:
  void Read(const CellSlot& cell, CGridCell& target) {
    target.ClearAll();
    target.SetPropertyFlags(0);
    if (cell.Exists()) m_codec.MergeInto(cell, m_usual, target);
  }
  int CompareKey(std::size_t key, std::uint32_t other) {
    Read(m_cells[key][other], m_other);
    return m_owner.OnSortEvaluate(&m_taken[key], &m_other, m_flags);
  }

  const CellCodec& m_codec;
  CGridSourceOwner& m_owner;
  int m_flags;
  std::vector<KeyCells> m_cells;
  std::vector<CGridCell> m_taken;
  CGridCell m_other;
  UsualCell m_usual;
};

std::vector<std::uint32_t> InStoredOrder(std::size_t count) {
  std::vector<std::uint32_t> order(count);
  std::iota(order.begin(), order.end(), 0U);
  return order;
}

/// For comparisons by column that do not contradict each other: by the last key first, each sort stable.
std::vector<std::uint32_t> OrderByColumns(const CellCodec& codec, const std::vector<KeyCells>& keys,
                                          bool descending) {
  std::vector<std::uint32_t> order = InStoredOrder(keys.empty() ? 0 : keys[0].size());
  // Two cells without text decide for the stored order; keys after them do not count.
  std::vector<std::vector<bool>> ended(keys.size());
  for (std::size_t key = 1; key < keys.size(); ++key) {
    ended[key] = ended[key - 1];
    ended[key].resize(order.size());
    for (const std::uint32_t row : order) {
      if (IsBlankKey(codec, keys[key - 1][row])) ended[key][row] = true;
    }
  }
  for (std::size_t key = keys.size(); key-- > 0;)
    SortByColumn(codec, keys[key], descending, ended[key], order);
  return order;
}

}  // namespace

void RowSorter::Gather() {
  std::int64_t row = m_store.FirstRow();
  m_items.reserve(static_cast<std::size_t>(std::min<std::int64_t>(m_store.EndRow() - row, 1 << 26)));
  const auto addRun = [this](RowLeaf* leaf, std::int64_t rows) {
    if (rows <= 0) return;
    m_items.push_back({leaf, 0, rows});
    m_hasRuns = true;
  };
  for (RowLeaf* leaf = m_store.Rows().First(); leaf != nullptr; leaf = leaf->next) {
    const std::int64_t before = std::clamp<std::int64_t>(-row, 0, leaf->count);
    if (leaf->HasPositions()) {
      for (int i = 0; i < static_cast<int>(leaf->count); ++i) m_items.push_back({leaf, i, 0});
      m_fixed += static_cast<std::size_t>(before);
    } else {
      addRun(leaf, before);
      m_fixed += before > 0 ? 1 : 0;
      addRun(leaf, leaf->count - before);
    }
    row += leaf->count;
  }
}

void RowSorter::OpenRuns() {
  if (std::none_of(m_items.begin() + static_cast<std::ptrdiff_t>(m_fixed), m_items.end(),
                   [](const Item& item) { return item.run > 1; })) {
    return;
  }
  std::vector<Item> opened(m_items.begin(), m_items.begin() + static_cast<std::ptrdiff_t>(m_fixed));
  for (std::size_t i = m_fixed; i < m_items.size(); ++i) {
    const Item& item = m_items[i];
    for (std::int64_t rows = std::max<std::int64_t>(item.run, 1); rows > 0; --rows) {
      opened.push_back({item.leaf, item.row, item.run > 0 ? 1 : 0});
    }
  }
  m_items = std::move(opened);
}

KeyCells RowSorter::ReadKey(int col) const {
  KeyCells cells(Count());
  const int storage = m_store.Columns().Find(col);
  if (storage == ColumnMap::NONE) return cells;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const Item& item = m_items[i + m_fixed];
    if (item.run == 0) cells[i] = item.leaf->FindCell(storage, item.row);
  }
  return cells;
}

std::vector<KeyCells> RowSorter::ReadKeys(const std::vector<int>& cols) const {
  std::vector<KeyCells> keys;
  keys.reserve(cols.size());
  for (const int col : cols) keys.push_back(ReadKey(col));
  return keys;
}

/// As the required insertion goes. It may part runs; the parts are items of their own then.
std::vector<std::uint32_t> RowSorter::OrderByRanks(const SortRanks& ranks, KeyCompare& compare) {
  const std::size_t count = Count();
  std::vector<RankedRows> rows(count);
  std::uint32_t run = ~0U;  // the name of all rows without positions: they are alike
  for (std::uint32_t i = 0; i < count; ++i) {
    const Item& item = m_items[i + m_fixed];
    if (item.run == 0) {
      rows[i] = {i, 1};
      continue;
    }
    run = std::min(run, i);
    rows[i] = {run, static_cast<std::uint32_t>(item.run)};
  }
  std::vector<std::uint32_t> order;
  order.reserve(count);
  for (const RankedRows& sorted : RankInsertion(ranks, compare).Sort(rows, m_watch)) {
    if (sorted.row != run) {
      order.push_back(sorted.row);
      continue;
    }
    order.push_back(static_cast<std::uint32_t>(Count()));
    m_items.push_back({nullptr, 0, sorted.count});
  }
  return order;
}

/// By a comparison that the owner calls consistent: the rows of a run are equal and stay together.
std::vector<std::uint32_t> RowSorter::OrderByOwner(std::vector<KeyCells>&& keys) {
  std::vector<std::uint32_t> order = InStoredOrder(Count());
  OwnerCompare compare(m_store.Codec(), *m_owner, m_flags, std::move(keys));
  const double expected = static_cast<double>(Count()) * std::log2(static_cast<double>(Count()) + 2.0);
  std::size_t compared = 0;
  std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
    constexpr std::size_t unasked = 1024;
    if (++compared % unasked == 0) m_watch.GoesOn(std::min(static_cast<double>(compared) / expected, 1.0));
    if (!m_watch.GoesOn()) return false;  // the sorting ends soon, with an order that nobody uses
    compare.Take(a);
    return compare.All(b) < 0;
  });
  return order;
}

/// Where nothing stands for the comparisons: the required insertion itself.
std::vector<std::uint32_t> RowSorter::OrderStepByStep(const std::vector<int>& cols) {
  OpenRuns();
  const auto count = static_cast<std::uint32_t>(Count());
  std::vector<KeyCells> cells = ReadKeys(cols);
  if (m_owner != nullptr && m_owner->GetSortOrder() == SortOrder::unknown) {
    OwnerCompare compare(m_store.Codec(), *m_owner, m_flags, std::move(cells));
    return InsertionOrder(compare).Sort(count, m_watch);
  }
  const std::vector<KeyColumn> keys = MakeSortKeys(m_store.Codec(), cells);
  KeyCompare compare(keys, IsDescending());
  return InsertionOrder(compare).Sort(count, m_watch);
}

std::vector<std::uint32_t> RowSorter::Order(const std::vector<int>& cols) {
  const SortOrder known = m_owner != nullptr ? m_owner->GetSortOrder() : SortOrder::standard;
  if (known == SortOrder::unknown) return OrderStepByStep(cols);
  const CellCodec& codec = m_store.Codec();
  std::vector<KeyCells> cells = ReadKeys(cols);
  if (known == SortOrder::consistent) return OrderByOwner(std::move(cells));
  const auto isConsistent = [&codec](const KeyCells& column) { return IsConsistent(codec, column); };
  if (std::all_of(cells.begin(), cells.end(), isConsistent)) {
    m_ordered = 0.4;
    m_watch.BeginPhase(0.0, m_ordered);
    return m_watch.GoesOn(0.5) ? OrderByColumns(codec, cells, IsDescending()) : InStoredOrder(0);
  }
  const std::vector<KeyColumn> keys = MakeSortKeys(codec, cells);
  const SortRanks ranks(keys, IsDescending());
  if (!ranks.AreExact()) return OrderStepByStep(cols);
  KeyCompare compare(keys, IsDescending());
  return OrderByRanks(ranks, compare);
}

bool RowSorter::Sort(const std::vector<int>& cols) {
  if (cols.empty()) return true;
  m_watch.BeginPhase(0.0, m_ordered);
  Gather();
  std::vector<std::uint32_t> order = InStoredOrder(m_fixed);
  const std::vector<std::uint32_t> sorted = Order(cols);
  m_watch.BeginPhase(m_ordered, 1.0);
  if (!m_watch.GoesOn(0.0)) return false;
  order.reserve(m_fixed + sorted.size());
  for (const std::uint32_t row : sorted) order.push_back(row + static_cast<std::uint32_t>(m_fixed));
  return Rebuild(order);
}

std::vector<RowLeaf*> RowSorter::BuildLeaves(const std::vector<std::uint32_t>& order, RowTree& rows) const {
  std::vector<RowLeaf*> leaves;
  std::unique_ptr<RowLeaf> leaf;
  const auto finish = [&] {
    if (leaf == nullptr) return;
    leaves.push_back(leaf.get());
    rows.AppendLeaf(std::move(leaf));
  };
  // Read in stored order first: the places to read at random then lie close together.
  std::vector<std::pair<int, int>> positions(m_items.size());
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    const Item& item = m_items[i];
    const auto row = static_cast<std::size_t>(item.row);
    if (item.run == 0) positions[i] = {item.leaf->positions->first[row], item.leaf->positions->last[row]};
  }
  for (const std::uint32_t at : order) {
    if (IsRun(at)) {
      finish();
      rows.AppendRun(m_items[at].run);
      continue;
    }
    if (leaf != nullptr && leaf->count == RowLeaf::ROWS) finish();
    if (leaf == nullptr) {
      leaf = rows.MakeLeaf();
      leaf->MakePositions();
      leaf->columns.reserve(static_cast<std::size_t>(m_store.Columns().StorageCount()));
    }
    const auto to = static_cast<std::size_t>(leaf->count++);
    leaf->positions->first[to] = positions[at].first;
    leaf->positions->last[to] = positions[at].second;
  }
  finish();
  return leaves;
}

/// False when the watch gave up.
bool RowSorter::FillColumn(int storage, const std::vector<std::uint32_t>& order,
                           const std::vector<RowLeaf*>& leaves) {
  std::vector<CellSlot> cells(m_items.size());
  bool any = false;
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    const Item& item = m_items[i];
    if (item.run == 0) cells[i] = item.leaf->FindCell(storage, item.row);
    any = any || cells[i].Exists();
  }
  if (!any) return true;
  std::array<CellSlot, RowLeaf::ROWS> rows;
  auto at = order.begin();
  for (std::size_t i = 0; i < leaves.size(); ++i) {
    constexpr std::size_t unasked = 1024;
    if (i % unasked == 0 && !m_watch.GoesOn(static_cast<double>(i) / static_cast<double>(leaves.size())))
      return false;
    RowLeaf* const leaf = leaves[i];
    const auto count = static_cast<std::size_t>(leaf->count);
    bool stored = false;
    for (std::size_t row = 0; row < count; ++at) {
      if (IsRun(*at)) continue;
      rows[row] = cells[*at];
      stored = stored || rows[row].Exists();
      ++row;
    }
    if (stored) leaf->FindOrAdd(storage).Fill({rows.data(), count}, leaf->pool);
  }
  return true;
}

/// False when the watch gave up: the store keeps its rows then.
bool RowSorter::Rebuild(const std::vector<std::uint32_t>& order) {
  RowTree rows(m_store.Pool());
  const std::vector<RowLeaf*> leaves = BuildLeaves(order, rows);
  const int columns = m_store.Columns().StorageCount();
  const double share = (1.0 - m_ordered) / std::max(columns, 1);
  for (int storage = 0; storage < columns; ++storage) {
    m_watch.BeginPhase(m_ordered + share * storage, m_ordered + share * (storage + 1));
    if (!FillColumn(storage, order, leaves)) {
      m_store.Discard(rows);
      return false;
    }
  }
  m_store.Rebuild(std::move(rows));
  return true;
}

}  // namespace coregui
