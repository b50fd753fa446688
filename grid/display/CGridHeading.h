#pragma once

#include "grid/display/CGridHeadingPainter.h"
#include "grid/display/CGridSizer.h"
#include "grid/display/CGridTips.h"
#include "platform/CWnd.h"

class CDC;
class CGridCtrl;

namespace coregui {

/// What the top and the side heading have in common: painting through hints, sizing by dragging edges,
/// clicks.
class COREGUI_API CGridHeading : public CWnd {
 public:
  ~CGridHeading() override;

  /// Repaints what is hinted, and everything where the view has moved along the heading.
  void Moved();
  /// Hint heading cells and call Moved.
  void RedrawCell(int col, long row) { RedrawRange(col, row, col, row); }
  void RedrawRange(int startCol, long startRow, int endCol, long endRow);
  CGridDrawHint& GetDrawHints() { return m_painter.Hints(); }
  const MessageTable& GetMessageTable() const override;

 protected:
  /// The control is borrowed: it owns this window.
  CGridHeading(CGridCtrl* control, HeadingKind kind);

  /// A click in a heading cell, as the control is told of it; col and row are -1 where no cell is.
  struct Click {
    int col = -1;
    long row = -1;
    RECT rect;
    POINT point;
    int processed = 0;
  };
  virtual void NotifyLClicked(Click& click, int updn) = 0;
  virtual void NotifyRClicked(Click& click, int updn) = 0;
  virtual void NotifyDClicked(Click& click) = 0;
  /// Hooks around a press and its movement and release, for column swapping.
  virtual void PressedOn(const Click& click, CPoint point);
  virtual void DraggedTo(CPoint point);
  virtual void ReleasedAt(CPoint point);
  /// Somebody else, a dialog that opens, has taken the mouse: there will be no release.
  virtual void PressLost();
  virtual void TimerElapsed(UINT id);

  CGridCtrl* m_control;
  CGridHeadingPainter m_painter;

 private:
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
  void HandleMouseLeave();
  LRESULT HandleCaptureChanged(WPARAM wParam, LPARAM lParam);
  LRESULT HandleHelpHitTest(WPARAM wParam, LPARAM lParam);
  BOOL HandleSetCursor(CWnd* window, UINT hitTest, UINT message);
  void HandleTimer(UINT id);
  bool HitTest(CPoint point, Click& click) const;
  void ShowCursor() const;

  int m_section;
  CGridSizer m_sizer;
  CGridTips m_tips;
  bool m_leftDown = false;
  bool m_rightDown = false;
};

}  // namespace coregui
