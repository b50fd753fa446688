#pragma once

#include "platform/CString.h"

namespace coregui {

class CGridSheets;

/// Finds texts in the current sheet's default source. Columns go in and come out as grid columns.
class CGridFinder {
 public:
  explicit CGridFinder(CGridSheets& sheets) : m_sheets(sheets) {}

  /// Flags: FIND_PARTIAL, FIND_NOCASE, FIND_UP, FIND_ALLCOLS. 0 found; else the outputs are unchanged.
  int FindFirst(CString* text, int* col, long* row, long flags);
  int FindNext(CString* text, int* col, long* row, int flags);
  /// Searches started from the dialog look into every column.
  int FindInAllCols(bool on);
  bool IsFindingInAllCols() const { return m_allCols; }

 private:
  int ToGridColumn(int result, int dataCol, int* col) const;

  CGridSheets& m_sheets;
  bool m_allCols = false;
};

}  // namespace coregui
