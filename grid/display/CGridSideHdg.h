#pragma once

#include "grid/display/CGridHeading.h"

/// The row headings left of the cells.
class COREGUI_API CGridSideHdg : public coregui::CGridHeading {
 public:
  explicit CGridSideHdg(CGridCtrl* control) : CGridHeading(control, coregui::HeadingKind::side) {}

 protected:
  void NotifyLClicked(Click& click, int updn) override;
  void NotifyRClicked(Click& click, int updn) override;
  void NotifyDClicked(Click& click) override;
};
