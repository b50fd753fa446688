#include "grid/data/RowInner.h"

#include <algorithm>

namespace coregui {

RowNode* RowInner::Descend(std::int64_t& row) const {
  // Children of equal size are found at once; others are near.
  const std::int64_t total = starts[At(size)];
  int at = static_cast<int>(static_cast<double>(row) * size / static_cast<double>(total));
  at = std::min(at, size - 1);
  if (starts[At(at)] > row || starts[At(at) + 1] <= row) {
    const auto end = starts.begin() + size + 1;
    at = static_cast<int>(std::upper_bound(starts.begin(), end, row) - starts.begin()) - 1;
  }
  row -= starts[At(at)];
  return children[At(at)].get();
}

void RowInner::Insert(int at, std::unique_ptr<RowNode> child, std::int64_t rows) {
  child->parent = this;
  std::move_backward(children.begin() + at, children.begin() + size, children.begin() + size + 1);
  children[At(at)] = std::move(child);
  for (int i = size + 1; i > at; --i) starts[At(i)] = starts[At(i) - 1] + rows;
  ++size;
  for (int i = at; i < size; ++i) children[At(i)]->place = i;
}

std::unique_ptr<RowNode> RowInner::Remove(int at) {
  const std::int64_t rows = RowsOf(at);
  std::unique_ptr<RowNode> removed = std::move(children[At(at)]);
  std::move(children.begin() + at + 1, children.begin() + size, children.begin() + at);
  --size;
  for (int i = at + 1; i <= size; ++i) starts[At(i)] = starts[At(i) + 1] - rows;
  for (int i = at; i < size; ++i) children[At(i)]->place = i;
  return removed;
}

void RowInner::AddRows(int at, std::int64_t rows) {
  for (int i = at + 1; i <= size; ++i) starts[At(i)] += rows;
}

}  // namespace coregui
