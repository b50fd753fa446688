#pragma once

#include "grid/control/CellPlace.h"
#include "platform/Types.h"

namespace coregui {

class CGridScreen;
class CGridSheets;

/// What a move of the current cell does to the selection. Nothing while only one cell can be selected.
class CGridMoveSelection {
 public:
  CGridMoveSelection(CGridSheets& sheets, CGridScreen& screen) : m_sheets(sheets), m_screen(screen) {}

  /// Before a move along one direction: the selection starts again at the current cell, unless Shift or Ctrl
  /// is held or the mouse selects.
  bool Restart();
  /// The move goes to `cell`; the current cell is still the one that is left. A press of the mouse, a drag
  /// and a key each have their own rule.
  void Follow(const CellPlace& cell);
  /// The cell that the move goes to is the drag cell already: Shift extends the selection to it, a press of
  /// the mouse takes the selection back to it.
  void FollowInPlace(const CellPlace& cell);

 private:
  bool IsHeld(UINT key, UINT flag) const;

  CGridSheets& m_sheets;
  CGridScreen& m_screen;
};

}  // namespace coregui
