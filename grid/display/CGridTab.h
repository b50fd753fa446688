#pragma once

#include <vector>

#include "platform/CWnd.h"

class CDC;
class CGridCtrl;

/// The tabs of a grid's sheets. A click makes a sheet current and tells the control (OnTabSelected); so do
/// the Left and Right keys while the tabs have the focus.
class COREGUI_API CGridTab : public CWnd {
 public:
  /// The control is borrowed: it owns this window.
  explicit CGridTab(CGridCtrl* control) : m_control(control) {}
  /// The place of each sheet's tab in the client area, now.
  std::vector<CRect> GetTabs() const;
  const coregui::MessageTable& GetMessageTable() const override;

 private:
  void HandlePaint();
  void HandleLButtonDown(UINT flags, CPoint point);
  void HandleKeyDown(UINT key, UINT repeat, UINT flags);
  UINT HandleGetDlgCode();
  void HandleFocusChange(CWnd* other);
  void DrawTab(CDC& dc, const CRect& rect, int sheet) const;
  void Select(int sheet);
  std::vector<CRect> Measure(CDC& dc) const;

  CGridCtrl* m_control;
};
