#pragma once

#include "grid/display/TabStrip.h"
#include "platform/CWnd.h"

class CDC;
class CGridCtrl;

/// The tabs of a grid's sheets. A click on a tab makes its sheet current, gives the cells the focus and tells
/// the control (OnTabSelected). A click on the current tab gives the tabs the focus: then Left, Right, Home
/// and End choose the sheet, and Up or Down go back to the cells. Where not all tabs fit, the wheel and two
/// arrows scroll them.
class COREGUI_API CGridTab : public CWnd {
 public:
  /// The control is borrowed: it owns this window.
  explicit CGridTab(CGridCtrl* control) : m_control(control) {}
  /// The sheets, their names or the current one have changed: its tab comes into view.
  void ShowSheets();
  /// Where the tabs stand now.
  const coregui::TabStrip& GetStrip();
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();
  void HandleSize(UINT type, int width, int height);
  void HandleLButtonDown(UINT flags, CPoint point);
  BOOL HandleMouseWheel(UINT flags, short delta, CPoint screen);
  void HandleKeyDown(UINT key, UINT repeat, UINT flags);
  UINT HandleGetDlgCode();
  void HandleFocusChange(CWnd* other);
  void DrawTab(CDC& dc, int sheet) const;
  void DrawArrow(CDC& dc, int step) const;
  void Measure(CDC& dc);
  void Scroll(int tabs);
  void Select(int sheet);

  CGridCtrl* m_control;
  coregui::TabStrip m_strip;
};
