#pragma once

#include "core/Export.h"
#include "grid/data/CGridCell.h"
#include "platform/Geometry.h"

class CDC;
class CGridCtrl;
class CGridDrawHint;

namespace coregui {

class CGridCellDelegate;

/// Fetches the cells that a paint pass of the body or of a heading comes to and has their types draw them.
class COREGUI_API CGridCellPainter {
 public:
  /// Both are borrowed: the grid, and the hints of the window that is painted.
  CGridCellPainter(CGridCtrl& control, CGridDrawHint& hints) : m_control(control), m_hints(hints) {}

  /// A cell on the way to being drawn. Where it belongs to a joined block, it becomes the block's first cell
  /// with the rectangle of the whole block.
  struct Cell {
    int col = 0;
    long row = 0;
    CRect rect;
    bool joined = false;
  };

  enum class Fetched {
    draw,   ///< to be drawn
    drawn,  ///< belongs to a block that this pass has drawn
    gone,   ///< a handler destroyed the grid
  };
  /// Handlers run. `alive` answers whether the grid still exists.
  template <class Alive>
  Fetched Fetch(Cell& cell, const Alive& alive) {
    GetDisplayed(cell);
    if (!alive) return Fetched::gone;
    if (!IsJoined()) return Fetched::draw;
    if (!EnterBlock(cell)) return Fetched::drawn;
    if (alive) GetDisplayed(cell);
    return alive ? Fetched::draw : Fetched::gone;
  }
  /// Whether the cell fetched last is of the built-in normal type and shows a text of its own: no other
  /// cell's text can change its look.
  bool ShowsOwnText();
  /// Whether the text of the cell fetched last may spill into its right neighbour.
  bool MayOverlap();
  /// The part of the cell that may be drawn on: all of it, but a joined block that begins above or left of
  /// what is in view must not cover the locked cells.
  CRect PaneOf(const Cell& cell) const;
  /// The type of the cell fetched last draws it. Handlers run.
  void Draw(CDC& dc, const Cell& cell, int selected, int current);

 private:
  void GetDisplayed(const Cell& cell);
  bool IsJoined();
  bool EnterBlock(Cell& cell);
  CGridCellDelegate& TypeOfCell();

  CGridCtrl& m_control;
  CGridDrawHint& m_hints;
  CGridCell m_cell;  ///< scratch: the cell fetched last
};

}  // namespace coregui
