#include "grid/display/CGridScrollBar.h"

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"
#include "grid/display/ScrollPlan.h"
#include "platform/WindowRef.h"

namespace coregui {

const CGridAxis& CGridScrollBar::Axis() const {
  const CGridInfo& info = m_control->GetInfo();
  return m_vertical ? static_cast<const CGridAxis&>(info.rows) : info.columns;
}

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
  }
}

void CGridScrollBar::Track(long first) {
  const WindowRef alive(this);
  CString text;
  if (m_control->GetInfo().view.trackingWindowMode == 0 && TipText(first, text) && alive) {
    m_tip.ShowAt(*m_control, text, TipAnchor(first), m_control->GetDefFont());
  }
  if (alive && FollowsThumb()) {
    ScrollTo(first);
  }
}

void CGridScrollBar::ScrollTo(long first) {
  if (m_vertical) {
    m_control->SetTopRow(first);
  } else {
    m_control->SetLeftCol(static_cast<int>(first));
  }
}

void CGridScrollBar::Move(int code) {
  if (m_vertical) {
    m_control->MoveTopRow(code);
  } else {
    m_control->MoveLeftCol(code);
  }
}

bool CGridScrollBar::FollowsThumb() const {
  const CGridViewState& view = m_control->GetInfo().view;
  return (m_vertical ? view.vScrollMode : view.hScrollMode) != 0;
}

bool CGridScrollBar::TipText(long first, CString& text) const {
  if (m_vertical) {
    text = CString::Formatted(L"%ld", first + 1);
    return m_control->OnVScrollHint(first, &text) == 1;
  }
  // Columns have names, rows rarely do.
  const auto col = static_cast<int>(first);
  m_control->QuickGetText(col, -1, &text);
  if (text.IsEmpty()) {
    text = CString::Formatted(L"%d", col + 1);
  }
  return m_control->OnHScrollHint(col, &text) == 1;
}

CPoint CGridScrollBar::TipAnchor(long first) const {
  const CGridAxis& axis = Axis();
  const auto range = static_cast<double>(std::max(axis.MaxFirst() - axis.Locked(), 1L));
  const double part = std::clamp(static_cast<double>(first - axis.Locked()) / range, 0.0, 1.0);
  CRect bar;
  GetWindowRect(&bar);
  m_control->ScreenToClient(&bar);
  return m_vertical ? CPoint(bar.left, bar.top + static_cast<LONG>(part * bar.Height()))
                    : CPoint(bar.left + static_cast<LONG>(part * bar.Width()), bar.top);
}

}  // namespace coregui
