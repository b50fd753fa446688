#include "platform/DotGrid.h"

namespace coregui {
namespace {

/// The first start at which pixels have the same dots as at this one.
LONG FirstLike(double scale, LONG start) {
  constexpr LONG mostPixels = 64;
  for (LONG period = 1; period <= mostPixels; period *= 2) {
    const double dots = scale * static_cast<double>(period);
    if (dots == static_cast<int>(dots)) return (start % period + period) % period;
  }
  return start;
}

}  // namespace

DotAxis::DotAxis(double scale, LONG start)
    : m_scale(scale),
      m_start(FirstLike(scale, start)),
      m_firstDot(m_start == 0 ? 0 : Rounded(m_start * scale)),
      m_shift(m_start * scale - static_cast<double>(m_firstDot)) {}

}  // namespace coregui
