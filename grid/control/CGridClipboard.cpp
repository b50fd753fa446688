#include "grid/control/CGridClipboard.h"

#include <algorithm>

#include "grid/control/CGridCells.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/control/CGridNavigator.h"
#include "grid/control/CGridNotify.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/TabText.h"
#include "grid/data/CGridCell.h"
#include "platform/Clipboard.h"

namespace coregui {

int CGridClipboard::CreateSelectedString(CString& text, bool cut) {
  text.Empty();
  CGridMultiSelect& selection = *m_rooms.sheets.Current().selection;
  int col = -1;
  long row = -1;
  int more = selection.EnumFirstSelected(&col, &row);
  if (selection.GetNumberBlocks() == 0 && (col < 0 || row < 0)) {
    return 0;  // no current cell: a heading cell is not meant
  }
  while (more == 0) {
    AppendCell(text, col, row, cut);
    const long before = row;
    more = selection.EnumNextSelected(&col, &row);
    if (more == 0) {
      text += row == before ? L'\t' : L'\n';
    }
  }
  return 0;
}

void CGridClipboard::AppendCell(CString& text, int col, long row, bool cut) {
  CGridCell cell;
  m_rooms.cells.GetDisplayed(col, row, &cell);
  text += cell.GetText();
  if (cut && cell.GetReadOnly() == 0) {
    // Kept: the cell that is written has the default properties set, which from then on hide the column's.
    cell.ClearAll();
    m_rooms.cells.Set(col, row, &cell);
  }
}

int CGridClipboard::CopySelected(bool cut) {
  CString text;
  CreateSelectedString(text, cut);
  const int result = CopyToClipBoard(text);
  if (cut && result == 0) {
    m_rooms.sheets.Current().selection->ClearAll();
    m_rooms.navigator.ResetDragCell();
    m_rooms.screen.ShowAll();
  }
  return result;
}

int CGridClipboard::CopyToClipBoard(const CString& text) {
  SetClipboardText(text);
  return 0;
}

int CGridClipboard::CopyFromClipBoard(CString& text) {
  return GetClipboardText(text) ? 0 : 1;
}

int CGridClipboard::Paste() {
  CString text;
  return CopyFromClipBoard(text) != 0 ? 1 : Paste(text);
}

int CGridClipboard::Paste(const CString& text) {
  const CGridInfo& info = m_rooms.sheets.Current();
  const auto startCol = static_cast<int>(info.columns.current);
  const long startRow = info.rows.current;
  if (startCol < 0 || startRow < 0) {
    return 0;
  }
  int endCol = startCol;
  long endRow = startRow;
  SplitTabText(text, [&](int col, long row, const CString& field) {
    const int targetCol = startCol + col;
    const long targetRow = startRow + row;
    const CGridInfo& target = m_rooms.sheets.Current();
    if (targetCol >= target.columns.Count() || targetRow >= target.rows.Count()) {
      return;
    }
    PasteField(targetCol, targetRow, field);
    if (!field.IsEmpty()) {
      endCol = std::max(endCol, targetCol);
      endRow = std::max(endRow, targetRow);
    }
  });
  CGridMultiSelect& selection = *m_rooms.sheets.Current().selection;
  selection.ClearAll();
  m_rooms.navigator.ResetDragCell();
  selection.StartBlock(startCol, startRow);
  selection.EndBlock(endCol, endRow);
  m_rooms.screen.ShowAll();
  return 0;
}

void CGridClipboard::PasteField(int col, long row, const CString& field) {
  CGridCell cell;
  const bool stored = m_rooms.cells.Get(col, row, &cell) == 0;
  // Kept: only the stored cell can protect itself; a column's default does not.
  if (cell.GetReadOnly() != 0 || (field.IsEmpty() && !stored)) {
    return;
  }
  cell.SetText(field);
  m_rooms.cells.Set(col, row, &cell);
  m_rooms.notify.OnPaste(col, row);
}

}  // namespace coregui
