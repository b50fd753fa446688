#pragma once

namespace coregui {

/// A cell by its place, or the first column and row of a view. -1 is none.
struct CellPlace {
  int col = -1;
  long row = -1;
  bool operator==(const CellPlace&) const = default;
  /// Neither a heading cell nor none.
  bool IsCell() const { return col >= 0 && row >= 0; }
};

}  // namespace coregui
