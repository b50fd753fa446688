#pragma once

#include "grid/display/CGridScrollBar.h"

/// The horizontal scroll bar of a grid. Its tip is the heading of the first column in view, or its number
/// counted from 1, or what the control's OnHScrollHint makes of it.
class COREGUI_API CGridHScroll : public coregui::CGridScrollBar {
 public:
  explicit CGridHScroll(CGridCtrl* control) : CGridScrollBar(control, Direction::horizontal) {}
};
