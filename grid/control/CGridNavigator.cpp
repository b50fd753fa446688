#include "grid/control/CGridNavigator.h"

#include <algorithm>

#include "grid/control/AxisMoves.h"
#include "grid/control/CGridJoins.h"
#include "grid/control/CGridMoveReport.h"
#include "grid/control/CGridMoveSelection.h"
#include "grid/control/CGridNotify.h"
#include "grid/control/CGridScreen.h"
#include "grid/control/CGridSheets.h"
#include "grid/control/CGridVetoes.h"

namespace coregui {

namespace {

constexpr int moveMade = 0;
constexpr int noSuchPlace = 1;
constexpr int vetoed = 2;

bool IsShown(const CGridAxis& axis, long index) {
  return index >= axis.First() && index < axis.last;
}

}  // namespace

CGridAxis& CGridNavigator::Axis(Along along) const {
  CGridInfo& info = m_rooms.sheets.Current();
  return along == Along::cols ? static_cast<CGridAxis&>(info.columns) : info.rows;
}
CellPlace CGridNavigator::Current() const {
  return {static_cast<int>(Cols().current), Rows().current};
}
CellPlace CGridNavigator::Drag() const {
  return {static_cast<int>(Cols().drag), Rows().drag};
}
CellPlace CGridNavigator::View() const {
  return {static_cast<int>(Cols().First()), Rows().First()};
}

bool CGridNavigator::MayShow(const CellPlace& view) {
  const CellPlace now = View();
  return m_rooms.vetoes.CanViewMove(now.col, now.row, view.col, view.row);
}

void CGridNavigator::TakeDrag(Along along, long target) {
  CGridAxis& axis = Axis(along);
  axis.drag = std::min(target, axis.Count() - 1);  // those who were asked may have taken rows away
  axis.KeepDragInView();
}

// --- The current cell

int CGridNavigator::GotoCell(int col, long row) {
  if (Drag() == CellPlace{col, row}) {
    m_rooms.selection.FollowInPlace(Drag());
    return moveMade;
  }
  CGridJoins::Block block{};
  m_rooms.joins.Find(col, row, block);
  if (Cols().Count() <= 0 || Rows().Count() <= 0) {
    return noSuchPlace;
  }
  const CellPlace target{static_cast<int>(std::clamp<long>(block.startCol, 0, Cols().Count() - 1)),
                         std::clamp(block.startRow, 0L, Rows().Count() - 1)};
  const CellPlace current = Current();
  if (!m_rooms.vetoes.CanMove(current.col, current.row, target.col, target.row)) {
    return vetoed;
  }
  const bool shown = IsShown(Cols(), target.col) && IsShown(Rows(), target.row);
  if (!shown && !MayShow(target)) {
    return vetoed;
  }
  TakeDrag(Along::cols, target.col);
  TakeDrag(Along::rows, target.row);
  m_rooms.selection.Follow(Drag());
  Moved();
  return moveMade;
}

int CGridNavigator::GotoCol(int col) {
  const CellPlace before = Drag();
  const bool restarted = m_rooms.selection.Restart();
  const int result = GoOnToCol(col);
  return ShowRestart(restarted && Drag() == before, result);
}

int CGridNavigator::GotoRow(long row) {
  const CellPlace before = Drag();
  const bool restarted = m_rooms.selection.Restart();
  const int result = GoOnToRow(row);
  return ShowRestart(restarted && Drag() == before, result);
}

/// A selection that starts again is shown with the move; where nothing moves, by itself.
int CGridNavigator::ShowRestart(bool alone, int result) {
  if (alone) {
    m_rooms.screen.ShowMoved();
  }
  return result;
}

int CGridNavigator::GoOnToCol(int col) {
  if (col == Cols().drag) {
    return moveMade;
  }
  if (VerifyCurrentCol(&col) != 0) {
    return noSuchPlace;
  }
  const CellPlace drag = Drag();
  if (col == drag.col) {
    return moveMade;
  }
  if (!m_rooms.vetoes.CanMove(drag.col, drag.row, col, drag.row)) {
    return vetoed;
  }
  return FinishMove(Along::cols, col);
}

int CGridNavigator::GoOnToRow(long row) {
  if (row == Rows().drag) {
    return moveMade;
  }
  // The control's own: it may add the rows that are wanted.
  if (m_rooms.notify.VerifyCurrentRow(&row) != 0) {
    return noSuchPlace;
  }
  const CellPlace drag = Drag();
  if (row == drag.row) {
    return moveMade;
  }
  // Kept: rows ask the control alone, columns their source too.
  if (!m_rooms.vetoes.CanMoveRow(drag.col, drag.row, drag.col, row)) {
    return vetoed;
  }
  return FinishMove(Along::rows, row);
}

int CGridNavigator::FinishMove(Along along, long target) {
  if (!IsShown(Axis(along), target)) {
    CellPlace view = View();
    if (along == Along::cols) {
      view.col = static_cast<int>(target);
    } else {
      view.row = target;
    }
    if (!MayShow(view)) {
      return vetoed;
    }
  }
  TakeDrag(along, target);
  m_rooms.selection.Follow(Drag());
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

int CGridNavigator::VerifyCurrentCol(int* col) const {
  long target = *col;
  const bool found = BringIntoAxis(Cols(), target);
  *col = static_cast<int>(target);
  return found ? 0 : noSuchPlace;
}
int CGridNavigator::VerifyCurrentRow(long* row) const {
  return BringIntoAxis(Rows(), *row) ? 0 : noSuchPlace;
}

void CGridNavigator::ResetDragCell() {
  Cols().drag = Cols().current;
  Rows().drag = Rows().current;
}

// --- The view

int CGridNavigator::ScrollTo(Along along, long first) {
  const CellPlace before = View();
  CellPlace view = before;
  const long clamped = Axis(along).ClampFirst(first);
  if (along == Along::cols) {
    view.col = static_cast<int>(clamped);
  } else {
    view.row = clamped;
  }
  if (!MayShow(view)) {
    return vetoed;
  }
  Axis(along).SetFirst(Axis(along).ClampFirst(clamped));  // who was asked may have taken rows away
  if (View() != before) {
    Moved();
  }
  return moveMade;
}

int CGridNavigator::SetTopRow(long row) {
  return ScrollTo(Along::rows, row);
}
int CGridNavigator::SetLeftCol(long col) {
  return ScrollTo(Along::cols, col);
}
int CGridNavigator::AdjustTopRow(long delta) {
  return delta == 0 ? moveMade : SetTopRow(Rows().First() + delta);
}
int CGridNavigator::AdjustLeftCol(long delta) {
  return delta == 0 ? moveMade : SetLeftCol(Cols().First() + delta);
}

int CGridNavigator::MoveView(Along along, int code) {
  long target = 0;
  const bool moves = ViewTarget(Axis(along), code, target) && target != Axis(along).First();
  return moves ? ScrollTo(along, target) : moveMade;
}
int CGridNavigator::MoveTopRow(int code) {
  return MoveView(Along::rows, code);
}
int CGridNavigator::MoveLeftCol(int code) {
  return MoveView(Along::cols, code);
}

int CGridNavigator::VerifyTopRow(long* row) const {
  *row = Rows().ClampFirst(*row);
  return 0;
}
int CGridNavigator::VerifyLeftCol(int* col) const {
  *col = static_cast<int>(Cols().ClampFirst(*col));
  return 0;
}

// --- What follows a move or a change

void CGridNavigator::Moved() {
  CGridAxis& cols = Cols();
  CGridAxis& rows = Rows();
  const CGridMoveReport::Change cell{Current(), Drag()};
  const CGridMoveReport::Change view{{static_cast<int>(cols.reportedFirst), rows.reportedFirst}, View()};
  cols.lastCurrent = cell.from.col;
  rows.lastCurrent = cell.from.row;
  cols.current = cell.to.col;
  rows.current = cell.to.row;
  cols.reportedFirst = view.to.col;
  rows.reportedFirst = view.to.row;
  m_rooms.report.Tell(cell, view);
  m_rooms.screen.ShowScrollBars();
  m_rooms.screen.ShowMoved();
}

/// True when the first one in view has changed.
bool CGridNavigator::BringIntoRange(Along along) {
  CGridAxis& axis = Axis(along);
  const long first = axis.First();
  axis.SetFirst(axis.ClampFirst(first));
  const long last = axis.Count() - 1;
  if (axis.current > last) {
    axis.current = axis.lastCurrent = axis.drag = last;
  }
  axis.drag = std::min(axis.drag, last);
  return axis.First() != first;
}

void CGridNavigator::RowsChanged() {
  if (BringIntoRange(Along::rows)) {
    Moved();
  }
  m_rooms.screen.ShowScrollBars();
}
void CGridNavigator::ColsChanged() {
  if (BringIntoRange(Along::cols)) {
    Moved();
  }
  m_rooms.screen.ShowScrollBars();
}
void CGridNavigator::ViewSized() {
  const bool cols = BringIntoRange(Along::cols);
  const bool rows = BringIntoRange(Along::rows);
  if (cols || rows) {
    Moved();
  }
}

}  // namespace coregui
