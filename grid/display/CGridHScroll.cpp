#include "grid/display/CGridHScroll.h"

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"

const coregui::CGridAxis& CGridHScroll::Axis() const {
  return m_control->GetInfo().columns;
}
bool CGridHScroll::FollowsThumb() const {
  return m_control->GetInfo().view.hScrollMode != 0;
}
void CGridHScroll::ScrollTo(long first) {
  m_control->SetLeftCol(static_cast<int>(first));
}
void CGridHScroll::Move(int code) {
  m_control->MoveLeftCol(code);
}

bool CGridHScroll::TipText(long first, CString& text) const {
  const auto col = static_cast<int>(first);
  m_control->QuickGetText(col, -1, &text);
  if (text.IsEmpty()) {
    text = CString::Formatted(L"%d", col + 1);
  }
  return m_control->OnHScrollHint(col, &text) == 1;
}

CPoint CGridHScroll::TipAnchor(double position) const {
  CRect bar;
  GetWindowRect(&bar);
  m_control->ScreenToClient(&bar);
  return {bar.left + static_cast<LONG>(position * bar.Width()), bar.top};
}
