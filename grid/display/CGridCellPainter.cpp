#include "grid/display/CGridCellPainter.h"

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"

namespace coregui {

void CGridCellPainter::GetDisplayed(const Cell& cell) {
  m_control.GetCellIndirect(cell.col, cell.row, &m_cell);
}

bool CGridCellPainter::IsJoined() {
  return m_cell.IsPropertySet(CELLPROP_JOIN) != 0;
}

/// False when the block was drawn already. A cell whose block cannot be found stays as it is.
bool CGridCellPainter::EnterBlock(Cell& cell) {
  int col = 0;
  long row = 0;
  if (m_control.GetJoinStartCell(&col, &row, cell.col, cell.row) != 0) return true;
  if (m_hints.IsValid(col, row) != 0) return false;
  m_hints.SetAsValid(col, row);
  m_control.GetCellRect(cell.col, cell.row, &cell.rect);
  cell.col = col;
  cell.row = row;
  cell.joined = true;
  return true;
}

void CGridCellPainter::Draw(CDC& dc, const Cell& cell, int selected, int current) {
  const int id = m_cell.IsPropertySet(CELLPROP_CELLTYPE) != 0 ? m_cell.GetCellType() : -1;
  RECT rect = cell.rect;
  m_control.GetCellDelegate(id)->OnDraw(&dc, &rect, cell.col, cell.row, &m_cell, selected, current);
}

}  // namespace coregui
