#include "grid/control/CGridMoveSelection.h"

#include "grid/control/CGridMultiSelect.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"

namespace coregui {

namespace {

CellPlace CurrentOf(const CGridInfo& info) {
  return {static_cast<int>(info.columns.current), info.rows.current};
}

}  // namespace

/// Keys as they stand, or as the mouse message at hand says.
bool CGridMoveSelection::IsHeld(UINT key, UINT flag) const {
  const CGridViewState& view = m_sheets.Current().view;
  return GetKeyState(key) < 0 || (view.mouseEvent != MouseEvent::none && (view.mouseFlags & flag) != 0);
}

bool CGridMoveSelection::Restart() {
  const CGridInfo& info = m_sheets.Current();
  const CellPlace current = CurrentOf(info);
  if (info.view.multiSelectMode == 0 || info.view.keepSelectionOnGoto != 0 || !current.IsCell() ||
      IsHeld(VK_SHIFT, MK_SHIFT) || IsHeld(VK_CONTROL, MK_CONTROL)) {
    return false;
  }
  info.selection->AddTotalRangeToDrawHints(m_screen.BodyHints());
  info.selection->ClearAll();
  info.selection->StartBlock(current.col, current.row);
  return true;
}

void CGridMoveSelection::Follow(const CellPlace& cell) {
  const CGridInfo& info = m_sheets.Current();
  if (info.view.multiSelectMode == 0 || !cell.IsCell()) {
    return;
  }
  CGridMultiSelect& selection = *info.selection;
  if (info.view.mouseEvent == MouseEvent::leftDown) {
    selection.OnLClick(cell.col, cell.row, info.view.mouseFlags);
  } else if (info.view.mouseEvent == MouseEvent::rightDown) {
    selection.OnRClick(cell.col, cell.row, info.view.mouseFlags);
  } else if (info.view.keepSelectionOnGoto != 0) {
    selection.OnMouseMove(cell.col, cell.row, info.view.mouseFlags);
  } else {
    const CellPlace current = CurrentOf(info);
    if (GetKeyState(VK_SHIFT) < 0 && selection.GetNumberBlocks() == 0 && current.IsCell()) {
      selection.StartBlock(current.col, current.row);
    }
    selection.OnKeyMove(cell.col, cell.row);
  }
}

void CGridMoveSelection::FollowInPlace(const CellPlace& cell) {
  const CGridInfo& info = m_sheets.Current();
  if (info.view.multiSelectMode == 0 || !cell.IsCell()) {
    return;
  }
  const MouseEvent event = info.view.mouseEvent;
  if (IsHeld(VK_SHIFT, MK_SHIFT)) {
    info.selection->EndBlock(cell.col, cell.row);
  } else if (event == MouseEvent::leftDown || event == MouseEvent::rightDown) {
    Follow(cell);
  } else {
    return;
  }
  m_screen.ShowMoved();
}

}  // namespace coregui
