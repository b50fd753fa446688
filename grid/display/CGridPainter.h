#pragma once

#include "core/Export.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CellPlace.h"
#include "grid/display/CGridCellPainter.h"
#include "grid/display/CGridFocusFrame.h"
#include "grid/display/CHintedRow.h"
#include "grid/display/LineWalk.h"
#include "platform/Geometry.h"

class CDC;
class CGridCtrl;
class CWnd;

namespace coregui {

class WindowRef;

/// What a pass draws on.
struct PaintSurface {
  CDC* screen = nullptr;
  CDC* memory = nullptr;  ///< of the off-screen bitmap; null without double buffering
  CRect client;           ///< the client area of the body
};

/// The paint pass of the body: walks the rows and columns in view, has the hinted cells drawn by their types,
/// fills what is blank and draws the focus rectangle. Every pass empties the hints.
///
/// Handlers run at many points of a pass. They may destroy the grid: the pass then ends at once. They may
/// change it: counts and sizes are asked for again at each row. They may ask for repaints: those do not start
/// a pass within the pass, see RequestDuringPass.
class COREGUI_API CGridPainter {
 public:
  /// `owner` is the window whose end ends a pass. Both are borrowed.
  CGridPainter(CGridCtrl& control, CWnd& owner);

  CGridDrawHint& Hints() { return m_hints; }
  bool IsPainting() const { return m_painting; }
  void Paint(const PaintSurface& surface);
  /// Draws the whole sheet on something else than the screen. What the screen shows, and what it waits for,
  /// stays as it is.
  void Print(CDC& paper, const CRect& client);
  /// A handler asks, inside a pass, for a range to be repainted. What the pass has still to come to is drawn
  /// by it; the range also stays hinted for the next pass, as it may lie behind.
  void RequestDuringPass(const CGridDrawHint::Range& range) { m_requested.push_back(range); }
  /// The ranges that the last pass left hinted for the next one; they are handed out once.
  std::vector<CGridDrawHint::Range> TakeRequested();

  CGridFocusFrame& Frame() { return m_frame; }
  /// Hints a cell, or its whole row where the current row stands for the current cell. Nothing without a
  /// cell.
  void HintCurrent(int col, long row);
  void HintAll();

  /// The current cell as the last pass drew it.
  int ShownCol() const { return m_shown.col; }
  long ShownRow() const { return m_shown.row; }
  /// Whether the last pass drew another part of the sheet than the one that is in view now.
  bool IsViewStale() const;

 private:
  struct Pass;
  bool Run(Pass& pass);
  bool Begin(Pass& pass);
  bool WalkRows(Pass& pass);
  bool GrowRows(Pass& pass, long next, long before);
  bool DrawRow(Pass& pass, long row, int height);
  bool DrawCells(Pass& pass, long row, int height);
  bool DrawCell(Pass& pass, CGridCellPainter::Cell cell);
  bool DrawNeighbour(Pass& pass, CGridCellPainter::Cell cell, bool* handsOn);
  bool DrawFetched(Pass& pass, const CGridCellPainter::Cell& cell);
  void DrawSeparators(CDC& dc, const CRect& rect, int col, long row) const;
  void RememberShown();
  bool FillBlank(Pass& pass);

  CGridCtrl& m_control;
  CWnd& m_owner;
  CGridDrawHint m_hints;
  CGridCellPainter m_cells;
  CHintedRow m_row;
  LineWalk m_columns;  ///< the columns in view, in the pass
  std::vector<CGridDrawHint::Range> m_requested;
  CGridFocusFrame m_frame;
  CellPlace m_shown;  ///< the current cell as the last pass on the screen drew it
  bool m_painting = false;
};

}  // namespace coregui
