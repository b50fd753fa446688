#include "grid/display/CGridScrollBar.h"

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/ScrollPlan.h"
#include "platform/WindowRef.h"

namespace coregui {

void CGridScrollBar::ShowPosition() {
  if (!HasWindow()) {
    return;
  }
  SetScrollInfo(PlanScroll(Axis()));
  EnableWindow(Axis().MaxFirst() > Axis().Locked() ? TRUE : FALSE);
}

void CGridScrollBar::OnScroll(int code) {
  const WindowRef alive(this);
  SCROLLINFO info;
  GetScrollInfo(&info);
  if (code == SB_THUMBTRACK) {
    Track(info.nTrackPos);
  } else if (code == SB_THUMBPOSITION) {
    ScrollTo(info.nTrackPos);
  } else if (const int move = MoveCodeOf(code); move >= 0) {
    Move(move);
  }
  if (alive && code != SB_THUMBTRACK) {
    m_tip.Hide();
    ShowPosition();  // a refused move puts the thumb back
  }
}

void CGridScrollBar::Track(long first) {
  const WindowRef alive(this);
  CString text;
  if (m_control->GetInfo().view.trackingWindowMode == 0 && TipText(first, text) && alive) {
    const CGridAxis& axis = Axis();
    const auto range = static_cast<double>(std::max(axis.MaxFirst() - axis.Locked(), 1L));
    const double position = std::clamp(static_cast<double>(first - axis.Locked()) / range, 0.0, 1.0);
    m_tip.ShowAt(*m_control, text, TipAnchor(position), m_control->GetDefFont());
  }
  if (alive && FollowsThumb()) {
    ScrollTo(first);
  }
}

}  // namespace coregui
