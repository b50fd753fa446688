#pragma once

#include "grid/display/CGridScrollTip.h"
#include "platform/CScrollBar.h"

class CGridCtrl;

namespace coregui {

class CGridAxis;

/// What both scroll bars of a grid have in common: the thumb shows which rows or columns are in view, steps
/// move by lines and pages, and while the thumb is dragged a tip names where the view would start.
class COREGUI_API CGridScrollBar : public CScrollBar {
 public:
  /// Takes over count, page and position of the sheet.
  void ShowPosition();
  /// The bar has reported a scroll code (SB_…).
  void OnScroll(int code);
  const CGridScrollTip& GetTip() const { return m_tip; }

 protected:
  /// The control is borrowed: it owns this window.
  explicit CGridScrollBar(CGridCtrl* control) : m_control(control) {}

  virtual const CGridAxis& Axis() const = 0;
  /// Whether the view follows the thumb while it is dragged.
  virtual bool FollowsThumb() const = 0;
  virtual void ScrollTo(long first) = 0;
  virtual void Move(int code) = 0;
  /// The tip's text; false shows none.
  virtual bool TipText(long first, CString& text) const = 0;
  /// Where the tip's corner stands for a thumb at `position` (0 to 1 of the way), in the grid's client area.
  virtual CPoint TipAnchor(double position) const = 0;

  CGridCtrl* m_control;

 private:
  void Track(long first);

  CGridScrollTip m_tip;
};

}  // namespace coregui
