// The part of the grid's face that counts, sizes, moves and measures. The contracts stand in the rooms.

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridRooms.h"

// --- Rows and columns

int CGridCtrl::SetNumberRows(long rows, int redraw) {
  const int result = m_rooms->counts.SetNumberRows(rows);
  Show(result == 0 && redraw != 0);
  return result;
}
long CGridCtrl::GetNumberRows() const {
  return GetInfo().rows.Count();
}
int CGridCtrl::SetNumberCols(int cols, int redraw) {
  const int result = m_rooms->counts.SetNumberCols(cols);
  Show(result == 0 && redraw != 0);
  return result;
}
int CGridCtrl::GetNumberCols() const {
  return static_cast<int>(GetInfo().columns.Count());
}

int CGridCtrl::InsertRow(long row) {
  return Shown(m_rooms->counts.InsertRow(row));
}
int CGridCtrl::AppendRow() {
  return Shown(m_rooms->counts.AppendRow());
}
int CGridCtrl::DeleteRow(long row) {
  return Shown(m_rooms->counts.DeleteRow(row));
}
int CGridCtrl::InsertCol(int col) {
  return Shown(m_rooms->counts.InsertCol(col));
}
int CGridCtrl::AppendCol() {
  return Shown(m_rooms->counts.AppendCol());
}
int CGridCtrl::DeleteCol(int col) {
  return Shown(m_rooms->counts.DeleteCol(col));
}
int CGridCtrl::MoveColPosition(int from, int to, int before) {
  return Shown(m_rooms->counts.MoveColPosition(from, to, before != 0));
}
int CGridCtrl::SetColWidth(int col, int width) {
  return Shown(m_rooms->sizing.SetColWidth(col, width));
}
int CGridCtrl::GetColWidth(int col) const {
  return m_rooms->sizing.GetColWidth(col);
}
int CGridCtrl::SetDefColWidth(int width) {
  if (width < 0) {
    return 1;
  }
  GetInfo().columns.SetDefaultSize(width);
  return 0;
}
int CGridCtrl::GetDefColWidth() const {
  return GetInfo().columns.DefaultSize();
}
int CGridCtrl::SetRowHeight(long row, int height) {
  return Shown(m_rooms->sizing.SetRowHeight(row, height));
}
int CGridCtrl::GetRowHeight(long row) const {
  return m_rooms->sizing.GetRowHeight(row);
}
int CGridCtrl::SetDefRowHeight(int height) {
  return Shown(m_rooms->sizing.SetDefRowHeight(height));
}
int CGridCtrl::GetDefRowHeight() const {
  return GetInfo().rows.DefaultSize();
}
int CGridCtrl::SetUniformRowHeight(int on) {
  return Shown(m_rooms->sizing.SetUniformRowHeight(on != 0));
}
int CGridCtrl::GetUniformRowHeight() const {
  return GetInfo().rows.IsUniform() ? 1 : 0;
}
int CGridCtrl::LockColumns(int count) {
  return Shown(m_rooms->counts.LockColumns(count));
}
int CGridCtrl::GetLockedColumns() const {
  return static_cast<int>(GetInfo().columns.Locked());
}
int CGridCtrl::LockRows(long count) {
  return Shown(m_rooms->counts.LockRows(count));
}
long CGridCtrl::GetLockedRows() const {
  return GetInfo().rows.Locked();
}
int CGridCtrl::BestFit(int startCol, int endCol, long rows) {
  return Shown(m_rooms->sizing.BestFit(startCol, endCol, rows));
}
int CGridCtrl::FitToWindow(int startCol, int endCol) {
  return Shown(m_rooms->sizing.FitToWindow(startCol, endCol));
}

// --- Headings

int CGridCtrl::SetTH_NumberRows(int rows) {
  return LaidOut(m_rooms->sizing.SetHeadingRows(rows));
}
int CGridCtrl::GetTH_NumberRows() const {
  return GetInfo().headings.TopRows();
}
int CGridCtrl::SetTH_RowHeight(int index, int height) {
  return index < 0 ? 1 : SetRowHeight(-index - 1L, height);
}
int CGridCtrl::GetTH_RowHeight(int index) const {
  return index < 0 ? 0 : GetRowHeight(-index - 1L);
}
int CGridCtrl::SetTH_Height(int height) {
  return LaidOut(SetSize(GetInfo().headings.topHeight, height));
}
int CGridCtrl::GetTH_Height() const {
  return GetInfo().headings.topHeight;
}
int CGridCtrl::SetSH_NumberCols(int cols) {
  return LaidOut(m_rooms->sizing.SetHeadingCols(cols));
}
int CGridCtrl::GetSH_NumberCols() const {
  return GetInfo().headings.SideCols();
}
int CGridCtrl::SetSH_ColWidth(int index, int width) {
  return index < 0 ? 1 : SetColWidth(-index - 1, width);
}
int CGridCtrl::GetSH_ColWidth(int index) const {
  return index < 0 ? 0 : GetColWidth(-index - 1);
}
int CGridCtrl::SetSH_Width(int width) {
  return LaidOut(SetSize(GetInfo().headings.sideWidth, width));
}
int CGridCtrl::GetSH_Width() const {
  return GetInfo().headings.sideWidth;
}
int CGridCtrl::SetVS_Width(int width) {
  return LaidOut(SetSize(GetInfo().view.vScrollWidth, width));
}
int CGridCtrl::GetVS_Width() const {
  return GetInfo().view.vScrollWidth;
}
int CGridCtrl::SetHS_Height(int height) {
  return LaidOut(SetSize(GetInfo().view.hScrollHeight, height));
}
int CGridCtrl::GetHS_Height() const {
  return GetInfo().view.hScrollHeight;
}

// --- Sheets

int CGridCtrl::SetNumberSheets(int count) {
  if (count < 1) {
    return 1;
  }
  const int before = GetNumberSheets();
  const int current = GetSheetNumber();
  const int paint = GetPaintMode();
  const int tabWidth = GetTabWidth();
  m_rooms->sheets.SetCount(count);
  // A new sheet is current while it is set up, so that its set-up reaches it.
  for (int sheet = before; sheet < count; ++sheet) {
    m_rooms->sheets.SetCurrent(sheet);
    GetInfo().view.paintEnabled = paint;
    GetInfo().view.tabWidth = tabWidth;
    OnSheetSetup(sheet);
  }
  m_rooms->sheets.SetCurrent(std::min(current, GetNumberSheets() - 1));
  m_rooms->parts.ShowSheets();
  return LaidOut(0);
}
int CGridCtrl::GetNumberSheets() const {
  return m_rooms->sheets.Count();
}
int CGridCtrl::SetSheetNumber(int sheet) {
  if (!m_rooms->sheets.Has(sheet)) {
    return 1;
  }
  m_rooms->sheets.SetCurrent(sheet);
  m_rooms->parts.ShowSheets();
  return LaidOut(0);
}
int CGridCtrl::GetSheetNumber() const {
  return m_rooms->sheets.CurrentNumber();
}
int CGridCtrl::SetSheetName(int sheet, const wchar_t* name) {
  if (!m_rooms->sheets.Has(sheet)) {
    return 1;
  }
  m_rooms->sheets.At(sheet).name = name;
  m_rooms->parts.ShowSheets();
  return 0;
}
CString CGridCtrl::GetSheetName(int sheet) const {
  return m_rooms->sheets.Has(sheet) ? m_rooms->sheets.NameOf(sheet) : CString();
}
int CGridCtrl::SetTabWidth(int width) {
  if (width < 0) {
    return 1;
  }
  for (int sheet = 0; sheet < GetNumberSheets(); ++sheet) {
    m_rooms->sheets.At(sheet).view.tabWidth = width;
  }
  return LaidOut(0);
}
int CGridCtrl::GetTabWidth() const {
  return GetInfo().view.tabWidth;
}

// --- Position and view

int CGridCtrl::GotoCell(int col, long row) {
  return m_rooms->navigator.GotoCell(col, row);
}
int CGridCtrl::GotoCol(int col) {
  return m_rooms->navigator.GotoCol(col);
}
int CGridCtrl::GotoRow(long row) {
  return m_rooms->navigator.GotoRow(row);
}
int CGridCtrl::MoveCurrentCol(int code) {
  return m_rooms->navigator.MoveCurrentCol(code);
}
int CGridCtrl::MoveCurrentRow(int code) {
  return m_rooms->navigator.MoveCurrentRow(code);
}
int CGridCtrl::AdjustTopRow(long delta) {
  return m_rooms->navigator.AdjustTopRow(delta);
}
int CGridCtrl::AdjustLeftCol(int delta) {
  return m_rooms->navigator.AdjustLeftCol(delta);
}
int CGridCtrl::SetTopRow(long row) {
  return m_rooms->navigator.SetTopRow(row);
}
int CGridCtrl::SetLeftCol(int col) {
  return m_rooms->navigator.SetLeftCol(col);
}
int CGridCtrl::MoveLeftCol(int code) {
  return m_rooms->navigator.MoveLeftCol(code);
}
int CGridCtrl::MoveTopRow(int code) {
  return m_rooms->navigator.MoveTopRow(code);
}
int CGridCtrl::VerifyTopRow(long* row) {
  return m_rooms->navigator.VerifyTopRow(row);
}
int CGridCtrl::VerifyLeftCol(int* col) {
  return m_rooms->navigator.VerifyLeftCol(col);
}
int CGridCtrl::VerifyCurrentRow(long* row) {
  return m_rooms->navigator.VerifyCurrentRow(row);
}
int CGridCtrl::VerifyCurrentCol(int* col) {
  return m_rooms->navigator.VerifyCurrentCol(col);
}
void CGridCtrl::Moved() {
  m_rooms->navigator.Moved();
}
int CGridCtrl::GetCurrentCol() const {
  return static_cast<int>(GetInfo().columns.current);
}
long CGridCtrl::GetCurrentRow() const {
  return GetInfo().rows.current;
}
int CGridCtrl::GetLeftCol() const {
  return static_cast<int>(GetInfo().columns.First());
}
long CGridCtrl::GetTopRow() const {
  return GetInfo().rows.First();
}
int CGridCtrl::GetRightCol() const {
  return static_cast<int>(GetInfo().columns.last);
}
long CGridCtrl::GetBottomRow() const {
  return GetInfo().rows.last;
}
void CGridCtrl::ResetDragCell() {
  m_rooms->navigator.ResetDragCell();
}

// --- Rectangles and points

int CGridCtrl::GetCellRect(int col, long row, RECT* rect) {
  CRect found;
  const bool exists = m_rooms->geometry.CellRect(col, row, found);
  *rect = found;
  return exists ? 0 : 1;
}
int CGridCtrl::GetRangeRect(int startCol, long startRow, int endCol, long endRow, RECT* rect) {
  CRect found;
  const bool exists = m_rooms->geometry.RangeRect(startCol, startRow, endCol, endRow, found);
  *rect = found;
  return exists ? 0 : 1;
}
int CGridCtrl::GetCellFromPoint(int x, int y, int* col, long* row) {
  return m_rooms->geometry.CellAt(coregui::GRIDSECTION_GRID, {x, y}, *col, *row) ? 0 : 1;
}
int CGridCtrl::GetCellFromPoint(int x, int y, int* col, long* row, RECT* rect) {
  return GetSectionCellFromPoint(coregui::GRIDSECTION_GRID, x, y, col, row, rect);
}
int CGridCtrl::GetSectionCellFromPoint(int section, int x, int y, int* col, long* row, RECT* rect) {
  return m_rooms->geometry.CellAt(section, {x, y}, *col, *row) ? GetCellRect(*col, *row, rect) : 1;
}

// --- What follows a change

int CGridCtrl::Shown(int result) {
  Show(result == 0);
  return result;
}
int CGridCtrl::LaidOut(int result) {
  if (result == 0) {
    AdjustComponentSizes();
    Show(true);
  }
  return result;
}
int CGridCtrl::SetSize(int& size, int pixels) {
  if (pixels < 0) {
    return 1;
  }
  size = pixels;
  return 0;
}
