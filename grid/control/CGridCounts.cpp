#include "grid/control/CGridCounts.h"

#include <vector>

#include "grid/control/CGridJoins.h"
#include "grid/control/CGridNavigator.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/data/CGridDataSource.h"
#include "grid/data/CGridMem.h"

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

void ReduceLocked(CGridAxis& axis, long count) {
  if (count >= 1 && count <= axis.Locked()) {
    axis.SetLocked(count - 1);
  }
}

}  // namespace

CGridInfo& CGridCounts::Info() const {
  return m_rooms.sheets.Current();
}

int CGridCounts::SetNumberRows(long rows) {
  if (rows < 0 || rows > maxRows) {
    return 1;
  }
  ReduceLocked(Info().rows, rows);
  Info().rows.SetRowCount(rows);
  m_rooms.navigator.RowsChanged();
  if (Info().rows.current < 0 && rows >= 1) {
    m_rooms.navigator.GotoRow(0);
  }
  return 0;
}

int CGridCounts::SetNumberCols(int cols) {
  if (cols < 0 || cols > maxColumns) {
    return 1;
  }
  CGridInfo& info = Info();
  ReduceLocked(info.columns, cols);
  info.columns.SetColumnCount(cols, *info.gridDefault);
  m_rooms.navigator.ColsChanged();
  if (Info().columns.current < 0 && cols >= 1) {
    m_rooms.navigator.GotoCol(0);
  }
  return 0;
}

int CGridCounts::InsertRow(long row) {
  const long rows = Info().rows.Count();
  if (row < 0 || row > rows || rows >= maxRows) {
    return 1;
  }
  if (row == rows) {
    return AppendRow();
  }
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->InsertRow(row);
  }
  CGridRows& axis = Info().rows;
  axis.SetUniform(axis.IsUniform() || rows + 1 > CGridRows::maxOwnHeights);
  axis.Insert(row);
  m_rooms.navigator.RowsChanged();
  return 0;
}

int CGridCounts::AppendRow() {
  if (Info().rows.Count() >= maxRows) {
    return 1;
  }
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->AppendRow();
  }
  return SetNumberRows(Info().rows.Count() + 1);
}

int CGridCounts::DeleteRow(long row) {
  if (row < 0 || row >= Info().rows.Count()) {
    return 1;
  }
  for (CGridDataSource* source : m_rooms.sources.InUse()) {
    source->DeleteRow(row);
  }
  ReduceLocked(Info().rows, Info().rows.Count() - 1);
  Info().rows.Erase(row);
  m_rooms.navigator.RowsChanged();
  return 0;
}

int CGridCounts::InsertCol(int col) {
  CGridInfo& info = Info();
  const auto cols = static_cast<int>(info.columns.Count());
  if (col < 0 || col > cols || cols >= maxColumns) {
    return 1;
  }
  if (col == cols) {
    return AppendCol();
  }
  const CGridSourceTable::Place place = m_rooms.sources.Of(col);
  // A memory store makes room at the grid column, not at the data column that it is asked for.
  const bool isMemory = dynamic_cast<CGridMem*>(place.source) != nullptr;
  const int made = isMemory ? info.columns.FromTranslation(place.col) : place.col;
  const std::vector<int> before = Translations(info.columns);
  place.source->InsertCol(place.col);
  if (Translations(info.columns) == before) {
    ShiftTranslations(info.columns, made, 1);
  }
  info.columns.InsertColumn(col, made, *info.gridDefault);
  info.columns.At(col).source = place.source == info.defaultSource ? nullptr : place.source;
  m_rooms.navigator.ColsChanged();
  return 0;
}

int CGridCounts::AppendCol() {
  if (Info().columns.Count() >= maxColumns) {
    return 1;
  }
  Info().defaultSource->AppendCol();
  return SetNumberCols(static_cast<int>(Info().columns.Count()) + 1);
}

int CGridCounts::DeleteCol(int col) {
  CGridInfo& info = Info();
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
  m_rooms.navigator.ColsChanged();
  return 0;
}

int CGridCounts::MoveColPosition(int from, int to, bool before) {
  CGridColumns& columns = Info().columns;
  const int gap = before ? to : to + 1;
  if (!columns.Has(from) || gap < 0 || gap > columns.Count()) {
    return 1;
  }
  const int at = gap > from ? gap - 1 : gap;
  m_rooms.joins.MoveColumn(from, at, [&] { columns.MoveColumn(from, at); });
  m_rooms.navigator.ColsChanged();
  return 0;
}

int CGridCounts::Lock(CGridAxis& axis, long count) {
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

int CGridCounts::LockColumns(int count) {
  return Lock(Info().columns, count);
}
int CGridCounts::LockRows(long count) {
  return Lock(Info().rows, count);
}

}  // namespace coregui
