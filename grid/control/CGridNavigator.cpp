#include "grid/control/CGridNavigator.h"

#include <algorithm>

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCells.h"
#include "grid/control/CGridJoins.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/control/CGridNotify.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/control/CGridTypeTable.h"
#include "grid/control/CGridVetoes.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridDataSource.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"

namespace coregui {

namespace {

constexpr int moveMade = 0;
constexpr int noSuchPlace = 1;
constexpr int vetoed = 2;

// Codes of moves.
constexpr int stepBack = 0;
constexpr int stepForward = 1;
constexpr int pageBack = 2;
constexpr int pageForward = 3;
constexpr int toFirst = 4;
constexpr int toLast = 5;

/// True for the codes above; `target` becomes where the drag cell goes.
bool DragTarget(const CGridAxis& axis, int code, long& target) {
  switch (code) {
    case stepBack:
      target = axis.drag - 1;
      return true;
    case stepForward:
      target = axis.drag + 1;
      return true;
    case pageBack:
      target = axis.PageTarget(axis.drag, -1);
      return true;
    case pageForward:
      target = axis.PageTarget(axis.drag, 1);
      return true;
    case toFirst:
      target = 0;
      return true;
    case toLast:
      target = axis.Count() - 1;
      return true;
    default:
      return false;
  }
}

/// The same for the first entry in view. A page leaves the last entry of the old view in the new one.
bool ViewTarget(const CGridAxis& axis, int code, long& target) {
  const long first = axis.First();
  switch (code) {
    case stepBack:
      target = axis.NearestShown(first - 1, -1);
      return true;
    case stepForward:
      target = first + 1 < axis.Count() ? std::max(axis.NearestShown(first + 1, 1), first) : first;
      return true;
    case pageBack:
      target = std::min(axis.PageTarget(first, -1), first - 1);
      return true;
    case pageForward:
      target = std::max(axis.PageTarget(first, 1), first + 1);
      return true;
    case toFirst:
      target = 0;
      return true;
    case toLast:
      target = axis.MaxFirst();
      return true;
    default:
      return false;
  }
}

int VerifyCurrent(const CGridAxis& axis, long& target) {
  if (axis.Count() <= 0) {
    return noSuchPlace;
  }
  target = std::clamp(target, 0L, axis.Count() - 1);
  const int direction = target < axis.drag ? -1 : 1;
  long shown = axis.NearestShown(target, direction);
  if (shown < 0) {
    shown = axis.NearestShown(target, -direction);
  }
  target = shown < 0 ? target : shown;
  return moveMade;
}

bool IsShown(const CGridAxis& axis, long index) {
  return index >= axis.First() && index < axis.last;
}

/// Keys as they stand, or as the mouse message at hand says.
bool IsModifierDown(const CGridViewState& view, UINT key, UINT flag) {
  return GetKeyState(key) < 0 || (view.mouseEvent != MouseEvent::none && (view.mouseFlags & flag) != 0);
}

}  // namespace

CGridAxis& CGridNavigator::Cols() const {
  return m_rooms.sheets.Current().columns;
}
CGridAxis& CGridNavigator::Rows() const {
  return m_rooms.sheets.Current().rows;
}

CGridNavigator::Cell CGridNavigator::Current() const {
  return {static_cast<int>(Cols().current), Rows().current};
}

CGridNavigator::Cell CGridNavigator::Drag() const {
  return {static_cast<int>(Cols().drag), Rows().drag};
}

bool CGridNavigator::IsInView(const Cell& cell) const {
  return IsShown(Cols(), cell.col) && IsShown(Rows(), cell.row);
}

int CGridNavigator::ClickDragCell() {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (info.view.multiSelectMode == 0) {
    return moveMade;
  }
  const Cell cell = Drag();
  if (IsModifierDown(info.view, VK_SHIFT, MK_SHIFT)) {
    info.selection->EndBlock(cell.col, cell.row);
    m_rooms.screen.ShowMoved();
  } else if (info.view.mouseEvent != MouseEvent::none) {
    // A click on the current cell moves nothing, and still takes the selection back to that cell.
    Select(cell);
    m_rooms.screen.ShowMoved();
  }
  return moveMade;
}

int CGridNavigator::GotoCell(int col, long row) {
  if (Drag() == Cell{col, row}) {
    return ClickDragCell();
  }
  CGridJoins::Block block{};
  m_rooms.joins.Find(col, row, block);
  if (Cols().Count() <= 0 || Rows().Count() <= 0) {
    return noSuchPlace;
  }
  const Cell target{static_cast<int>(std::clamp<long>(block.startCol, 0, Cols().Count() - 1)),
                    std::clamp(block.startRow, 0L, Rows().Count() - 1)};
  const Cell current = Current();
  if (!m_rooms.vetoes.CanMove(current.col, current.row, target.col, target.row)) {
    return vetoed;
  }
  if (!IsInView(target) &&
      !m_rooms.vetoes.CanViewMove(static_cast<int>(Cols().First()), Rows().First(), target.col, target.row)) {
    return vetoed;
  }
  Cols().drag = target.col;
  Rows().drag = target.row;
  Cols().KeepDragInView();
  Rows().KeepDragInView();
  Select(target);
  Moved();
  return moveMade;
}

int CGridNavigator::GotoCol(int col) {
  ResetSelection();
  long target = col;
  if (target == Cols().drag) {
    return moveMade;
  }
  if (VerifyCurrent(Cols(), target) != moveMade) {
    return noSuchPlace;
  }
  const Cell drag = Drag();
  if (target == drag.col) {
    return moveMade;
  }
  if (!m_rooms.vetoes.CanMove(drag.col, drag.row, static_cast<int>(target), drag.row)) {
    return vetoed;
  }
  return FinishMove(Cols(), target, {static_cast<int>(target), Rows().First()});
}

int CGridNavigator::GotoRow(long row) {
  ResetSelection();
  long target = row;
  if (target == Rows().drag) {
    return moveMade;
  }
  if (VerifyCurrent(Rows(), target) != moveMade) {
    return noSuchPlace;
  }
  const Cell drag = Drag();
  if (target == drag.row) {
    return moveMade;
  }
  // Kept: rows ask the control alone, columns their source too.
  if (!m_rooms.vetoes.CanMoveRow(drag.col, drag.row, drag.col, target)) {
    return vetoed;
  }
  return FinishMove(Rows(), target, {static_cast<int>(Cols().First()), target});
}

int CGridNavigator::FinishMove(CGridAxis& axis, long target, const Cell& view) {
  if (!IsShown(axis, target) &&
      !m_rooms.vetoes.CanViewMove(static_cast<int>(Cols().First()), Rows().First(), view.col, view.row)) {
    return vetoed;
  }
  axis.drag = std::min(target, axis.Count() - 1);  // a notification may have taken rows away
  axis.KeepDragInView();
  Select(Drag());
  Moved();
  return moveMade;
}

int CGridNavigator::MoveCurrentCol(int code) {
  long target = 0;
  return DragTarget(Cols(), code, target) ? GotoCol(static_cast<int>(target)) : moveMade;
}

int CGridNavigator::MoveCurrentRow(int code) {
  long target = 0;
  return DragTarget(Rows(), code, target) ? GotoRow(target) : moveMade;
}

int CGridNavigator::SetTopRow(long row) {
  const long before = Rows().First();
  const long first = Rows().ClampFirst(row);
  if (!m_rooms.vetoes.CanViewMove(static_cast<int>(Cols().First()), before, static_cast<int>(Cols().First()),
                                  first)) {
    return vetoed;
  }
  Rows().SetFirst(first);
  if (first != before) {
    Moved();
  }
  return moveMade;
}

int CGridNavigator::SetLeftCol(int col) {
  const long before = Cols().First();
  const long first = Cols().ClampFirst(col);
  if (!m_rooms.vetoes.CanViewMove(static_cast<int>(before), Rows().First(), static_cast<int>(first),
                                  Rows().First())) {
    return vetoed;
  }
  Cols().SetFirst(first);
  if (first != before) {
    Moved();
  }
  return moveMade;
}

int CGridNavigator::AdjustTopRow(long delta) {
  return delta == 0 ? moveMade : SetTopRow(Rows().First() + delta);
}

int CGridNavigator::AdjustLeftCol(int delta) {
  return delta == 0 ? moveMade : SetLeftCol(static_cast<int>(Cols().First()) + delta);
}

int CGridNavigator::MoveTopRow(int code) {
  long target = 0;
  return ViewTarget(Rows(), code, target) && target != Rows().First() ? SetTopRow(target) : moveMade;
}

int CGridNavigator::MoveLeftCol(int code) {
  long target = 0;
  return ViewTarget(Cols(), code, target) && target != Cols().First() ? SetLeftCol(static_cast<int>(target))
                                                                      : moveMade;
}

int CGridNavigator::VerifyCurrentCol(int* col) const {
  long target = *col;
  const int result = VerifyCurrent(Cols(), target);
  *col = static_cast<int>(target);
  return result;
}

int CGridNavigator::VerifyCurrentRow(long* row) const {
  return VerifyCurrent(Rows(), *row);
}

int CGridNavigator::VerifyTopRow(long* row) const {
  *row = Rows().ClampFirst(*row);
  return 0;
}

int CGridNavigator::VerifyLeftCol(int* col) const {
  *col = static_cast<int>(Cols().ClampFirst(*col));
  return 0;
}

void CGridNavigator::ResetDragCell() {
  Cols().drag = Cols().current;
  Rows().drag = Rows().current;
}

void CGridNavigator::ResetSelection() {
  const CGridInfo& info = m_rooms.sheets.Current();
  const Cell current = Current();
  if (info.view.multiSelectMode == 0 || info.view.keepSelectionOnGoto != 0 || current.col < 0 ||
      current.row < 0 || IsModifierDown(info.view, VK_SHIFT, MK_SHIFT) ||
      IsModifierDown(info.view, VK_CONTROL, MK_CONTROL)) {
    return;
  }
  info.selection->AddTotalRangeToDrawHints(m_rooms.screen.BodyHints());
  info.selection->ClearAll();
  info.selection->StartBlock(current.col, current.row);
}

void CGridNavigator::Select(const Cell& cell) {
  const CGridInfo& info = m_rooms.sheets.Current();
  if (info.view.multiSelectMode == 0 || cell.col < 0 || cell.row < 0) {
    return;
  }
  CGridMultiSelect& selection = *info.selection;
  const Cell current = Current();
  switch (info.view.mouseEvent) {
    case MouseEvent::leftDown:
      selection.OnLClick(cell.col, cell.row, info.view.mouseFlags);
      return;
    case MouseEvent::rightDown:
      selection.OnRClick(cell.col, cell.row, info.view.mouseFlags);
      return;
    default:
      break;
  }
  if (info.view.keepSelectionOnGoto != 0) {
    selection.OnMouseMove(cell.col, cell.row, info.view.mouseFlags);
    return;
  }
  if (GetKeyState(VK_SHIFT) < 0 && selection.GetNumberBlocks() == 0 && current.col >= 0 && current.row >= 0) {
    selection.StartBlock(current.col, current.row);
  }
  selection.OnKeyMove(cell.col, cell.row);
}

void CGridNavigator::Moved() {
  CGridAxis& cols = Cols();
  CGridAxis& rows = Rows();
  const Cell before = Current();
  const Cell after = Drag();
  const Cell viewBefore{static_cast<int>(cols.reportedFirst), rows.reportedFirst};
  const Cell viewAfter{static_cast<int>(cols.First()), rows.First()};
  cols.lastCurrent = before.col;
  rows.lastCurrent = before.row;
  cols.current = after.col;
  rows.current = after.row;
  cols.reportedFirst = viewAfter.col;
  rows.reportedFirst = viewAfter.row;
  TellTypes(before, after, !(viewBefore == viewAfter));
  TellCellChange(before, after);
  TellViewChange(viewBefore, viewAfter);
  m_rooms.screen.ShowScrollBars();
  m_rooms.screen.ShowMoved();
}

void CGridNavigator::TellTypes(const Cell& before, const Cell& after, bool scrolled) {
  const auto tell = [this](const Cell& at, auto call) {
    if (at.col < 0 || at.row < 0) {
      return;
    }
    CGridCell cell;
    m_rooms.cells.GetDisplayed(at.col, at.row, &cell);
    if (CGridCellDelegate* const type = m_rooms.types.Of(cell)) {
      call(*type, at, &cell);
    }
  };
  if (!(before == after)) {
    tell(before, [](auto& type, const Cell& at, CGridCell* cell) { type.OnKillFocus(at.col, at.row, cell); });
    tell(after, [](auto& type, const Cell& at, CGridCell* cell) { type.OnSetFocus(at.col, at.row, cell); });
  }
  if (scrolled) {
    tell(after, [](auto& type, const Cell& at, CGridCell* cell) { type.OnScrolled(at.col, at.row, cell); });
  }
}

void CGridNavigator::TellCellChange(const Cell& before, const Cell& after) {
  if (before.col != after.col) {
    const CGridSourceTable::Place place = m_rooms.sources.Of(after.col);
    place.source->OnColChange(m_rooms.sources.Of(before.col).col, place.col);
    m_rooms.notify.OnColChange(before.col, after.col);
  }
  if (before.row != after.row) {
    m_rooms.sources.Of(after.col).source->OnRowChange(before.row, after.row);
    m_rooms.notify.OnRowChange(before.row, after.row);
  }
  if (!(before == after)) {
    m_rooms.notify.OnCellChange(before.col, after.col, before.row, after.row);
  }
}

void CGridNavigator::TellViewChange(const Cell& before, const Cell& after) {
  if (before.col != after.col) {
    m_rooms.notify.OnLeftColChange(before.col, after.col);
  }
  if (before.row != after.row) {
    m_rooms.notify.OnTopRowChange(before.row, after.row);
  }
}

}  // namespace coregui
