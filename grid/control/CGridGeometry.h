#pragma once

#include "platform/Geometry.h"

namespace coregui {

class CGridJoins;
class CGridSheets;

/// From the state of the current sheet to pixels and back. Coordinates are those of the window that shows the
/// cells in question: the body, the top heading, the side heading or the corner. What lies further away than
/// 32 bits can tell is put at their end. Costs are logarithmic in rows and columns.
class CGridGeometry {
 public:
  CGridGeometry(CGridSheets& sheets, CGridJoins& joins) : m_sheets(sheets), m_joins(joins) {}

  /// The rectangle of a cell, or of the whole joined block that holds it; hidden ones are empty. Cells that
  /// are scrolled away lie outside the window. False, with an empty rectangle, out of the sheet.
  bool CellRect(int col, long row, CRect& rect) const;
  /// The rectangle from one cell's start to another's end; joined blocks are not looked at. The range is
  /// clipped to the sheet; false when nothing is left. Both ends must lie in the same window.
  bool RangeRect(int startCol, long startRow, int endCol, long endRow, CRect& rect) const;
  /// The cell under a point of a section (GRIDSECTION_…): the first cell of the joined block where one is
  /// there. False when no cell is there.
  bool CellAt(int section, CPoint point, int& col, long& row) const;

 private:
  struct Span {
    LONG start;
    LONG end;
  };
  Span ColSpan(int startCol, int endCol) const;
  Span RowSpan(long startRow, long endRow) const;

  CGridSheets& m_sheets;
  CGridJoins& m_joins;
};

}  // namespace coregui
