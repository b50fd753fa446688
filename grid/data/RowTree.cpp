#include "grid/data/RowTree.h"

#include <algorithm>

namespace coregui {
namespace {

constexpr int FEW_ROWS = 16;
constexpr int MERGED_ROWS = 48;

std::int64_t RowsIn(const RowNode& node) {
  if (node.IsLeaf()) return static_cast<const RowLeaf&>(node).count;
  const auto& inner = static_cast<const RowInner&>(node);
  return inner.starts[static_cast<std::size_t>(inner.size)];
}

}  // namespace

RowLeaf* RowTree::Search(std::int64_t row, std::int64_t& inLeaf) const {
  m_index.CountSearch(m_first, m_count);
  RowNode* node = m_root.get();
  inLeaf = row;
  while (!node->IsLeaf()) node = static_cast<RowInner*>(node)->Descend(inLeaf);
  return static_cast<RowLeaf*>(node);
}

void RowTree::AddRows(RowNode& node, std::int64_t rows) {
  m_count += rows;
  for (const RowNode* at = &node; at->parent != nullptr; at = at->parent)
    at->parent->AddRows(at->place, rows);
}

RowInner* RowTree::SplitInner(RowInner& inner, int& at) {
  // A split at the end leaves the node full: rows that are appended in order leave no room unused.
  const int kept = at == inner.size ? inner.size : inner.size / 2;
  auto right = std::make_unique<RowInner>();
  RowInner* const added = right.get();
  std::int64_t rows = 0;
  while (inner.size > kept) {
    const std::int64_t moved = inner.RowsOf(inner.size - 1);
    rows += moved;
    added->Insert(0, inner.Remove(inner.size - 1), moved);
  }
  // The nodes above count the rows of both together so far; inserting the right one adds its rows again.
  for (const RowNode* node = &inner; node->parent != nullptr; node = node->parent) {
    node->parent->AddRows(node->place, -rows);
  }
  InsertNode(inner, true, std::move(right), rows);
  if (at < kept || (at == kept && added->size != 0)) return &inner;
  at -= kept;
  return added;
}

void RowTree::InsertNode(RowNode& neighbour, bool after, std::unique_ptr<RowNode> added, std::int64_t rows) {
  if (neighbour.parent == nullptr) {
    auto root = std::make_unique<RowInner>();
    root->Insert(0, std::move(m_root), RowsIn(neighbour));
    m_root = std::move(root);
  }
  RowInner* parent = neighbour.parent;
  int at = neighbour.place + (after ? 1 : 0);
  if (parent->size == RowInner::CHILDREN) parent = SplitInner(*parent, at);
  parent->Insert(at, std::move(added), rows);
  for (const RowNode* node = parent; node->parent != nullptr; node = node->parent) {
    node->parent->AddRows(node->place, rows);
  }
}

RowLeaf* RowTree::InsertBeside(RowLeaf& leaf, bool after, std::unique_ptr<RowLeaf> added) {
  RowLeaf* const fresh = added.get();
  fresh->previous = after ? &leaf : leaf.previous;
  fresh->next = after ? leaf.next : &leaf;
  (fresh->previous != nullptr ? fresh->previous->next : m_first) = fresh;
  (fresh->next != nullptr ? fresh->next->previous : m_last) = fresh;
  const std::int64_t rows = fresh->count;
  InsertNode(leaf, after, std::move(added), rows);
  m_count += rows;
  return fresh;
}

std::unique_ptr<RowLeaf> RowTree::MakeRun(std::int64_t rows) const {
  auto run = MakeLeaf();
  run->count = rows;
  return run;
}

void RowTree::AppendLeaf(std::unique_ptr<RowLeaf> leaf) {
  if (m_root != nullptr) {
    InsertBeside(*m_last, true, std::move(leaf));
    return;
  }
  m_count = leaf->count;
  m_first = m_last = leaf.get();
  m_root = std::move(leaf);
}

void RowTree::Append(std::int64_t rows) {
  if (m_last != nullptr && m_last->HasPositions()) {
    const std::int64_t fit = std::min<std::int64_t>(rows, RowLeaf::ROWS - m_last->count);
    for (std::int64_t i = 0; i < fit; ++i) m_last->AppendRow();
    AddRows(*m_last, fit);
    rows -= fit;
  }
  if (rows != 0) AppendRun(rows);
}

void RowTree::AppendRun(std::int64_t rows) {
  if (m_last != nullptr && !m_last->HasPositions()) {
    m_last->count += rows;
    AddRows(*m_last, rows);
  } else {
    AppendLeaf(MakeRun(rows));
  }
}

void RowTree::Prepend(std::int64_t rows) {
  if (m_first == nullptr) return Append(rows);
  m_index.Clear();
  if (!m_first->HasPositions()) {
    m_first->count += rows;
    AddRows(*m_first, rows);
  } else {
    InsertBeside(*m_first, false, MakeRun(rows));
  }
}

RowLeaf* RowTree::CutRun(RowLeaf& leaf, std::int64_t from) {
  auto rest = MakeRun(leaf.count - from);
  leaf.count = from;
  AddRows(leaf, -rest->count);
  return InsertBeside(leaf, true, std::move(rest));
}

RowLeaf* RowTree::MakePositions(RowLeaf* leaf, std::int64_t& inLeaf) {
  const std::int64_t start = inLeaf / RowLeaf::ROWS * RowLeaf::ROWS;
  if (leaf->count > start + RowLeaf::ROWS) CutRun(*leaf, start + RowLeaf::ROWS);
  if (start != 0) leaf = CutRun(*leaf, start);
  inLeaf -= start;
  leaf->MakePositions();
  return leaf;
}

RowLeaf* RowTree::Split(RowLeaf& leaf, int from) {
  auto right = MakeLeaf();
  right->MakePositions();
  const std::int64_t moved = leaf.count - from;
  leaf.MoveTail(from, *right);
  AddRows(leaf, -moved);
  return InsertBeside(leaf, true, std::move(right));
}

void RowTree::InsertRow(std::int64_t row) {
  if (row == m_count) {
    Append(1);
    return;
  }
  std::int64_t inLeaf = 0;
  RowLeaf* leaf = Find(row, inLeaf);
  m_index.Clear();
  if (!leaf->HasPositions()) {
    ++leaf->count;
    AddRows(*leaf, 1);
    return;
  }
  if (leaf->count == RowLeaf::ROWS) {
    RowLeaf* const right = Split(*leaf, RowLeaf::ROWS / 2);
    if (inLeaf > leaf->count) {
      inLeaf -= leaf->count;
      leaf = right;
    }
  }
  leaf->InsertRow(static_cast<int>(inLeaf));
  AddRows(*leaf, 1);
}

void RowTree::EraseRow(std::int64_t row) {
  std::int64_t inLeaf = 0;
  RowLeaf* const leaf = Find(row, inLeaf);
  m_index.Clear();
  if (leaf->HasPositions()) {
    leaf->EraseRow(static_cast<int>(inLeaf));
  } else {
    --leaf->count;
  }
  AddRows(*leaf, -1);
  if (leaf->count == 0) {
    Remove(*leaf);
  } else if (leaf->count < FEW_ROWS && leaf->HasPositions()) {
    if (leaf->next != nullptr)
      MergeWithNext(*leaf);
    else if (leaf->previous != nullptr)
      MergeWithNext(*leaf->previous);
  }
}

void RowTree::MergeWithNext(RowLeaf& leaf) {
  RowLeaf& right = *leaf.next;
  if (!leaf.HasPositions() || !right.HasPositions() || leaf.count + right.count > MERGED_ROWS) return;
  const std::int64_t moved = right.count;
  right.MoveTail(0, leaf);
  AddRows(right, -moved);
  AddRows(leaf, moved);
  Remove(right);
}

void RowTree::Remove(RowLeaf& leaf) {
  (leaf.previous != nullptr ? leaf.previous->next : m_first) = leaf.next;
  (leaf.next != nullptr ? leaf.next->previous : m_last) = leaf.previous;
  RowNode* node = &leaf;
  while (node->parent != nullptr) {
    RowInner* const parent = node->parent;
    parent->Remove(node->place);
    if (parent->size != 0) {
      Collapse();
      return;
    }
    node = parent;
  }
  m_root.reset();
}

void RowTree::Collapse() {
  while (!m_root->IsLeaf() && static_cast<RowInner&>(*m_root).size == 1) {
    std::unique_ptr<RowNode> only = static_cast<RowInner&>(*m_root).Remove(0);
    only->parent = nullptr;
    only->place = 0;
    m_root = std::move(only);
  }
}

void RowTree::Clear() {
  m_index.Clear();
  m_root.reset();
  m_first = m_last = nullptr;
  m_count = 0;
}

bool RowTree::CheckNode(const RowNode& node, std::int64_t& rows, const RowLeaf*& previous) const {
  if (node.IsLeaf()) {
    const auto& leaf = static_cast<const RowLeaf&>(node);
    const bool linked =
        leaf.previous == previous && (previous == nullptr ? m_first : previous->next) == &leaf;
    previous = &leaf;
    rows = leaf.count;
    return linked && leaf.Check();
  }
  const auto& inner = static_cast<const RowInner&>(node);
  rows = 0;
  for (int i = 0; i < inner.size; ++i) {
    const RowNode& child = *inner.children[static_cast<std::size_t>(i)];
    std::int64_t own = 0;
    if (child.parent != &inner || child.place != i || inner.starts[static_cast<std::size_t>(i)] != rows)
      return false;
    if (!CheckNode(child, own, previous)) return false;
    rows += own;
  }
  return inner.size > 0 && inner.starts[static_cast<std::size_t>(inner.size)] == rows;
}

bool RowTree::Check() const {
  if (m_root == nullptr) return m_count == 0 && m_first == nullptr && m_last == nullptr;
  std::int64_t rows = 0;
  const RowLeaf* previous = nullptr;
  return m_root->parent == nullptr && CheckNode(*m_root, rows, previous) && rows == m_count &&
         previous == m_last && m_last->next == nullptr && m_index.Check(*m_first);
}

}  // namespace coregui
