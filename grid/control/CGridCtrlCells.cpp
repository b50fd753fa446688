// The part of the grid's face that reads and writes cells: cells, quick operations, sources, joined blocks,
// sorting and finding. The contracts stand in the rooms.

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridRooms.h"
#include "grid/data/CGridCell.h"

using coregui::CGridJoins;

int CGridCtrl::GetCell(int col, long row, CGridCell* cell) {
  return m_rooms->cells.Get(col, row, cell);
}
int CGridCtrl::GetCellIndirect(int col, long row, CGridCell* cell) {
  return m_rooms->cells.GetDisplayed(col, row, cell);
}
int CGridCtrl::SetCell(int col, long row, CGridCell* cell) {
  return m_rooms->cells.Set(col, row, cell);
}
int CGridCtrl::DeleteCell(int col, long row) {
  return m_rooms->cells.Delete(col, row);
}
int CGridCtrl::GetColDefault(int col, CGridCell* cell) {
  return m_rooms->cells.GetColDefault(col, cell);
}
int CGridCtrl::SetColDefault(int col, CGridCell* cell) {
  return m_rooms->cells.SetColDefault(col, cell);
}
int CGridCtrl::GetGridDefault(CGridCell* cell) {
  return cell == nullptr ? 1 : cell->CopyInfoFrom(GetInfo().gridDefault.get());
}
int CGridCtrl::SetGridDefault(CGridCell* cell) {
  return cell == nullptr ? 1 : GetInfo().gridDefault->CopyInfoFrom(cell);
}
int CGridCtrl::GetHeadingDefault(CGridCell* cell) {
  return cell == nullptr ? 1 : cell->CopyInfoFrom(GetInfo().headingDefault.get());
}
int CGridCtrl::SetHeadingDefault(CGridCell* cell) {
  return cell == nullptr ? 1 : GetInfo().headingDefault->CopyInfoFrom(cell);
}

// --- Quick operations

int CGridCtrl::QuickSetText(int col, long row, const wchar_t* text) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetText(text); });
}
int CGridCtrl::QuickGetText(int col, long row, CString* text) {
  return m_rooms->cells.QuickGetText(col, row, text);
}
int CGridCtrl::QuickSetNumber(int col, long row, double number) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetNumber(number); });
}
int CGridCtrl::QuickGetNumber(int col, long row, double* number) {
  return m_rooms->cells.QuickGetNumber(col, row, number);
}
int CGridCtrl::QuickSetBool(int col, long row, int value) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetBool(value); });
}
int CGridCtrl::QuickSetDataType(int col, long row, short type) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetDataType(type); });
}
int CGridCtrl::QuickSetLabelText(int col, long row, const wchar_t* text) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetLabelText(text); });
}
int CGridCtrl::QuickSetMask(int col, long row, const wchar_t* mask) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetMask(mask); });
}
int CGridCtrl::QuickSetParam(int col, long row, long param) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetParam(param); });
}
int CGridCtrl::QuickSetNumberDecimals(int col, long row, int decimals) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetNumberDecimals(decimals); });
}
int CGridCtrl::QuickSetReadOnly(int col, long row, int readOnly) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetReadOnly(readOnly); });
}
int CGridCtrl::QuickSetCellType(int col, long row, int type) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetCellType(type); });
}
int CGridCtrl::QuickSetCellTypeEx(int col, long row, long style) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetCellTypeEx(style); });
}
int CGridCtrl::QuickSetTextColor(int col, long row, COLORREF colour) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetTextColor(colour); });
}
int CGridCtrl::QuickSetBackColor(int col, long row, COLORREF colour) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetBackColor(colour); });
}
int CGridCtrl::QuickSetHTextColor(int col, long row, COLORREF colour) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetHTextColor(colour); });
}
int CGridCtrl::QuickSetHBackColor(int col, long row, COLORREF colour) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetHBackColor(colour); });
}
int CGridCtrl::QuickSetBorder(int col, long row, short border) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetBorder(border); });
}
int CGridCtrl::QuickSetBorderColor(int col, long row, CPen* pen) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetBorderColor(pen); });
}
int CGridCtrl::QuickSetFont(int col, long row, CFont* font) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetFont(font); });
}
int CGridCtrl::QuickSetFont(int col, long row, int fontIndex) {
  CFont* const font = m_rooms->fonts.At(fontIndex);
  return font == nullptr ? 1 : QuickSetFont(col, row, font);
}
int CGridCtrl::QuickSetBitmap(int col, long row, CBitmap* bitmap) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetBitmap(bitmap); });
}
int CGridCtrl::QuickSetAlignment(int col, long row, short alignment) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetAlignment(alignment); });
}
int CGridCtrl::QuickSetFormatClass(int col, long row, CGridCellFormat* format) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetFormatClass(format); });
}
int CGridCtrl::QuickSetCellStyle(int col, long row, CGridCell* style) {
  return m_rooms->cells.Quick(col, row, [&](CGridCell& cell) { return cell.SetCellStyle(style); });
}
int CGridCtrl::QuickSetCellExtraMem(int col, long row, long size, void* data) {
  return m_rooms->cells.QuickSetExtraMem(col, row, size, data);
}

// --- Data sources

int CGridCtrl::AddDataSource(CGridDataSource* source) {
  return m_rooms->sources.Add(source);
}
int CGridCtrl::SetDefDataSource(int index) {
  return m_rooms->sources.SetDefault(index);
}
int CGridCtrl::GetDefDataSource() const {
  return GetInfo().defaultSourceIndex;
}
CGridDataSource* CGridCtrl::GetDataSource(int index) const {
  return m_rooms->sources.At(index);
}
int CGridCtrl::SetColDataSource(int col, int index) {
  return m_rooms->sources.SetColumnSource(col, index);
}
int CGridCtrl::RemoveDataSource(int index) {
  return m_rooms->sources.Remove(index);
}
int CGridCtrl::GetColTranslation(int col) const {
  return GetInfo().columns.Translate(col);
}
void CGridCtrl::SetColTranslation(int col, int dataColumn) {
  if (GetInfo().columns.Has(col)) {
    GetInfo().columns.At(col).translation = dataColumn;
  }
}

// --- Joined cells

int CGridCtrl::EnableJoins(int on) {
  GetInfo().view.joins = on != 0 ? 1 : 0;
  return 0;
}
int CGridCtrl::JoinCells(int startCol, long startRow, int endCol, long endRow) {
  return Shown(m_rooms->joins.Join({startCol, startRow, endCol, endRow}));
}
int CGridCtrl::UnJoinCells(int startCol, long startRow, int endCol, long endRow) {
  return Shown(m_rooms->joins.UnJoin({startCol, startRow, endCol, endRow}));
}
int CGridCtrl::GetJoinStartCell(int* col, long* row) {
  CGridJoins::Block block{};
  const bool joined = m_rooms->joins.Find(*col, *row, block);
  *col = block.startCol;
  *row = block.startRow;
  return joined ? 0 : 1;
}
int CGridCtrl::GetJoinStartCell(int* startCol, long* startRow, int col, long row) {
  *startCol = col;
  *startRow = row;
  return GetJoinStartCell(startCol, startRow);
}
int CGridCtrl::GetJoinRange(int* col, long* row, int* endCol, long* endRow) {
  CGridJoins::Block block{};
  const bool joined = m_rooms->joins.Find(*col, *row, block);
  *col = block.startCol;
  *row = block.startRow;
  *endCol = block.endCol;
  *endRow = block.endRow;
  return joined ? 0 : 1;
}

// --- Sorting and finding

int CGridCtrl::SortBy(int col, int flags) {
  return m_rooms->sorting.SortBy(col, flags);
}
int CGridCtrl::SortBy(int* cols, int count, int flags) {
  return m_rooms->sorting.SortBy(cols, count, flags);
}
int CGridCtrl::FindFirst(CString* text, int* col, long* row, long flags) {
  return m_rooms->finder.FindFirst(text, col, row, flags);
}
int CGridCtrl::FindNext(CString* text, int* col, long* row, int flags) {
  return m_rooms->finder.FindNext(text, col, row, flags);
}
int CGridCtrl::FindInAllCols(int on) {
  return m_rooms->finder.FindInAllCols(on != 0);
}

// --- Clipboard

int CGridCtrl::CreateSelectedString(CString& text, int cut) {
  return m_rooms->clipboard.CreateSelectedString(text, cut != 0);
}
int CGridCtrl::CopySelected() {
  return m_rooms->clipboard.CopySelected(false);
}
int CGridCtrl::CopySelected(int cut) {
  return m_rooms->clipboard.CopySelected(cut != 0);
}
int CGridCtrl::CutSelected() {
  return m_rooms->clipboard.CopySelected(true);
}
int CGridCtrl::CopyToClipBoard(CString* text) {
  return m_rooms->clipboard.CopyToClipBoard(*text);
}
int CGridCtrl::CopyFromClipBoard(CString* text) {
  return m_rooms->clipboard.CopyFromClipBoard(*text);
}
int CGridCtrl::Paste() {
  return m_rooms->clipboard.Paste();
}
int CGridCtrl::Paste(CString& text) {
  return m_rooms->clipboard.Paste(text);
}
