#include "grid/control/CGridGeometry.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "grid/control/CGridJoins.h"
#include "grid/control/CGridNotify.h"
#include "grid/control/CGridSheets.h"

namespace coregui {

namespace {

LONG ToPixel(std::int64_t position) {
  constexpr std::int64_t most = std::numeric_limits<LONG>::max();
  return static_cast<LONG>(std::clamp(position, -most - 1, most));
}

bool IsInSheet(const CGridInfo& info, int col, long row) {
  return col >= -info.headings.SideCols() && col < info.columns.Count() && row >= -info.headings.TopRows() &&
         row < info.rows.Count();
}

}  // namespace

CGridGeometry::Span CGridGeometry::ColSpan(int startCol, int endCol) const {
  const CGridInfo& info = m_sheets.Current();
  if (startCol < 0) {
    const int innermost = std::min(endCol, -1);
    return {info.headings.SideColSpan(startCol).start, info.headings.SideColSpan(innermost).end};
  }
  const CGridAxis& axis = info.columns;
  const LONG start = ToPixel(axis.PositionOf(startCol));
  return {start, std::max(start, ToPixel(axis.PositionOf(endCol) + axis.SizeOf(endCol)))};
}

CGridGeometry::Span CGridGeometry::RowSpan(long startRow, long endRow) const {
  const CGridInfo& info = m_sheets.Current();
  if (startRow < 0) {
    const long innermost = std::min(endRow, -1L);
    return {info.headings.TopRowSpan(startRow).start, info.headings.TopRowSpan(innermost).end};
  }
  const CGridAxis& axis = info.rows;
  const LONG start = ToPixel(axis.PositionOf(startRow));
  return {start, std::max(start, ToPixel(axis.PositionOf(endRow) + axis.SizeOf(endRow)))};
}

bool CGridGeometry::CellRect(int col, long row, CRect& rect) const {
  rect.SetRectEmpty();
  if (!IsInSheet(m_sheets.Current(), col, row)) {
    return false;
  }
  CGridJoins::Block block{};
  m_joins.Find(col, row, block);
  return RangeRect(block.startCol, block.startRow, block.endCol, block.endRow, rect);
}

bool CGridGeometry::RangeRect(int startCol, long startRow, int endCol, long endRow, CRect& rect) const {
  const CGridInfo& info = m_sheets.Current();
  rect.SetRectEmpty();
  const int firstCol = std::max(startCol, -info.headings.SideCols());
  const long firstRow = std::max(startRow, static_cast<long>(-info.headings.TopRows()));
  const auto lastCol = static_cast<int>(std::min<long>(endCol, info.columns.Count() - 1));
  const long lastRow = std::min(endRow, info.rows.Count() - 1);
  if (firstCol > lastCol || firstRow > lastRow) {
    return false;
  }
  const Span cols = ColSpan(firstCol, lastCol);
  const Span rows = RowSpan(firstRow, lastRow);
  rect.SetRect(cols.start, rows.start, cols.end, rows.end);
  return true;
}

bool CGridGeometry::CellAt(int section, CPoint point, int& col, long& row) const {
  const CGridInfo& info = m_sheets.Current();
  const bool inSide = section == GRIDSECTION_SIDEHEADING || section == GRIDSECTION_CORNERBUTTON;
  const bool inTop = section == GRIDSECTION_TOPHEADING || section == GRIDSECTION_CORNERBUTTON;
  const int atCol =
      inSide ? info.headings.SideColAt(point.x) : static_cast<int>(info.columns.IndexAtPosition(point.x));
  const long atRow = inTop ? info.headings.TopRowAt(point.y) : info.rows.IndexAtPosition(point.y);
  if ((atCol < 0) != inSide || (atRow < 0) != inTop) {
    return false;
  }
  CGridJoins::Block block{};
  m_joins.Find(atCol, atRow, block);
  col = block.startCol;
  row = block.startRow;
  return true;
}

}  // namespace coregui
