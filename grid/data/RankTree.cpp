#include "grid/data/RankTree.h"

#include <algorithm>

namespace coregui {

/// The entry that holds the position, which is below Rows(). It looks at all entries: that takes no branch.
std::uint32_t RankTree::Node::Find(std::uint32_t position) const {
  std::uint32_t before = 0;
  for (const std::uint32_t end : ends) before += end <= position ? 1 : 0;
  return before;
}

RankTree::RankTree(std::size_t kinds) : m_kinds(kinds) {
  m_root = AddNode();
}

std::uint32_t RankTree::AddNode() {
  m_nodes.emplace_back();
  m_ranks.resize(m_nodes.size() * m_kinds * WIDTH, LOWEST);
  return static_cast<std::uint32_t>(m_nodes.size() - 1);
}

RankedRows RankTree::EntryAt(std::uint32_t position) const {
  std::uint32_t node = m_root;
  for (int level = m_height;; --level) {
    const Node& here = m_nodes[node];
    const std::uint32_t at = here.Find(position);
    if (level == 0) return {here.entries[at], here.ends[at] - position};
    position -= here.Start(at);
    node = here.entries[at];
  }
}

/// The first entry from `from` on with a rank above its limit; the node's size when none.
std::uint32_t RankTree::FirstAbove(std::uint32_t node, std::uint32_t from,
                                   const std::vector<int>& limits) const {
  constexpr std::uint32_t BLOCK = 16;
  std::uint32_t end = m_nodes[node].size;
  for (std::size_t kind = 0; kind < m_kinds; ++kind) {
    const int limit = limits[kind];
    if (limit == NEVER) continue;
    const int* const ranks = Ranks(node, kind);
    std::uint32_t at = from;
    for (; at + BLOCK <= end; at += BLOCK) {
      int any = 0;
      for (std::uint32_t i = 0; i < BLOCK; ++i) any |= ranks[at + i] > limit ? 1 : 0;
      if (any != 0) break;
    }
    while (at < end && ranks[at] <= limit) ++at;
    end = std::min(end, at);
  }
  return end;
}

std::uint32_t RankTree::FindIn(std::uint32_t node, int level, std::uint32_t from,
                               const std::vector<int>& limits) const {
  const Node& here = m_nodes[node];
  std::uint32_t at = from == 0 ? 0 : here.Find(from);
  if (level == 0) {
    const std::uint32_t found = FirstAbove(node, at, limits);
    if (found == here.size) return NONE;
    return found == at ? from : here.Start(found);
  }
  if (from > here.Start(at)) {
    const std::uint32_t found = FindIn(here.entries[at], level - 1, from - here.Start(at), limits);
    if (found != NONE) return here.Start(at) + found;
    ++at;
  }
  const std::uint32_t to = FirstAbove(node, at, limits);
  return to >= here.size ? NONE : here.Start(to) + FindIn(here.entries[to], level - 1, 0, limits);
}

std::uint32_t RankTree::FindAbove(std::uint32_t from, const std::vector<int>& limits) const {
  const std::uint32_t found = from < m_size ? FindIn(m_root, m_height, from, limits) : NONE;
  return found == NONE ? m_size : found;
}

/// Makes room for an entry at `at`, without rows yet.
void RankTree::OpenEntry(std::uint32_t node, std::uint32_t at) {
  Node& target = m_nodes[node];
  const std::uint32_t size = target.size++;
  const auto shift = [at, size](auto* values) {
    std::copy_backward(values + at, values + size, values + size + 1);
  };
  shift(target.entries.data());
  shift(target.ends.data());
  for (std::size_t kind = 0; kind < m_kinds; ++kind) shift(Ranks(node, kind));
  target.ends[at] = target.Start(at);
}

/// Sets an entry's ranks to the largest of the node that it stands for.
void RankTree::TakeLargest(std::uint32_t node, std::uint32_t at) {
  const std::uint32_t below = m_nodes[node].entries[at];
  for (std::size_t kind = 0; kind < m_kinds; ++kind) {
    const int* const ranks = Ranks(below, kind);
    Ranks(node, kind)[at] = *std::max_element(ranks, ranks + m_nodes[below].size);
  }
}

/// Makes two of the node that stands at `at`. A split `atEnd` leaves most where it is: rows that come in
/// order fill their nodes.
void RankTree::SplitEntry(std::uint32_t node, std::uint32_t at, bool atEnd) {
  const std::uint32_t right = AddNode();
  OpenEntry(node, at + 1);
  const std::uint32_t left = m_nodes[node].entries[at];
  Node& source = m_nodes[left];
  Node& target = m_nodes[right];
  const std::uint32_t kept = atEnd ? WIDTH - WIDTH / 8 : WIDTH / 2;
  const std::uint32_t size = source.size;
  const auto move = [kept, size](const auto* from, auto* to) { std::copy(from + kept, from + size, to); };
  move(source.entries.data(), target.entries.data());
  for (std::size_t kind = 0; kind < m_kinds; ++kind) move(Ranks(left, kind), Ranks(right, kind));
  const std::uint32_t rows = source.Start(kept);
  std::transform(source.ends.begin() + kept, source.ends.begin() + size, target.ends.begin(),
                 [rows](std::uint32_t end) { return end - rows; });
  std::fill(source.ends.begin() + kept, source.ends.end(), NONE);
  target.size = size - kept;
  source.size = kept;
  m_nodes[node].entries[at + 1] = right;
  m_nodes[node].ends[at] = m_nodes[node].Start(at) + rows;
  m_nodes[node].ends[at + 1] = m_nodes[node].ends[at] + target.Rows();
  TakeLargest(node, at);
  TakeLargest(node, at + 1);
}

void RankTree::GrowRoot() {
  const std::uint32_t old = m_root;
  m_root = AddNode();
  ++m_height;
  OpenEntry(m_root, 0);
  m_nodes[m_root].entries[0] = old;
  m_nodes[m_root].ends[0] = m_size;
  TakeLargest(m_root, 0);
}

void RankTree::AddEntry(std::uint32_t node, std::uint32_t at, RankedRows rows,
                        const std::vector<int>& ranks) {
  OpenEntry(node, at);
  m_nodes[node].entries[at] = rows.row;
  for (std::size_t kind = 0; kind < m_kinds; ++kind) Ranks(node, kind)[at] = ranks[kind];
}

void RankTree::InsertInLeaf(std::uint32_t node, std::uint32_t position, RankedRows rows,
                            const std::vector<int>& ranks) {
  Node& leaf = m_nodes[node];
  // The entry before the position, or the one that it parts.
  std::uint32_t at = position == 0 ? 0 : leaf.Find(position - 1);
  const bool hasBefore = position != 0 && leaf.entries[at] == rows.row;
  if (!hasBefore) {
    const bool parts = position != 0 && position < leaf.ends[at];
    if (position != 0) ++at;
    const bool joinsNext = !parts && at < leaf.size && leaf.entries[at] == rows.row;
    if (parts) {
      std::vector<int> same(m_kinds);
      for (std::size_t kind = 0; kind < m_kinds; ++kind) same[kind] = Ranks(node, kind)[at - 1];
      AddEntry(node, at, {leaf.entries[at - 1], 0}, same);
      leaf.ends[at] = leaf.ends[at - 1];
      leaf.ends[at - 1] = position;
    }
    if (!joinsNext) AddEntry(node, at, rows, ranks);
  }
  for (std::uint32_t i = at; i < leaf.size; ++i) leaf.ends[i] += rows.count;
}

void RankTree::Insert(std::uint32_t position, RankedRows rows, const std::vector<int>& ranks) {
  // An insertion takes two entries in a leaf when it parts one.
  const auto isFull = [this](std::uint32_t node) { return m_nodes[node].size >= WIDTH - 1; };
  if (isFull(m_root)) GrowRoot();
  const bool atEnd = position == m_size;
  std::uint32_t node = m_root;
  for (int level = m_height; level > 0; --level) {
    // At a border the rows come below the entry before.
    const auto find = [&] { return position == 0 ? 0 : m_nodes[node].Find(position - 1); };
    std::uint32_t at = find();
    if (isFull(m_nodes[node].entries[at])) {
      SplitEntry(node, at, atEnd);
      at = find();
    }
    Node& inner = m_nodes[node];
    position -= inner.Start(at);
    for (std::uint32_t i = at; i < inner.size; ++i) inner.ends[i] += rows.count;
    for (std::size_t kind = 0; kind < m_kinds; ++kind) {
      int& largest = Ranks(node, kind)[at];
      largest = std::max(largest, ranks[kind]);
    }
    node = inner.entries[at];
  }
  InsertInLeaf(node, position, rows, ranks);
  m_size += rows.count;
}

void RankTree::FlattenNode(std::uint32_t node, int level, std::vector<RankedRows>& rows) const {
  const Node& here = m_nodes[node];
  for (std::uint32_t at = 0; at < here.size; ++at) {
    if (level > 0) {
      FlattenNode(here.entries[at], level - 1, rows);
    } else {
      rows.push_back({here.entries[at], here.ends[at] - here.Start(at)});
    }
  }
}

std::vector<RankedRows> RankTree::Flatten() const {
  std::vector<RankedRows> rows;
  FlattenNode(m_root, m_height, rows);
  return rows;
}

}  // namespace coregui
