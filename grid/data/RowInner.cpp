#include "grid/data/RowInner.h"

#include <algorithm>

namespace coregui {

void RowInner::Measure() {
  m_childrenPerRow = size > 1 ? (size - 1) / static_cast<double>(starts[At(size - 1)]) : 0.0;
}

void RowInner::Insert(int at, std::unique_ptr<RowNode> child, std::int64_t rows) {
  child->parent = this;
  std::move_backward(children.begin() + at, children.begin() + size, children.begin() + size + 1);
  children[At(at)] = std::move(child);
  for (int i = size + 1; i > at; --i) starts[At(i)] = starts[At(i) - 1] + rows;
  ++size;
  for (int i = at; i < size; ++i) children[At(i)]->place = i;
  Measure();
}

std::unique_ptr<RowNode> RowInner::Remove(int at) {
  const std::int64_t rows = RowsOf(at);
  std::unique_ptr<RowNode> removed = std::move(children[At(at)]);
  std::move(children.begin() + at + 1, children.begin() + size, children.begin() + at);
  --size;
  for (int i = at + 1; i <= size; ++i) starts[At(i)] = starts[At(i) + 1] - rows;
  for (int i = at; i < size; ++i) children[At(i)]->place = i;
  Measure();
  return removed;
}

void RowInner::AddRows(int at, std::int64_t rows) {
  for (int i = at + 1; i <= size; ++i) starts[At(i)] += rows;
  Measure();
}

}  // namespace coregui
