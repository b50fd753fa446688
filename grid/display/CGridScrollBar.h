#pragma once

#include "grid/display/CGridScrollTip.h"
#include "platform/CScrollBar.h"

class CGridCtrl;

namespace coregui {

class CGridAxis;

/// A scroll bar of a grid: the thumb shows which rows or columns are in view, steps move by lines and pages,
/// and while the thumb is dragged a tip names where the view would start.
class COREGUI_API CGridScrollBar : public CScrollBar {
 public:
  /// Takes over count, page and position of the sheet.
  void ShowPosition();
  /// The bar has reported a scroll code (SB_…).
  void OnScroll(int code);
  const CGridScrollTip& GetTip() const { return m_tip; }

 protected:
  enum class Direction { horizontal, vertical };
  /// The control is borrowed: it owns this window.
  CGridScrollBar(CGridCtrl* control, Direction direction)
      : m_control(control), m_vertical(direction == Direction::vertical) {}

 private:
  const CGridAxis& Axis() const;
  void Track(long first);
  void ScrollTo(long first);
  void Move(int code);
  /// Whether the view follows the thumb while it is dragged.
  bool FollowsThumb() const;
  /// The tip's text; false shows none.
  bool TipText(long first, CString& text) const;
  /// Where the tip's corner stands for a view from `first` on, in the grid's client area.
  CPoint TipAnchor(long first) const;

  CGridCtrl* m_control;
  bool m_vertical;
  CGridScrollTip m_tip;
};

}  // namespace coregui
