#include "views/CZoomBox.h"

namespace coregui {

CZoomBox& CZoomBox::Shared() {
  static CZoomBox box;
  return box;
}

bool CZoomBox::GetBox(const CZoomBoxHost& host, CPoint* anchor, CPoint* corner) const {
  *anchor = m_anchor;
  *corner = m_corner;
  return m_host == &host;
}

void CZoomBox::Move(CZoomBoxHost& host, CPoint at) {
  if (!IsInProgress()) {
    return;
  }
  host.DrawBoxOutline(m_anchor, m_corner);
  m_corner = at;
  host.DrawBoxOutline(m_anchor, m_corner);
}

void CZoomBox::Click(CZoomBoxHost& host, CPoint at) {
  if (IsInProgress()) {
    Finish(host);
    return;
  }
  m_host = &host;
  m_anchor = at;
  m_corner = at;
  host.CaptureForBox();
  host.TellBoxStarted();
}

void CZoomBox::Key(CZoomBoxHost& host, char key) {
  if (IsInProgress() && key == ' ') {
    Finish(host);
  }
}

void CZoomBox::Cancel(CZoomBoxHost& host) {
  host.LeaveZoomBoxMode();
  if (IsInProgress()) {
    host.DrawBoxOutline(m_anchor, m_corner);
    m_host = nullptr;
    host.ReleaseFromBox();
  }
  host.TellBoxCancelled();
}

void CZoomBox::Finish(CZoomBoxHost& host) {
  m_host = nullptr;
  host.ReleaseFromBox();
  host.LeaveZoomBoxMode();
  // Kept: the outline is not erased here. The repaint of the zoom removes it; a degenerate box has none to
  // speak of.
  const CPoint anchor = m_anchor;
  const CPoint corner = m_corner;
  if (anchor.x != corner.x && anchor.y != corner.y && !host.ZoomToBox(anchor, corner)) {
    return;
  }
  host.TellBoxFinished();
}

void CZoomBox::Forget(const CZoomBoxHost& host) {
  if (m_host == &host) {
    m_host = nullptr;
  }
}

}  // namespace coregui
