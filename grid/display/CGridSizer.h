#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"

class CGridCtrl;
class CGridInfo;
class CWnd;

namespace coregui {

class CGridAxis;
class WindowRef;

/// Which of the two headings a room serves.
enum class HeadingKind { top, side };

/// Sizes rows, columns and heading rows and columns by dragging their edges in a heading: finds the edge
/// under the pointer, asks leave, follows the drag and tells everyone. In the top heading the lines are
/// columns, in the side heading rows; the heading lines are heading rows and heading columns.
class COREGUI_API CGridSizer {
 public:
  /// Both are borrowed; `window` is the heading.
  CGridSizer(CGridCtrl& control, CWnd& window, HeadingKind kind)
      : m_control(control), m_window(window), m_top(kind == HeadingKind::top) {}

  /// The pointer moves with no button down: whether it is over an edge that may be dragged.
  bool Track(CPoint point);
  bool IsHot() const { return m_what != What::nothing; }
  bool IsSizing() const { return m_sizing; }
  /// Whether the hot edge sizes widths; else it sizes heights.
  bool SizesWidths() const { return m_top == (m_what == What::line); }
  /// The button went down while an edge was hot.
  void Begin() { m_sizing = IsHot(); }
  void Drag(CPoint point);
  void End();
  /// Double click on a hot edge: a column is fitted to its contents, of a very long one to the rows from
  /// those in view on. False where that does nothing.
  bool FitToContents();

 private:
  enum class What { nothing, line, headingLine };

  bool TrackLine(int position);
  bool TrackHeadingLine(int position);
  void DragLine(int position);
  void DragHeadingLine(int position);
  void EndLine();
  void TellChanged(int* size);
  void DrawOutline(int position);
  void ShowAtOnce(const WindowRef& alive);
  void SetLineSize(int size);
  int LineSize() const;
  std::vector<long> LinesAcross() const;
  const CGridAxis& Axis() const;
  const CGridAxis& AcrossAxis() const;

  CGridCtrl& m_control;
  CWnd& m_window;
  bool m_top;
  What m_what = What::nothing;
  bool m_sizing = false;
  long m_index = 0;  ///< the column or row; for heading lines counted from 0 at the cells
  int m_sizeAtStart = 0;
  int m_totalAtStart = 0;  ///< of the heading
  int m_start = 0;         ///< where the pointer was
  int m_outline = -1;      ///< where the outline is drawn in the body, -1 when it is not
};

}  // namespace coregui
