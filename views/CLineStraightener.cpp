#include "views/CLineStraightener.h"

#include <cmath>
#include <limits>

namespace coregui {

namespace {

PNT_2D_record Way(PNT_2D_record const& from, PNT_2D_record const& to) {
  return {to.x - from.x, to.y - from.y};
}

double Along(PNT_2D_record const& a, PNT_2D_record const& b) {
  return a.x * b.x + a.y * b.y;
}

/// Above 0 when `b` leads to the left of `a`.
double Across(PNT_2D_record const& a, PNT_2D_record const& b) {
  return a.x * b.y - a.y * b.x;
}

}  // namespace

bool CLineStraightener::IsOnTheWay(PNT_2D_record const& way) const {
  const PNT_2D_record before = Way(m_points.back(), m_last);
  return Along(before, Way(before, way)) >= 0.0 && Across(m_right, way) >= 0.0 && Across(way, m_left) >= 0.0;
}

void CLineStraightener::Narrow(PNT_2D_record const& way) {
  const double length = std::hypot(way.x, way.y);
  const double aside = length > m_tolerance ? m_tolerance / length : 1.0;
  const PNT_2D_record left{way.x - way.y * aside, way.y + way.x * aside};
  const PNT_2D_record right{way.x + way.y * aside, way.y - way.x * aside};
  m_left = m_waiting == 0 || Across(m_left, left) < 0.0 ? left : m_left;
  m_right = m_waiting == 0 || Across(m_right, right) > 0.0 ? right : m_right;
}

void CLineStraightener::Add(PNT_2D_record const& p) {
  if (!m_started) {
    m_points.push_back(p);
    m_started = true;
    return;
  }
  if (m_waiting > 0 && !IsOnTheWay(Way(m_points.back(), p))) {
    m_points.push_back(m_last);
    m_waiting = 0;
  }
  Narrow(Way(m_points.back(), p));
  m_last = p;
  ++m_waiting;
}

void CLineStraightener::Break() {
  constexpr double kGap = std::numeric_limits<double>::quiet_NaN();
  if (m_waiting > 0) {
    m_points.push_back(m_last);
  }
  m_points.push_back({kGap, kGap});
  m_waiting = 0;
  m_started = false;
}

}  // namespace coregui
