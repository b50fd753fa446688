#pragma once

#include <vector>

#include "core/Export.h"
#include "grid/display/LineWalk.h"
#include "platform/Geometry.h"

class CDC;
class CGridCtrl;
class CWnd;

namespace coregui {

class CGridCellPainter;

/// The focus rectangle of the body: when it shows, where a paint pass finds its place, and what of it is
/// drawn. It inverts what is below: where it stands already and no cell was drawn over it, it would go.
class COREGUI_API CGridFocusFrame {
 public:
  /// Both are borrowed; `owner` is the window whose end ends a pass.
  CGridFocusFrame(CGridCtrl& control, CWnd& owner) : m_control(control), m_owner(owner) {}

  /// It shows while the body has the focus or the find dialog is open.
  void SetFocus(bool has) { m_hasFocus = has; }
  bool HasFocus() const { return m_hasFocus; }
  /// Leaves it out of the next pass.
  void DisableOnce() { m_off = true; }
  /// Whether the screen shows one that the next pass will not draw.
  bool HasToGo() const { return !m_shown.IsRectEmpty() && !Shows(); }

  // --- In a pass

  void BeginPass();
  /// A cell was drawn there.
  void NoteDrawn(const CRect& pane);
  /// Takes its place where the row, which the pass drew from `top` on, is the current one.
  void EnterRow(long row, int top, int height, const LineWalk& columns, const CGridCellPainter& cells);
  /// Draws it; `anew`: below it lies a picture without it. `col` and `row` are the current cell. False when
  /// the grid is gone.
  bool Draw(CDC& dc, bool anew, int col, long row, const LineWalk& columns);
  /// What is on the screen; empty without one. To be given back after a pass on something else.
  CRect Exchange(const CRect& shown);

 private:
  bool Shows() const;
  int RowEnd(const LineWalk& columns) const;
  void ExcludeWhatStayed(CDC& dc, const LineWalk& columns) const;

  CGridCtrl& m_control;
  CWnd& m_owner;
  CRect m_shown;               ///< on the screen; empty without one
  CRect m_place;               ///< in the pass; empty without one
  CRect m_pane;                ///< where it may be drawn when its cell is a joined block; empty else
  std::vector<CRect> m_drawn;  ///< the cells at the height of m_shown that the pass drew
  bool m_hasFocus = false;
  bool m_off = false;
};

}  // namespace coregui
