#pragma once

namespace coregui {

class CGridSheets;

/// Sorts the rows of the current sheet. Sorting always acts on the sheet's default source, whatever sources
/// its columns have, and redraws nothing.
class CGridSorting {
 public:
  explicit CGridSorting(CGridSheets& sheets) : m_sheets(sheets) {}

  int SortBy(int col, int flags);
  /// The caller's columns are turned into data columns in place.
  int SortBy(int* cols, int count, int flags);

 private:
  CGridSheets& m_sheets;
};

}  // namespace coregui
