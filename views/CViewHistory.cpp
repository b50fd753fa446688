#include "views/CViewHistory.h"

namespace coregui {

namespace {

constexpr std::size_t kMostPlaces = 100;

bool IsSame(const CViewMapping::Scale& a, const CViewMapping::Scale& b) {
  return a.scale == b.scale && a.vertRatio == b.vertRatio && a.offsetX == b.offsetX && a.offsetY == b.offsetY;
}

}  // namespace

void CViewHistory::Note(const CViewMapping::Scale& now, Gesture gesture, double seconds) {
  const bool continues = gesture != Gesture::single && gesture == m_gesture && seconds - m_time < kPause;
  m_gesture = gesture;
  m_time = seconds;
  m_forward.clear();
  if (continues) {
    return;
  }
  if (!m_back.empty() && IsSame(m_back.back(), now)) {
    return;
  }
  if (m_back.size() == kMostPlaces) {
    m_back.erase(m_back.begin());
  }
  m_back.push_back(now);
}

bool CViewHistory::Go(Places& from, Places& to, CViewMapping::Scale& now) {
  // A gesture that changed nothing left a place equal to the present one.
  while (!from.empty() && IsSame(from.back(), now)) {
    from.pop_back();
  }
  if (from.empty()) {
    return false;
  }
  m_gesture = Gesture::single;
  to.push_back(now);
  const CViewMapping::Scale window = now;
  now = from.back();
  now.fitScale = window.fitScale;
  now.dpiX = window.dpiX;
  now.dpiY = window.dpiY;
  from.pop_back();
  return true;
}

}  // namespace coregui
