#include "grid/data/RankTree.h"

#include <algorithm>
#include <numeric>

namespace coregui {

RankTree::RankTree(std::size_t kinds) : m_kinds(kinds) {
  m_root = AddNode();
}

std::uint32_t RankTree::AddNode() {
  m_nodes.emplace_back();
  m_ranks.resize(m_nodes.size() * m_kinds * WIDTH, LOWEST);
  return static_cast<std::uint32_t>(m_nodes.size() - 1);
}

std::uint32_t RankTree::At(std::uint32_t position) const {
  std::uint32_t node = m_root;
  for (int level = m_height; level > 0; --level) {
    const Node& inner = m_nodes[node];
    std::uint32_t at = 0;
    while (position >= inner.counts[at]) position -= inner.counts[at++];
    node = inner.entries[at];
  }
  return m_nodes[node].entries[position];
}

std::uint32_t RankTree::FirstAbove(std::uint32_t node, std::uint32_t from,
                                   const std::vector<int>& limits) const {
  std::uint32_t end = m_nodes[node].size;
  for (std::size_t kind = 0; kind < m_kinds; ++kind) {
    const int limit = limits[kind];
    if (limit == NEVER) continue;
    const int* const ranks = Ranks(node, kind);
    end = static_cast<std::uint32_t>(
        std::find_if(ranks + from, ranks + end, [limit](int rank) { return rank > limit; }) - ranks);
  }
  return end;
}

std::uint32_t RankTree::FindIn(std::uint32_t node, int level, std::uint32_t from,
                               const std::vector<int>& limits) const {
  const Node& here = m_nodes[node];
  if (level == 0) {
    const std::uint32_t found = from < here.size ? FirstAbove(node, from, limits) : here.size;
    return found < here.size ? found : NONE;
  }
  std::uint32_t at = 0;
  std::uint32_t before = 0;
  while (at < here.size && from >= before + here.counts[at]) before += here.counts[at++];
  if (at < here.size && from > before) {
    const std::uint32_t found = FindIn(here.entries[at], level - 1, from - before, limits);
    if (found != NONE) return before + found;
    before += here.counts[at++];
  }
  const std::uint32_t to = at < here.size ? FirstAbove(node, at, limits) : here.size;
  if (to == here.size) return NONE;
  before = std::accumulate(here.counts.begin() + at, here.counts.begin() + to, before);
  return before + FindIn(here.entries[to], level - 1, 0, limits);
}

std::uint32_t RankTree::FindAbove(std::uint32_t from, const std::vector<int>& limits) const {
  const std::uint32_t found = FindIn(m_root, m_height, from, limits);
  return found == NONE ? m_size : found;
}

void RankTree::InsertEntry(std::uint32_t node, std::uint32_t at, std::uint32_t entry, std::uint32_t count) {
  Node& target = m_nodes[node];
  const std::uint32_t size = target.size++;
  const auto shift = [at, size](auto* values) {
    std::copy_backward(values + at, values + size, values + size + 1);
  };
  shift(target.entries.data());
  shift(target.counts.data());
  for (std::size_t kind = 0; kind < m_kinds; ++kind) shift(Ranks(node, kind));
  target.entries[at] = entry;
  target.counts[at] = count;
}

std::uint32_t RankTree::CountRows(std::uint32_t node, bool isLeaf) const {
  const Node& counted = m_nodes[node];
  return isLeaf ? counted.size
                : std::accumulate(counted.counts.begin(), counted.counts.begin() + counted.size, 0U);
}

/// Sets an entry's ranks to the largest of the node that it stands for.
void RankTree::TakeLargest(std::uint32_t node, std::uint32_t at) {
  const std::uint32_t below = m_nodes[node].entries[at];
  for (std::size_t kind = 0; kind < m_kinds; ++kind) {
    const int* const ranks = Ranks(below, kind);
    Ranks(node, kind)[at] = *std::max_element(ranks, ranks + m_nodes[below].size);
  }
}

/// Makes two of the full node that stands at `at`. A split `atEnd` leaves most where it is: rows that come in
/// order fill their nodes.
void RankTree::SplitEntry(std::uint32_t node, std::uint32_t at, bool atEnd, bool aboveLeaves) {
  const std::uint32_t right = AddNode();
  const std::uint32_t left = m_nodes[node].entries[at];
  const std::uint32_t kept = atEnd ? WIDTH - WIDTH / 8 : WIDTH / 2;
  Node& source = m_nodes[left];
  Node& target = m_nodes[right];
  const auto move = [kept](const auto* from, auto* to) { std::copy(from + kept, from + WIDTH, to); };
  move(source.entries.data(), target.entries.data());
  move(source.counts.data(), target.counts.data());
  for (std::size_t kind = 0; kind < m_kinds; ++kind) move(Ranks(left, kind), Ranks(right, kind));
  target.size = WIDTH - kept;
  source.size = kept;
  const std::uint32_t moved = CountRows(right, aboveLeaves);
  m_nodes[node].counts[at] -= moved;
  InsertEntry(node, at + 1, right, moved);
  TakeLargest(node, at);
  TakeLargest(node, at + 1);
}

/// The entry that a row comes below when it takes the position; at a border the one before.
RankTree::Place RankTree::FindEntry(std::uint32_t node, std::uint32_t position) const {
  const Node& inner = m_nodes[node];
  Place place;
  while (position > place.before + inner.counts[place.at]) place.before += inner.counts[place.at++];
  return place;
}

void RankTree::GrowRoot() {
  const std::uint32_t old = m_root;
  m_root = AddNode();
  ++m_height;
  InsertEntry(m_root, 0, old, m_size);
  TakeLargest(m_root, 0);
}

void RankTree::Insert(std::uint32_t position, std::uint32_t row, const std::vector<int>& ranks) {
  if (m_nodes[m_root].size == WIDTH) GrowRoot();
  const bool atEnd = position == m_size;
  std::uint32_t node = m_root;
  for (int level = m_height; level > 0; --level) {
    Place place = FindEntry(node, position);
    if (m_nodes[m_nodes[node].entries[place.at]].size == WIDTH) {
      SplitEntry(node, place.at, atEnd, level == 1);
      place = FindEntry(node, position);
    }
    ++m_nodes[node].counts[place.at];
    for (std::size_t kind = 0; kind < m_kinds; ++kind) {
      int& largest = Ranks(node, kind)[place.at];
      largest = std::max(largest, ranks[kind]);
    }
    position -= place.before;
    node = m_nodes[node].entries[place.at];
  }
  InsertEntry(node, position, row, 1);
  for (std::size_t kind = 0; kind < m_kinds; ++kind) Ranks(node, kind)[position] = ranks[kind];
  ++m_size;
}

void RankTree::FlattenNode(std::uint32_t node, int level, std::vector<std::uint32_t>& rows) const {
  const Node& here = m_nodes[node];
  const auto end = here.entries.begin() + here.size;
  if (level == 0) {
    rows.insert(rows.end(), here.entries.begin(), end);
    return;
  }
  std::for_each(here.entries.begin(), end, [&](std::uint32_t entry) { FlattenNode(entry, level - 1, rows); });
}

std::vector<std::uint32_t> RankTree::Flatten() const {
  std::vector<std::uint32_t> rows;
  rows.reserve(m_size);
  FlattenNode(m_root, m_height, rows);
  return rows;
}

bool RankTree::CheckNode(std::uint32_t node, int level) const {
  const Node& here = m_nodes[node];
  if (here.size > WIDTH || level == 0) return here.size <= WIDTH;
  for (std::uint32_t at = 0; at < here.size; ++at) {
    const std::uint32_t below = here.entries[at];
    if (m_nodes[below].size == 0 || !CheckNode(below, level - 1)) return false;
    if (here.counts[at] != CountRows(below, level == 1)) return false;
    for (std::size_t kind = 0; kind < m_kinds; ++kind) {
      const int* const ranks = Ranks(below, kind);
      if (Ranks(node, kind)[at] != *std::max_element(ranks, ranks + m_nodes[below].size)) return false;
    }
  }
  return true;
}

bool RankTree::Check() const {
  return CheckNode(m_root, m_height) && CountRows(m_root, m_height == 0) == m_size;
}

}  // namespace coregui
