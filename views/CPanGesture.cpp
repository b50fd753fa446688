#include "views/CPanGesture.h"

namespace coregui {

void CPanGesture::Start(CPoint pointer) {
  m_active = true;
  m_last = pointer;
}

bool CPanGesture::Step(CPoint pointer, CViewMapping& mapping, CSize* moved) {
  CSize d = pointer - m_last;
  if (mapping.zeroX) {
    mapping.CheckPanOffset(d);
  }
  if (d == CSize(0, 0)) {
    return false;
  }
  mapping.Pan(d);
  m_last = pointer;
  *moved = d;
  return true;
}

CRect CPanGesture::DrawingArea(const CViewMapping& mapping, CRect const& client) {
  return {client.left + mapping.GetMarginPixels().left + 1, client.top, client.right, client.bottom};
}

CPanGesture::Scroll CPanGesture::ScrollFor(CSize moved, const CViewMapping& mapping, CRect const& client) {
  if (!mapping.rulerLimits) {
    return {true, client, moved, {}};
  }
  Scroll scroll{false, DrawingArea(mapping, client), moved, {}};
  if (moved.cy != 0) {
    scroll.strip = CRect(0, 1, client.left + mapping.GetMarginPixels().left, client.bottom);
  }
  return scroll;
}

}  // namespace coregui
