#include "grid/data/RowLeaf.h"

#include <algorithm>

namespace coregui {

void RowLeaf::MakePositions() {
  positions = std::make_unique<Positions>();
  positions->last.fill(ColumnMap::NONE);
}

ColumnChunk& RowLeaf::FindOrAdd(int storage) {
  const auto index = static_cast<std::size_t>(storage);
  if (index >= columns.size()) {
    // Neighbours mostly have the same columns.
    columns.reserve(std::max(index + 1, previous != nullptr ? previous->columns.size() : 0));
    columns.resize(index + 1);
  }
  return columns[index];
}

void RowLeaf::AppendRow() {
  positions->first[static_cast<std::size_t>(count)] = 0;
  positions->last[static_cast<std::size_t>(count)] = ColumnMap::NONE;
  ++count;
}

void RowLeaf::InsertRow(int row) {
  const auto shift = [this, row](std::array<int, ROWS>& values, int fresh) {
    std::copy_backward(values.begin() + row, values.begin() + count, values.begin() + count + 1);
    values[static_cast<std::size_t>(row)] = fresh;
  };
  shift(positions->first, 0);
  shift(positions->last, ColumnMap::NONE);
  for (ColumnChunk& chunk : columns) chunk.InsertRow(row);
  ++count;
}

void RowLeaf::EraseRow(int row) {
  const auto shift = [this, row](std::array<int, ROWS>& values) {
    std::copy(values.begin() + row + 1, values.begin() + count, values.begin() + row);
  };
  shift(positions->first);
  shift(positions->last);
  for (ColumnChunk& chunk : columns) chunk.EraseRow(row);
  --count;
}

void RowLeaf::MoveTail(int from, RowLeaf& target) {
  const int at = static_cast<int>(target.count);
  const auto move = [this, from, at](const std::array<int, ROWS>& values, std::array<int, ROWS>& to) {
    std::copy(values.begin() + from, values.begin() + count, to.begin() + at);
  };
  move(positions->first, target.positions->first);
  move(positions->last, target.positions->last);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].Count() != 0) columns[i].MoveTail(from, target.FindOrAdd(static_cast<int>(i)), at, pool);
  }
  target.count += count - from;
  count = from;
}

bool RowLeaf::Check() const {
  if (count < 1) return false;
  if (positions == nullptr) return columns.empty();
  return count <= ROWS && std::all_of(columns.begin(), columns.end(), [this](const ColumnChunk& chunk) {
           return chunk.Check(static_cast<int>(count));
         });
}

}  // namespace coregui
