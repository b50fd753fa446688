#pragma once

#include <utility>

#include "core/Export.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/display/CGridCellPainter.h"
#include "grid/display/CGridSizer.h"
#include "grid/display/LineWalk.h"
#include "platform/Geometry.h"

class CDC;
class CGridCtrl;
class CWnd;

namespace coregui {

/// The paint pass of a heading: the heading cells of the columns (or rows) in view, in the order of the body,
/// hinted ones only, joined ones once; then the blank area behind the last one.
class COREGUI_API CGridHeadingPainter {
 public:
  /// `owner` is the window whose end ends a pass. Both are borrowed.
  CGridHeadingPainter(CGridCtrl& control, CWnd& owner, HeadingKind kind)
      : m_control(control), m_owner(owner), m_top(kind == HeadingKind::top), m_cells(control, m_hints) {}

  CGridDrawHint& Hints() { return m_hints; }
  void HintAll();
  bool IsPainting() const { return m_painting; }
  void Paint(CDC& dc, const CRect& client);
  /// Whether the last pass drew other columns (or rows) than those in view now.
  bool IsViewStale() const;
  /// The line to mark as being moved, -1 for none.
  void MarkLine(long line) { m_marked = line; }
  /// The line before which the marked one would come to stand, -1 for none. True when it is another now.
  bool MarkDrop(long line) { return std::exchange(m_drop, line) != line; }

 private:
  bool Run(CDC& dc, const CRect& client);
  void DrawDrop(CDC& dc, const CRect& client) const;
  bool DrawCell(CDC& dc, CGridCellPainter::Cell cell);
  CGridCellPainter::Cell CellOf(const ShownLine& line, int headingLine) const;
  int HeadingLines() const;

  CGridCtrl& m_control;
  CWnd& m_owner;
  bool m_top;
  CGridDrawHint m_hints;
  CGridCellPainter m_cells;
  LineWalk m_lines;
  bool m_painting = false;
  long m_shownFirst = -1;
  long m_marked = -1;
  long m_drop = -1;
};

}  // namespace coregui
