#include "views/CGUIBaseView.h"

// Panning with the middle button, and what a touchpad does.

void CGUIBaseView::OnMButtonDown(UINT flags, CPoint point) {
  if (!m_initialised || m_zoomBoxMode) {
    return;
  }
  const Life life = m_life;
  SetFocus();
  if (!m_isSlave) {
    NoteForHistory();
    m_pan.Start(point);
    SetCapture();
    NotifySlave();
    NotifyParent();
  }
  if (!life.expired()) {
    TellButton(EVENT_OTHER_DOWN, flags, KEYFLAG_MIDDLE);
  }
}

void CGUIBaseView::OnMButtonUp(UINT flags, CPoint /*point*/) {
  if (!m_initialised || m_zoomBoxMode) {
    return;
  }
  const Life life = m_life;
  if (!m_isSlave) {
    m_pan.Stop();
    if (GetCapture() == this) {
      ReleaseCapture();
    }
    Invalidate(TRUE);
    NotifySlave();
    NotifyParent();
  }
  if (!life.expired()) {
    TellButton(EVENT_BUTTON_UP, flags, KEYFLAG_MIDDLE);
  }
}

LRESULT CGUIBaseView::OnCaptureChanged(WPARAM /*wParam*/, LPARAM lParam) {
  if (reinterpret_cast<HWND>(lParam) == GetSafeHwnd()) {
    return 0;
  }
  // Another window took the pointer: the release will go there.
  if (m_pan.IsActive()) {
    m_pan.Stop();
    Invalidate(TRUE);
  }
  CPoint anchor;
  CPoint corner;
  if (coregui::CZoomBox::Shared().GetBox(*this, &anchor, &corner)) {
    ZoomBox(ZOOM_CANCEL);
  }
  return 0;
}

bool CGUIBaseView::PanStep(CPoint point) {
  CSize moved;
  if (!m_pan.Step(point, m_mapping, &moved)) {
    return true;
  }
  const Life life = m_life;
  ScrollFor(moved);
  if (GetSlave() == nullptr) {
    NotifyParent();
  }
  return !life.expired() && Tell(EVENT_PAN);
}

void CGUIBaseView::ScrollFor(CSize moved) {
  const OverlayPause pause(*this);
  const CRect client = GetClientRectangle();
  const coregui::CPanGesture::Scroll scroll = coregui::CPanGesture::ScrollFor(moved, m_mapping, client);
  ScrollWindow(scroll.by.cx, scroll.by.cy, &scroll.area, &scroll.area, TRUE);
  if (!scroll.strip.IsRectEmpty()) {
    ScrollWindow(0, scroll.by.cy, &scroll.strip, &scroll.strip, TRUE);
  }
  if (scroll.whole) {
    Invalidate(TRUE);
  } else {
    RedrawInPlace(moved);
  }
  CGUIBaseView* const slave = GetSlave();
  if (slave == nullptr) {
    return;
  }
  const OverlayPause slavePause(*slave);
  slave->m_mapping.now.offsetX = m_mapping.now.offsetX;
  const CRect theirs = slave->GetClientRectangle();
  const CRect area = scroll.whole ? theirs : coregui::CPanGesture::DrawingArea(m_mapping, theirs);
  slave->ScrollWindow(moved.cx, 0, &area, &area, TRUE);
  slave->RedrawInPlace({moved.cx, 0});
}

void CGUIBaseView::RedrawInPlace(CSize moved) {
  for (const CRect& part : m_inPlace) {
    InvalidateRect(&part, TRUE);
    CRect carried = part;  // where its pixels are now
    carried.OffsetRect(moved.cx, moved.cy);
    InvalidateRect(&carried, TRUE);
  }
}

// --- Touchpad

LRESULT CGUIBaseView::OnPinch(WPARAM wParam, LPARAM lParam) {
  if (!m_options.touchpad || m_zoomBoxMode) {
    return Default();
  }
  const double factor = static_cast<double>(wParam) / 65536.0;
  if (m_initialised && !m_isSlave && factor > 0.0) {
    NoteForHistory(coregui::CViewHistory::Gesture::pinch);
    ZoomAround(CPoint::FromLParam(lParam), factor);
  }
  return 1;
}

LRESULT CGUIBaseView::OnWantPan(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  return m_options.touchpad && m_initialised && !m_isSlave && !m_zoomBoxMode ? 1 : 0;
}

LRESULT CGUIBaseView::OnTouchPan(WPARAM /*wParam*/, LPARAM lParam) {
  if (OnWantPan(0, 0) == 0) {
    return 0;
  }
  const bool wasPanning = m_pan.IsActive();
  NoteForHistory(coregui::CViewHistory::Gesture::touchPan);
  m_pan.Start({0, 0});
  const Life life = m_life;
  PanStep(CPoint::FromLParam(lParam));
  if (!life.expired() && !wasPanning) {
    m_pan.Stop();
  }
  return 1;
}
