#include "grid/display/CGridCellPainter.h"

#include <algorithm>
#include <cmath>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "platform/CDC.h"

namespace coregui {

void CGridCellPainter::GetDisplayed(const Cell& cell) {
  m_control.GetCellIndirect(cell.col, cell.row, &m_cell);
}

bool CGridCellPainter::IsJoined() {
  return m_cell.IsPropertySet(CELLPROP_JOIN) != 0;
}

/// False when the block was drawn already. A cell whose block cannot be found stays as it is.
bool CGridCellPainter::EnterBlock(Cell& cell) {
  CGridDrawHint::Range block{cell.col, cell.row, 0, 0};
  if (m_control.GetJoinRange(&block.startCol, &block.startRow, &block.endCol, &block.endRow) != 0)
    return true;
  if (m_hints.IsValid(block.startCol, block.startRow) != 0) return false;
  m_hints.SetAsValid(block.startCol, block.startRow);
  m_hints.NoteDrawnAsOne(block);
  m_control.GetCellRect(cell.col, cell.row, &cell.rect);
  cell.col = block.startCol;
  cell.row = block.startRow;
  cell.joined = true;
  return true;
}

CGridCellDelegate& CGridCellPainter::TypeOfCell() {
  return *m_control.GetCellDelegate(m_cell.IsPropertySet(CELLPROP_CELLTYPE) != 0 ? m_cell.GetCellType() : -1);
}

bool CGridCellPainter::ShowsOwnText() {
  const wchar_t* const text = m_cell.GetText();
  return text != nullptr && *text != L'\0' && &TypeOfCell() == m_control.GetCellDelegate(-1);
}

bool CGridCellPainter::MayOverlap() {
  return m_control.GetCellOverLap() != 0 && TypeOfCell().CanOverLap(&m_cell) != 0;
}

CRect CGridCellPainter::PaneOf(const Cell& cell) const {
  if (!cell.joined) return cell.rect;
  const auto start = [](const CGridAxis& axis, long index, LONG place) {
    const bool beside = axis.Locked() > 0 && index >= axis.Locked();
    return beside ? std::max(place, static_cast<LONG>(axis.LockedSize())) : place;
  };
  const CGridInfo& info = m_control.GetInfo();
  CRect pane = cell.rect;
  pane.left = start(info.columns, cell.col, pane.left);
  pane.top = start(info.rows, cell.row, pane.top);
  return pane;
}

void CGridCellPainter::Draw(CDC& dc, const Cell& cell, int selected, int current) {
  RECT rect = cell.rect;
  // Where a pixel is no whole number of dots, a border's lines and the ground inside leave gaps between them.
  if (const double dots = dc.GetScaleFactor(); dots != std::floor(dots)) {
    dc.FillSolidRect(rect, selected != 0 ? m_cell.GetHBackColor() : m_cell.GetBackColor());
  }
  TypeOfCell().OnDraw(&dc, &rect, cell.col, cell.row, &m_cell, selected, current);
}

}  // namespace coregui
