#pragma once

#include <memory>

#include "grid/control/CGridDrawHint.h"
#include "grid/display/CGridKeys.h"
#include "grid/display/CGridMouse.h"
#include "grid/display/CGridPainter.h"
#include "grid/display/CGridScroller.h"
#include "grid/display/CGridTips.h"
#include "platform/CWnd.h"

class CBitmap;
class CDC;
class CGridCtrl;

/// The window that shows the cells of a grid. It owns no data: cells come from the control, are drawn by
/// their types, and every event goes to the type and to the control. Its work is split among rooms: what must
/// be painted and how (painter), what can be kept when the view moves (scroller), mouse, keys and tips.
class COREGUI_API CGrid : public CWnd {
 public:
  /// The control is borrowed: it owns this window.
  explicit CGrid(CGridCtrl* control);
  ~CGrid() override;

  /// Repaints after any change of position, current cell or data: what is hinted, what a scroll uncovers, and
  /// the previous and the new current cell. Nothing while painting is disabled or a paint pass runs.
  void Moved();
  /// Hint cells and call Moved. Inside a paint pass they only hint.
  void RedrawCell(int col, long row);
  void RedrawRow(long row);
  void RedrawCol(int col);
  void RedrawRange(int startCol, long startRow, int endCol, long endRow);
  /// Paints what is hinted at once; `rect` is invalidated without being erased.
  void PaintDrawHintsNow(const RECT* rect);
  /// 1: cells are drawn on an off-screen bitmap first; 0: on the screen. 0 when done; 1 when the bitmap could
  /// not be made, and then the mode is 0.
  int SetDoubleBufferMode(int mode);
  int GetDoubleBufferMode() const { return m_bufferMode; }
  /// Leaves the focus rectangle out of the next paint pass.
  void TempDisableFocusRect() { m_painter.Frame().DisableOnce(); }
  CGridDrawHint& GetDrawHints() { return m_painter.Hints(); }

  /// The control's own scroll bar windows.
  CScrollBar* GetScrollBarCtrl(int bar) const override;
  /// Forwards scroll messages to the control.
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  /// The paint pass. `memDC` is null without double buffering.
  void DrawCellsIntern(CDC* screenDC, CDC* memDC);

 private:
  void HandlePaint();
  BOOL HandleErase(CDC* dc);
  LRESULT HandlePrintClient(WPARAM wParam, LPARAM lParam);
  void HandleSize(UINT type, int width, int height);
  void HandleSystemChange();
  void HandleLButtonDown(UINT flags, CPoint point);
  void HandleLButtonUp(UINT flags, CPoint point);
  void HandleLButtonDblClk(UINT flags, CPoint point);
  void HandleRButtonDown(UINT flags, CPoint point);
  void HandleRButtonUp(UINT flags, CPoint point);
  void HandleMouseMove(UINT flags, CPoint point);
  BOOL HandleMouseWheel(UINT flags, short delta, CPoint screen);
  BOOL HandleMouseHWheel(UINT flags, short delta, CPoint screen);
  void HandleMouseLeave();
  LRESULT HandleHelpHitTest(WPARAM wParam, LPARAM lParam);
  BOOL HandleSetCursor(CWnd* window, UINT hitTest, UINT message);
  LRESULT HandleMouseActivate(WPARAM wParam, LPARAM lParam);
  void HandleKeyDown(UINT key, UINT repeat, UINT flags);
  void HandleKeyUp(UINT key, UINT repeat, UINT flags);
  void HandleChar(UINT key, UINT repeat, UINT flags);
  UINT HandleGetDlgCode();
  void HandleSetFocus(CWnd* other);
  void HandleKillFocus(CWnd* other);
  void HandleTimer(UINT id);

  void HintUpdateRect(const CRect& update);
  void PaintPass(CDC& screen);
  void FinishPass();
  bool NeedsFullRepaint() const;
  bool IsCovered() const;

  CGridCtrl* m_control;
  coregui::CGridPainter m_painter;
  coregui::CGridScroller m_scroller;
  coregui::CGridMouse m_mouse;
  coregui::CGridKeys m_keys;
  coregui::CGridTips m_tips;
  std::unique_ptr<CBitmap> m_buffer;  ///< null while double buffering is off
  int m_bufferMode = 0;
  bool m_bufferStale = false;  ///< the window's size or scale changed inside a paint pass
};
