#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include "grid/data/RowLeaf.h"

namespace coregui {

/// An inner node: children and how many rows stand before each.
class RowInner final : public RowNode {
 public:
  static constexpr int CHILDREN = 64;
  RowInner() : RowNode(false) {}
  /// The child that holds the row; `row` becomes its index in the child. Children of equal size, of which the
  /// last may be smaller, are found at once, others near the guess.
  RowNode* Descend(std::int64_t& row) const {
    const auto guess = static_cast<std::int64_t>(static_cast<double>(row) * m_childrenPerRow);
    auto at = static_cast<std::size_t>(std::min<std::int64_t>(guess, size - 1));
    while (starts[at] > row) --at;
    while (starts[at + 1] <= row) ++at;
    row -= starts[at];
    return children[at].get();
  }
  void Insert(int at, std::unique_ptr<RowNode> child, std::int64_t rows);
  std::unique_ptr<RowNode> Remove(int at);
  void AddRows(int at, std::int64_t rows);
  std::int64_t RowsOf(int at) const { return starts[At(at) + 1] - starts[At(at)]; }

  int size = 0;
  std::array<std::int64_t, CHILDREN + 1>
      starts{};  // rows before each child; starts[size] is the number of rows
  std::array<std::unique_ptr<RowNode>, CHILDREN> children;

 private:
  static std::size_t At(int at) { return static_cast<std::size_t>(at); }
  void Measure();

  double m_childrenPerRow = 0.0;  // without the last child; 0 for one child
};

}  // namespace coregui
