#include "views/CZoomBox.h"

#include <utility>

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

void CZoomBox::Move(const CZoomBoxHost& host, CPoint at) {
  if (m_host != &host) {
    return;
  }
  m_host->DrawBoxOutline(m_anchor, m_corner);
  m_corner = at;
  m_host->DrawBoxOutline(m_anchor, m_corner);
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
    m_host->DrawBoxOutline(m_anchor, m_corner);
    std::exchange(m_host, nullptr)->ReleaseFromBox();
  }
  host.TellBoxCancelled();
}

void CZoomBox::Finish(CZoomBoxHost& host) {
  if (m_host != &host) {
    m_host->DrawBoxOutline(m_anchor, m_corner);  // what follows repaints only the other view
  }
  std::exchange(m_host, nullptr)->ReleaseFromBox();
  host.LeaveZoomBoxMode();
  // Kept: the outline is not erased in its own view. The repaint of the zoom removes it; the line of a flat
  // box stays until the next one.
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
