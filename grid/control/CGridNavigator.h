#pragma once

#include "grid/control/CellPlace.h"

namespace coregui {

class CGridAxis;
class CGridJoins;
class CGridMoveReport;
class CGridMoveSelection;
class CGridNotify;
class CGridScreen;
class CGridSheets;
class CGridVetoes;

/// Moves the current cell and the view. A move first changes the drag cell; Moved() then brings the current
/// cell, the application, the scroll bars and the screen up to date. Results: 0 made or nothing to do, 1 no
/// such place, 2 vetoed.
///
/// Rows and columns follow the same rules but for one: GotoCol asks the column's source and the control,
/// GotoRow the control alone. GotoCell passes the current cell as the old cell, GotoCol and GotoRow the drag
/// cell.
class CGridNavigator {
 public:
  struct Rooms {
    CGridSheets& sheets;
    CGridJoins& joins;
    CGridVetoes& vetoes;
    CGridMoveSelection& selection;
    CGridMoveReport& report;
    CGridNotify& notify;
    CGridScreen& screen;
  };

  explicit CGridNavigator(const Rooms& rooms) : m_rooms(rooms) {}

  int GotoCell(int col, long row);
  int GotoCol(int col);
  int GotoRow(long row);
  /// Codes: 0 back, 1 forward, 2 page back, 3 page forward, 4 first, 5 last; others do nothing.
  int MoveCurrentCol(int code);
  int MoveCurrentRow(int code);
  /// Scrolls to a first row (column), brought into the scrollable range.
  int SetTopRow(long row);
  int SetLeftCol(long col);
  /// Scrolls by an amount; 0 does nothing and asks nobody.
  int AdjustTopRow(long delta);
  int AdjustLeftCol(long delta);
  /// The codes of MoveCurrentCol for the view.
  int MoveTopRow(int code);
  int MoveLeftCol(int code);
  /// Bring a target into the sheet, off hidden rows and columns where others are shown; 1 when there is none.
  int VerifyCurrentCol(int* col) const;
  int VerifyCurrentRow(long* row) const;
  int VerifyTopRow(long* row) const;
  int VerifyLeftCol(int* col) const;
  void Moved();
  /// The number or the sizes of the rows (columns), or the view's room, have changed: brings the first one in
  /// view, the current and the drag one into range, and the scroll bars up to date. A current one that is
  /// gone becomes the last one without anybody being asked.
  void RowsChanged();
  void ColsChanged();
  void ViewSized();
  /// Relative moves start at the current cell again.
  void ResetDragCell();

 private:
  /// Instead of an axis itself, which a notification may replace by switching to another sheet.
  enum class Along { cols, rows };
  CGridAxis& Axis(Along along) const;
  CGridAxis& Cols() const { return Axis(Along::cols); }
  CGridAxis& Rows() const { return Axis(Along::rows); }
  CellPlace Current() const;
  CellPlace Drag() const;
  CellPlace View() const;
  int GoOnToCol(int col);
  int GoOnToRow(long row);
  int ShowRestart(bool alone, int result);
  bool MayShow(const CellPlace& view);
  void TakeDrag(Along along, long target);
  int FinishMove(Along along, long target);
  int ScrollTo(Along along, long first);
  int MoveView(Along along, int code);
  bool BringIntoRange(Along along);

  Rooms m_rooms;
};

}  // namespace coregui
