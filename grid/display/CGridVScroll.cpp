#include "grid/display/CGridVScroll.h"

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"

const coregui::CGridAxis& CGridVScroll::Axis() const {
  return m_control->GetInfo().rows;
}
bool CGridVScroll::FollowsThumb() const {
  return m_control->GetInfo().view.vScrollMode != 0;
}
void CGridVScroll::ScrollTo(long first) {
  m_control->SetTopRow(first);
}
void CGridVScroll::Move(int code) {
  m_control->MoveTopRow(code);
}

bool CGridVScroll::TipText(long first, CString& text) const {
  text = CString::Formatted(L"%ld", first + 1);
  return m_control->OnVScrollHint(first, &text) == 1;
}

CPoint CGridVScroll::TipAnchor(double position) const {
  CRect bar;
  GetWindowRect(&bar);
  m_control->ScreenToClient(&bar);
  return {bar.left, bar.top + static_cast<LONG>(position * bar.Height())};
}
