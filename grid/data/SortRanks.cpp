#include "grid/data/SortRanks.h"

#include <algorithm>
#include <cmath>

#include "grid/data/RankTree.h"

namespace coregui {
namespace {

/// Ranks from 0 by key; equal keys share one.
std::vector<std::uint32_t> RankByKey(std::vector<KeyedRow>& rows) {
  SortByKey(rows);
  std::vector<std::uint32_t> ranks(rows.size());
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i != 0 && rows[i].key != rows[i - 1].key) ++rank;
    ranks[rows[i].row] = rank;
  }
  return ranks;
}

std::vector<std::uint32_t> RankColumn(const KeyColumn& keys, bool byNumber) {
  std::vector<KeyedRow> rows(keys.size());
  for (std::uint32_t row = 0; row < rows.size(); ++row) {
    const SortKey& key = keys[row];
    const std::uint64_t text = key.hasText ? key.rank : ~0U;
    rows[row] = {byNumber ? NumberKey(key.number) : text, row};
  }
  return RankByKey(rows);
}

std::vector<std::uint32_t> Combine(const std::vector<std::uint32_t>& first,
                                   const std::vector<std::uint32_t>& second) {
  std::vector<KeyedRow> rows(first.size());
  for (std::uint32_t row = 0; row < rows.size(); ++row) {
    rows[row] = {static_cast<std::uint64_t>(first[row]) << 32U | second[row], row};
  }
  return RankByKey(rows);
}

}  // namespace

SortRanks::SortRanks(const std::vector<KeyColumn>& keys, bool descending) : m_descending(descending) {
  const auto hasNaN = [](const KeyColumn& column) {
    return std::any_of(column.begin(), column.end(),
                       [](const SortKey& key) { return std::isnan(key.number); });
  };
  m_areExact = std::none_of(keys.begin(), keys.end(), hasNaN) && FindKinds(keys);
  if (m_areExact) RankPatterns(keys);
}

std::size_t SortRanks::Extend(std::size_t pattern, std::size_t key, bool byNumber) {
  const std::size_t type = byNumber ? 1 : 0;
  if (m_patterns[pattern].next[type] == 0) {
    m_patterns[pattern].next[type] = m_patterns.size();
    m_patterns.push_back({pattern, key, byNumber, {}, NO_KIND});
  }
  return m_patterns[pattern].next[type];
}

/// Gives each row its kind; false when there are too many.
bool SortRanks::FindKinds(const std::vector<KeyColumn>& keys) {
  const std::size_t count = keys[0].size();
  m_patterns = {{0, 0, false, {}, NO_KIND}};
  m_kinds.assign(count, NO_KIND);
  int kinds = 0;
  for (std::size_t row = 0; row < count; ++row) {
    std::size_t pattern = 0;
    for (std::size_t key = 0; key < keys.size(); ++key) {
      const SortKey& own = keys[key][row];
      if (!own.byNumber && !own.hasText) break;
      pattern = Extend(pattern, key, own.byNumber);
      if (m_patterns.size() > MOST_KINDS) return false;
    }
    if (pattern == 0) continue;
    int& kind = m_patterns[pattern].kind;
    if (kind == NO_KIND) kind = kinds++;
    m_kinds[row] = kind;
  }
  m_ranks.resize(static_cast<std::size_t>(kinds));
  return true;
}

void SortRanks::RankPatterns(const std::vector<KeyColumn>& keys) {
  std::vector<std::vector<std::uint32_t>> ranks(m_patterns.size());
  for (std::size_t i = 1; i < m_patterns.size(); ++i) {
    const Pattern& pattern = m_patterns[i];
    ranks[i] = RankColumn(keys[pattern.key], pattern.byNumber);
    if (pattern.parent != 0) ranks[i] = Combine(ranks[pattern.parent], ranks[i]);
    if (pattern.kind != NO_KIND)
      m_ranks[static_cast<std::size_t>(pattern.kind)].assign(ranks[i].begin(), ranks[i].end());
  }
}

void SortRanks::GetRanks(std::uint32_t row, std::vector<int>& ranks) const {
  for (std::size_t kind = 0; kind < m_ranks.size(); ++kind) {
    const int rank = m_ranks[kind][row];
    if (!m_descending) {
      ranks[kind] = rank;
    } else {
      ranks[kind] = m_kinds[row] == static_cast<int>(kind) ? -rank : RankTree::LOWEST;
    }
  }
}

void SortRanks::GetLimits(std::uint32_t row, std::vector<int>& limits) const {
  for (std::size_t kind = 0; kind < m_ranks.size(); ++kind) {
    const int rank = m_ranks[kind][row];
    if (m_descending) {
      limits[kind] = -rank;
    } else {
      limits[kind] = m_kinds[row] == static_cast<int>(kind) ? rank : RankTree::NEVER;
    }
  }
}

}  // namespace coregui
