#include "grid/control/CGridSizing.h"

#include <algorithm>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCells.h"
#include "grid/control/CGridNavigator.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/control/CGridTypeTable.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridDataSource.h"
#include "grid/data/CGridMem.h"
#include "platform/System.h"

namespace coregui {

namespace {

std::vector<int> Translations(const CGridColumns& columns) {
  std::vector<int> all;
  all.reserve(static_cast<std::size_t>(columns.Count()));
  for (long col = 0; col < columns.Count(); ++col) {
    all.push_back(columns.At(col).translation);
  }
  return all;
}

void ShiftTranslations(CGridColumns& columns, int from, int by) {
  for (long col = 0; col < columns.Count(); ++col) {
    int& translation = columns.At(col).translation;
    translation += translation >= from ? by : 0;
  }
}

int ResizeHeading(std::vector<int>& sizes, int count, int size) {
  int change = 0;
  while (static_cast<int>(sizes.size()) > count) {
    change -= sizes.back();
    sizes.pop_back();
  }
  while (static_cast<int>(sizes.size()) < count) {
    change += size;
    sizes.push_back(size);
  }
  return change;
}

}  // namespace

CGridAxis& CGridSizing::Cols() const {
  return m_rooms.sheets.Current().columns;
}
CGridAxis& CGridSizing::Rows() const {
  return m_rooms.sheets.Current().rows;
}

void CGridSizing::ReduceLocked(CGridAxis& axis, long count) {
  if (count >= 1 && count <= axis.Locked()) {
    axis.SetLocked(count - 1);
  }
}

void CGridSizing::BringIntoRange(CGridAxis& axis) {
  axis.SetFirst(axis.ClampFirst(axis.First()));
  const long last = axis.Count() - 1;
  if (axis.current > last) {
    axis.current = axis.lastCurrent = axis.drag = last;
  }
  axis.drag = std::min(axis.drag, last);
}

void CGridSizing::AfterCountChange(CGridAxis& axis) {
  const long first = axis.First();
  BringIntoRange(axis);
  if (axis.First() != first) {
    m_rooms.navigator.Moved();
  }
  m_rooms.screen.ShowScrollBars();
}

int CGridSizing::SetNumberRows(long rows) {
  if (rows < 0 || rows > maxRows) {
    return 1;
  }
  ReduceLocked(Rows(), rows);
  m_rooms.sheets.Current().rows.SetRowCount(rows);
  AfterCountChange(Rows());
  if (Rows().current < 0 && rows >= 1) {
    m_rooms.navigator.GotoRow(0);
  }
  return 0;
}

int CGridSizing::SetNumberCols(int cols) {
  if (cols < 0 || cols > maxColumns) {
    return 1;
  }
  CGridInfo& info = m_rooms.sheets.Current();
  ReduceLocked(info.columns, cols);
  info.columns.SetColumnCount(cols, *info.gridDefault);
  AfterCountChange(info.columns);
  if (Cols().current < 0 && cols >= 1) {
    m_rooms.navigator.GotoCol(0);
  }
  return 0;
}

int CGridSizing::InsertRow(long row) {
  const long rows = Rows().Count();
  if (row < 0 || row > rows || rows >= maxRows) {
    return 1;
  }
  if (row == rows) {
    return AppendRow();
  }
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->InsertRow(row);
  }
  CGridRows& axis = m_rooms.sheets.Current().rows;
  axis.SetUniform(axis.IsUniform() || rows + 1 > CGridRows::maxOwnHeights);
  axis.Insert(row);
  AfterCountChange(axis);
  return 0;
}

int CGridSizing::AppendRow() {
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->AppendRow();
  }
  return SetNumberRows(Rows().Count() + 1);
}

int CGridSizing::DeleteRow(long row) {
  if (row < 0 || row >= Rows().Count()) {
    return 1;
  }
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->DeleteRow(row);
  }
  ReduceLocked(Rows(), Rows().Count() - 1);
  Rows().Erase(row);
  AfterCountChange(Rows());
  return 0;
}

int CGridSizing::InsertCol(int col) {
  CGridInfo& info = m_rooms.sheets.Current();
  const auto cols = static_cast<int>(info.columns.Count());
  if (col < 0 || col > cols || cols >= maxColumns) {
    return 1;
  }
  if (col == cols) {
    return AppendCol();
  }
  const CGridSourceTable::Place place = m_rooms.sources.Of(col);
  // The memory store makes room at the grid column, not at the data column that it is asked for.
  const bool isMemory = place.source == static_cast<CGridDataSource*>(info.memory.get());
  const int made = isMemory ? info.columns.FromTranslation(place.col) : place.col;
  const std::vector<int> before = Translations(info.columns);
  place.source->InsertCol(place.col);
  if (Translations(info.columns) == before) {
    ShiftTranslations(info.columns, made, 1);
  }
  info.columns.InsertColumn(col, made, *info.gridDefault);
  info.columns.At(col).source = place.source == info.defaultSource ? nullptr : place.source;
  AfterCountChange(info.columns);
  return 0;
}

int CGridSizing::AppendCol() {
  m_rooms.sheets.Current().defaultSource->AppendCol();
  return SetNumberCols(static_cast<int>(Cols().Count()) + 1);
}

int CGridSizing::DeleteCol(int col) {
  CGridInfo& info = m_rooms.sheets.Current();
  if (!info.columns.Has(col)) {
    return 1;
  }
  const CGridSourceTable::Place place = m_rooms.sources.Of(col);
  const std::vector<int> before = Translations(info.columns);
  place.source->DeleteCol(place.col);
  if (Translations(info.columns) == before) {
    ShiftTranslations(info.columns, place.col, -1);
  }
  ReduceLocked(info.columns, info.columns.Count() - 1);
  info.columns.EraseColumn(col);
  AfterCountChange(info.columns);
  return 0;
}

int CGridSizing::MoveColPosition(int from, int to, bool before) {
  CGridColumns& columns = m_rooms.sheets.Current().columns;
  const int gap = before ? to : to + 1;
  if (!columns.Has(from) || gap < 0 || gap > columns.Count()) {
    return 1;
  }
  columns.MoveColumn(from, gap > from ? gap - 1 : gap);
  AfterCountChange(columns);
  return 0;
}

int CGridSizing::ToldWidth(int col, int width) {
  if (Rows().Extent() <= 0) {
    return width;
  }
  const long last = Rows().LastInView();
  for (long row = Rows().First(); row <= last && row < Rows().Count(); ++row) {
    if (CGridCellDelegate* const type = m_rooms.types.Of(col, row)) {
      type->OnChangedCellWidth(col, row, &width);
    }
  }
  return std::max(width, 0);
}

int CGridSizing::ToldHeight(long row, int height) {
  if (Cols().Extent() <= 0) {
    return height;
  }
  const long last = Cols().LastInView();
  for (long col = Cols().First(); col <= last && col < Cols().Count(); ++col) {
    if (CGridCellDelegate* const type = m_rooms.types.Of(static_cast<int>(col), row)) {
      type->OnChangedCellHeight(static_cast<int>(col), row, &height);
    }
  }
  return std::max(height, 0);
}

int CGridSizing::SetColWidth(int col, int width) {
  CGridInfo& info = m_rooms.sheets.Current();
  if (width < 0 || col < -info.headings.SideCols() || col >= info.columns.Count()) {
    return 1;
  }
  if (col < 0) {
    info.headings.sideColWidths[static_cast<std::size_t>(-col - 1)] = width;
    return 0;
  }
  info.columns.SetSize(col, ToldWidth(col, width));
  AfterCountChange(Cols());
  return 0;
}

int CGridSizing::GetColWidth(int col) const {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (col < 0) {
    return col < -info.headings.SideCols() ? 0
                                           : info.headings.sideColWidths[static_cast<std::size_t>(-col - 1)];
  }
  return info.columns.SizeOf(col);
}

int CGridSizing::SetRowHeight(long row, int height) {
  CGridInfo& info = m_rooms.sheets.Current();
  if (height < 0 || row < -info.headings.TopRows() || row >= info.rows.Count()) {
    return 1;
  }
  if (row < 0) {
    info.headings.topRowHeights[static_cast<std::size_t>(-row - 1)] = height;
    return 0;
  }
  info.rows.SetSize(row, ToldHeight(row, height));
  AfterCountChange(Rows());
  return 0;
}

int CGridSizing::GetRowHeight(long row) const {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (row < 0) {
    return row < -info.headings.TopRows() ? 0
                                          : info.headings.topRowHeights[static_cast<std::size_t>(-row - 1)];
  }
  return info.rows.SizeOf(row);
}

int CGridSizing::SetDefRowHeight(int height) {
  if (height < 0) {
    return 1;
  }
  Rows().SetDefaultSize(height);
  AfterCountChange(Rows());
  return 0;
}

int CGridSizing::SetUniformRowHeight(bool on) {
  if (!on && Rows().Count() > CGridRows::maxOwnHeights) {
    return 1;
  }
  Rows().SetUniform(on);
  AfterCountChange(Rows());
  return 0;
}

int CGridSizing::Lock(CGridAxis& axis, long count) {
  if (count < 0 || count > axis.Count()) {
    return 1;
  }
  if (count == axis.Locked()) {
    return 0;
  }
  const long first = axis.First();
  axis.SetLocked(count);
  axis.SetFirst(count < 1 ? count : axis.ClampFirst(first));
  if (axis.First() != first) {
    m_rooms.navigator.Moved();
  }
  m_rooms.screen.ShowScrollBars();
  return 0;
}

int CGridSizing::LockColumns(int count) {
  return Lock(Cols(), count);
}
int CGridSizing::LockRows(long count) {
  return Lock(Rows(), count);
}

int CGridSizing::SetHeadingRows(int count) {
  if (count < 0) {
    return 1;
  }
  CGridHeadings& headings = m_rooms.sheets.Current().headings;
  headings.topHeight =
      std::max(0, headings.topHeight + ResizeHeading(headings.topRowHeights, count, ScaleByDpi(20)));
  return 0;
}

int CGridSizing::SetHeadingCols(int count) {
  if (count < 0) {
    return 1;
  }
  CGridHeadings& headings = m_rooms.sheets.Current().headings;
  headings.sideWidth =
      std::max(0, headings.sideWidth + ResizeHeading(headings.sideColWidths, count, ScaleByDpi(25)));
  return 0;
}

int CGridSizing::BestFit(int startCol, int endCol, long rows) {
  if (startCol < 0 || endCol >= Cols().Count() || startCol > endCol) {
    return 1;
  }
  const long count = Rows().Count();
  const long first = rows < 0 ? 0 : Rows().First();
  const long inView = std::min(Rows().LastInView() + 1, count);
  const long end = rows < 0 ? count : rows == 0 ? inView : std::min(first + rows, count);
  std::vector<int> widths(static_cast<std::size_t>(endCol - startCol + 1), 0);
  const bool measured = m_rooms.screen.Measure([&](CDC& dc) {
    for (long row = -m_rooms.sheets.Current().headings.TopRows(); row < 0; ++row) {
      WidenToRow(dc, row, startCol, widths);
    }
    for (long row = first; row < end; ++row) {
      WidenToRow(dc, row, startCol, widths);
    }
  });
  if (!measured) {
    return 1;
  }
  for (int col = startCol; col <= endCol; ++col) {
    SetColWidth(col, widths[static_cast<std::size_t>(col - startCol)]);
  }
  return 0;
}

void CGridSizing::WidenToRow(CDC& dc, long row, int startCol, std::vector<int>& widths) {
  int col = startCol;
  for (int& width : widths) {
    CGridCell cell;
    m_rooms.cells.GetDisplayed(col++, row, &cell);
    CGridCellDelegate* const type = m_rooms.types.Of(cell);
    if (type != nullptr && cell.IsPropertySet(CELLPROP_JOIN) == 0) {
      CSize size;
      type->GetBestSize(&dc, &size, &cell);
      width = std::max<int>(width, size.cx);
    }
  }
}

int CGridSizing::FitToWindow(int startCol, int endCol) {
  if (startCol < 0 || endCol >= Cols().Count() || startCol > endCol) {
    return 1;
  }
  const std::int64_t old = Cols().OffsetOf(endCol + 1) - Cols().OffsetOf(startCol);
  const std::int64_t room = Cols().Extent() - (Cols().TotalSize() - old);
  if (old <= 0 || room <= 0) {
    return 1;
  }
  // Rounding each column's end instead of its width makes the widths add up to the room.
  std::int64_t sum = 0;
  std::int64_t end = 0;
  for (int col = startCol; col <= endCol; ++col) {
    sum += Cols().SizeOf(col);
    const std::int64_t newEnd = sum * room / old;
    Cols().SetSize(col, static_cast<int>(newEnd - end));
    end = newEnd;
  }
  AfterCountChange(Cols());
  return 0;
}

void CGridSizing::SetViewSize(CSize body) {
  const long left = Cols().First();
  const long top = Rows().First();
  Cols().SetExtent(body.cx);
  Rows().SetExtent(body.cy);
  BringIntoRange(Cols());
  BringIntoRange(Rows());
  if (Cols().First() != left || Rows().First() != top) {
    m_rooms.navigator.Moved();
  }
}

}  // namespace coregui
