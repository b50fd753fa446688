#pragma once

#include "platform/Types.h"

namespace coregui {

class CGridAxis;
class CGridCellDelegate;
class CGridCells;
class CGridJoins;
class CGridNotify;
class CGridScreen;
class CGridSheets;
class CGridSourceTable;
class CGridTypeTable;
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
    CGridSourceTable& sources;
    CGridCells& cells;
    CGridJoins& joins;
    CGridTypeTable& types;
    CGridVetoes& vetoes;
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
  int SetLeftCol(int col);
  /// Scrolls by an amount; 0 does nothing and asks nobody.
  int AdjustTopRow(long delta);
  int AdjustLeftCol(int delta);
  /// The codes of MoveCurrentCol for the view.
  int MoveTopRow(int code);
  int MoveLeftCol(int code);
  /// Bring a target into the sheet, off hidden rows and columns where others are shown; 1 when there is none.
  int VerifyCurrentCol(int* col) const;
  int VerifyCurrentRow(long* row) const;
  int VerifyTopRow(long* row) const;
  int VerifyLeftCol(int* col) const;
  void Moved();
  /// Relative moves start at the current cell again.
  void ResetDragCell();

 private:
  struct Cell {
    int col;
    long row;
    bool operator==(const Cell&) const = default;
  };
  CGridAxis& Cols() const;
  CGridAxis& Rows() const;
  Cell Current() const;
  Cell Drag() const;
  bool IsInView(const Cell& cell) const;
  int ClickDragCell();
  void ResetSelection();
  void Select(const Cell& cell);
  int FinishMove(CGridAxis& axis, long target, const Cell& view);
  void TellTypes(const Cell& before, const Cell& after, bool scrolled);
  void TellCellChange(const Cell& before, const Cell& after);
  void TellViewChange(const Cell& before, const Cell& after);

  Rooms m_rooms;
};

}  // namespace coregui
