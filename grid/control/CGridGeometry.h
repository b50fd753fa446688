#pragma once

#include "grid/control/CGridJoins.h"
#include "platform/Geometry.h"

namespace coregui {

class CGridSheets;

/// From the state of the current sheet to pixels and back. Coordinates are those of the window that shows the
/// cells in question: the body, the top heading, the side heading or the corner. What lies further away than
/// 32 bits can tell is put at their end. Costs are logarithmic in rows and columns.
class CGridGeometry {
 public:
  CGridGeometry(CGridSheets& sheets, CGridJoins& joins) : m_sheets(sheets), m_joins(joins) {}

  /// The rectangle of a cell, or of the joined block that holds it, as far as it is in the same window (a
  /// block may reach from a heading into the cells); hidden ones are empty. Cells that are scrolled away lie
  /// outside the window. False, with an empty rectangle, out of the sheet.
  bool CellRect(int col, long row, CRect& rect) const;
  /// The rectangle from one cell's start to another's end; joined blocks are not looked at. The range is
  /// clipped to the sheet; false when nothing is left. Both ends must lie in the same window.
  bool RangeRect(int startCol, long startRow, int endCol, long endRow, CRect& rect) const;
  /// The cell under a point of a section (GRIDSECTION_…): the first cell of the joined block where one is
  /// there. False when no cell is there.
  bool CellAt(int section, CPoint point, int& col, long& row) const;

 private:
  /// The joined block of a cell, or the cell, as far as it lies in the same window.
  CGridJoins::Block BlockOf(int col, long row) const;

  CGridSheets& m_sheets;
  CGridJoins& m_joins;
};

}  // namespace coregui
