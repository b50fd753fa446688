#pragma once

#include "grid/control/CGridDrawHint.h"
#include "grid/display/CGridCellPainter.h"
#include "platform/CWnd.h"

class CGridCtrl;

/// The corner where the two headings meet: draws its heading cells, reports clicks, and sizes the headings by
/// dragging its right and its bottom edge.
class COREGUI_API CGridCnrBtn : public CWnd {
 public:
  /// The control is borrowed: it owns this window.
  explicit CGridCnrBtn(CGridCtrl* control);
  ~CGridCnrBtn() override;
  const coregui::MessageTable& GetMessageTable() const override;
  /// What is drawn as one in the corner; ranges to be drawn anew are not gathered.
  const CGridDrawHint& GetDrawHints() const { return m_hints; }

 private:
  /// The edge that is hot or dragged: the right one sizes the side heading, the bottom one the top heading.
  enum class Edge { none, right, bottom };

  void HandlePaint();
  BOOL HandleErase(CDC* dc);
  LRESULT HandlePrintClient(WPARAM wParam, LPARAM lParam);
  void HandleSystemChange();
  void HandleLButtonDown(UINT flags, CPoint point);
  void HandleLButtonUp(UINT flags, CPoint point);
  void HandleLButtonDblClk(UINT flags, CPoint point);
  void HandleRButtonDown(UINT flags, CPoint point);
  void HandleRButtonUp(UINT flags, CPoint point);
  void HandleMouseMove(UINT flags, CPoint point);
  LRESULT HandleCaptureChanged(WPARAM wParam, LPARAM lParam);
  LRESULT HandleHelpHitTest(WPARAM wParam, LPARAM lParam);
  BOOL HandleSetCursor(CWnd* window, UINT hitTest, UINT message);

  void Draw(CDC& dc);
  Edge FindEdge(CPoint point);
  void DragTo(CPoint point);
  void EndDrag();
  void ShowCursor() const;

  CGridCtrl* m_control;
  CGridDrawHint m_hints;
  coregui::CGridCellPainter m_cells;
  Edge m_edge = Edge::none;
  bool m_sizing = false;
  bool m_leftDown = false;
  bool m_rightDown = false;
};
