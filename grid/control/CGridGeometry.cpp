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

/// Pixels from one entry's start to another's end.
struct Span {
  LONG start;
  LONG end;
};

Span SpanInBody(const CGridAxis& axis, long first, long last) {
  const LONG start = ToPixel(axis.PositionOf(first));
  std::int64_t end = axis.PositionOf(last) + axis.SizeOf(last);
  if (first < axis.Locked() && last >= axis.Locked()) {
    // However far the scrollable ones are scrolled away, the locked ones stay in view.
    end = std::max(end, axis.LockedSize());
  }
  return {start, std::max(start, ToPixel(end))};
}

Span ColSpan(const CGridInfo& info, int first, int last) {
  if (first >= 0) {
    return SpanInBody(info.columns, first, last);
  }
  return {info.headings.SideColSpan(first).start, info.headings.SideColSpan(std::min(last, -1)).end};
}

Span RowSpan(const CGridInfo& info, long first, long last) {
  if (first >= 0) {
    return SpanInBody(info.rows, first, last);
  }
  return {info.headings.TopRowSpan(first).start, info.headings.TopRowSpan(std::min(last, -1L)).end};
}

}  // namespace

CGridJoins::Block CGridGeometry::BlockOf(int col, long row) const {
  CGridJoins::Block block{};
  m_joins.Find(col, row, block);
  col < 0 ? block.endCol = std::min(block.endCol, -1) : block.startCol = std::max(block.startCol, 0);
  row < 0 ? block.endRow = std::min(block.endRow, -1L) : block.startRow = std::max(block.startRow, 0L);
  return block;
}

bool CGridGeometry::CellRect(int col, long row, CRect& rect) const {
  rect.SetRectEmpty();
  if (!IsInSheet(m_sheets.Current(), col, row)) {
    return false;
  }
  const CGridJoins::Block block = BlockOf(col, row);
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
  const Span cols = ColSpan(info, firstCol, lastCol);
  const Span rows = RowSpan(info, firstRow, lastRow);
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
  const CGridJoins::Block block = BlockOf(atCol, atRow);
  col = block.startCol;
  row = block.startRow;
  return true;
}

}  // namespace coregui
