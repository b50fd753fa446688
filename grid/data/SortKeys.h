#pragma once

#include <cstdint>
#include <vector>

#include "grid/data/CellCodec.h"

namespace coregui {

/// A row's standing in one key column, for the standard comparison.
struct SortKey {
  double number = 0.0;     ///< what GetNumber gives, where a cell of the column compares by number
  std::uint32_t rank = 0;  ///< the place of its text among the column's texts, where a cell compares by text
  bool byNumber = false;   ///< compares by number when it is the first of two
  bool hasText = false;
};

/// A row with a key to sort it by.
struct KeyedRow {
  std::uint64_t key;
  std::uint32_t row;
};
/// Sorts by key, stable, in a time that grows with the number of rows only.
void SortByKey(std::vector<KeyedRow>& rows);
/// A number whose order among unsigned numbers is the double's; both zeros are one. Not for NaN.
std::uint64_t NumberKey(double number);

/// The cells of one key column; those of rows without one do not exist.
using KeyCells = std::vector<CellSlot>;

/// Whether the standard comparison orders these cells without contradiction: all by number, none of them NaN,
/// or all by text. A cell without text goes behind (with descending order before) all others, and such cells
/// keep their order.
bool IsConsistent(const CellCodec& codec, const KeyCells& cells);

/// Sorts `order` by one column, stable. `ended` marks rows for which an earlier column has decided that no
/// later one counts; they, and rows without text, keep their order behind (descending: before) the others.
/// Only for consistent columns.
void SortByColumn(const CellCodec& codec, const KeyCells& cells, bool descending,
                  const std::vector<bool>& ended, std::vector<std::uint32_t>& order);

/// Whether the cell compares by text and has none.
bool IsBlankKey(const CellCodec& codec, const CellSlot& cell);

/// The keys of one column, by row.
using KeyColumn = std::vector<SortKey>;
std::vector<KeyColumn> MakeSortKeys(const CellCodec& codec, const std::vector<KeyCells>& cells);

/// What the standard comparison answers for the first key cell against the second.
int CompareKeys(const SortKey& a, const SortKey& b, bool descending);

}  // namespace coregui
