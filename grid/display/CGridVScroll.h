#pragma once

#include "grid/display/CGridScrollBar.h"

/// The vertical scroll bar of a grid. Its tip names the first row in view, counted from 1, or what the
/// control's OnVScrollHint makes of it.
class COREGUI_API CGridVScroll : public coregui::CGridScrollBar {
 public:
  explicit CGridVScroll(CGridCtrl* control) : CGridScrollBar(control, Direction::vertical) {}
};
