#include "views/CPolylineSink.h"

#include <array>
#include <cmath>

#include "views/DeviceNumbers.h"

namespace coregui {

namespace {

constexpr LONG kFar = 1 << 22;

bool IsFar(CPoint p) {
  return p.x < -kFar || p.x > kFar || p.y < -kFar || p.y > kFar;
}

/// The part of a segment inside the square of kFar around the origin; false when there is none.
bool PullIn(CPoint& a, CPoint& b) {
  const double dx = static_cast<double>(b.x) - a.x;
  const double dy = static_cast<double>(b.y) - a.y;
  const double far = kFar;
  // Each side as (how fast the segment leaves it, how much room is left at a).
  const std::array<std::array<double, 2>, 4> sides = {
      {{-dx, a.x + far}, {dx, far - a.x}, {-dy, a.y + far}, {dy, far - a.y}}};
  double from = 0.0;
  double to = 1.0;
  for (const auto& [speed, room] : sides) {
    if (speed == 0.0) {
      if (room < 0.0) return false;
    } else if (speed < 0.0) {
      from = std::max(from, room / speed);
    } else {
      to = std::min(to, room / speed);
    }
  }
  if (from > to) {
    return false;
  }
  const CPoint start = a;
  const auto at = [&](double t) {
    return CPoint(TruncateToDevice(std::round(start.x + dx * t)),
                  TruncateToDevice(std::round(start.y + dy * t)));
  };
  if (from > 0.0) a = at(from);
  if (to < 1.0) b = at(to);
  return true;
}

}  // namespace

bool CPolylineSink::IsHidden(CPoint a, CPoint b) const {
  return (a.x < m_visible.left && b.x < m_visible.left) || (a.x > m_visible.right && b.x > m_visible.right) ||
         (a.y < m_visible.top && b.y < m_visible.top) || (a.y > m_visible.bottom && b.y > m_visible.bottom);
}

void CPolylineSink::Add(CPoint p) {
  if (m_started && p == m_last) {
    return;
  }
  if (m_started) {
    AddSegment(m_last, p);
  }
  m_started = true;
  m_last = p;
}

void CPolylineSink::AddSegment(CPoint a, CPoint b) {
  if (IsHidden(a, b)) {
    CloseRun();
    return;
  }
  const bool startsFar = IsFar(a);
  const bool endsFar = IsFar(b);
  if ((startsFar || endsFar) && !PullIn(a, b)) {
    CloseRun();
    return;
  }
  if (startsFar) {
    CloseRun();
  }
  if (m_run == 0) {
    m_points.push_back(a);
    m_run = 1;
  }
  m_points.push_back(b);
  ++m_run;
  if (endsFar) {
    CloseRun();
  }
}

void CPolylineSink::CloseRun() {
  if (m_run > 0) {
    m_counts.push_back(m_run);
    m_run = 0;
  }
}

void CPolylineSink::Break() {
  CloseRun();
  m_started = false;
}

}  // namespace coregui
