#pragma once

#include "grid/display/CGridHeading.h"

/// The column headings above the cells. With column swapping on, a column is moved by dragging its heading to
/// the edge it shall stand before.
class COREGUI_API CGridTopHdg : public coregui::CGridHeading {
 public:
  explicit CGridTopHdg(CGridCtrl* control) : CGridHeading(control, coregui::HeadingKind::top) {}

 protected:
  void NotifyLClicked(Click& click, int updn) override;
  void NotifyRClicked(Click& click, int updn) override;
  void NotifyDClicked(Click& click) override;
  void PressedOn(const Click& click, CPoint point) override;
  void DraggedTo(CPoint point) override;
  void ReleasedAt(CPoint point) override;
  void PressLost() override;
  void TimerElapsed(UINT id) override;

 private:
  bool IsDrag(CPoint point) const;
  int DropColumnAt(int x) const;
  void Swap(int source, int drop);

  int m_source = -1;  ///< the column being moved
  bool m_dragged = false;
  CPoint m_pressed;
  int m_scrollCode = -1;  ///< towards the pointer while it is beside the grid, -1 otherwise
};
