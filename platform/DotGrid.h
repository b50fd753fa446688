#pragma once

#include <cmath>
#include <cstdint>

#include "platform/Geometry.h"

namespace coregui {

/// Where logical pixels lie among the dots of a device, along one axis: each pixel's edge at the nearest dot.
///
/// A window on another counts from the corner of the window at the top, for between whole scales it depends
/// on the place how many dots a pixel has: so what touches in pixels touches in dots, whichever window draws
/// it.
class DotAxis {
 public:
  /// `scale` in dots per pixel; `start`: which pixel of the window at the top is pixel 0 here.
  explicit DotAxis(double scale, LONG start);

  double Scale() const { return m_scale; }
  /// The dot at which a pixel begins.
  std::int64_t WideDot(std::int64_t pixel) const {
    return m_scale == 1.0 ? pixel : Rounded(static_cast<double>(pixel + m_start) * m_scale) - m_firstDot;
  }
  /// The same, limited to a range in which sums do not overflow.
  int Dot(std::int64_t pixel) const {
    constexpr std::int64_t limit = 1 << 29;
    const std::int64_t dot = WideDot(pixel);
    return static_cast<int>(dot < -limit ? -limit : (dot > limit ? limit : dot));
  }
  /// Where a fractional pixel lies, not rounded to dots.
  double Exact(double pixel) const { return pixel * m_scale + m_shift; }
  /// A dot's edge in pixels, not rounded.
  double PixelsTo(LONG dot) const { return (static_cast<double>(dot) - m_shift) / m_scale; }
  bool operator==(const DotAxis&) const = default;

 private:
  static std::int64_t Rounded(double dots) { return static_cast<std::int64_t>(std::floor(dots + 0.5)); }

  double m_scale;
  LONG m_start;
  std::int64_t m_firstDot;  ///< of pixel 0, in the window at the top
  double m_shift;           ///< from its dot to where pixel 0 would be, unrounded
};

/// The same for both axes. Grids are equal when the same pixels have the same dots.
struct DotGrid {
  DotGrid(double scale, CPoint start = {})  // NOLINT(google-explicit-constructor): a plain scale serves
      : x(scale, start.x), y(scale, start.y) {}

  double Scale() const { return x.Scale(); }
  bool IsWhole() const { return Scale() == static_cast<int>(Scale()); }
  CRect Dots(const RECT& pixels) const {
    return {x.Dot(pixels.left), y.Dot(pixels.top), x.Dot(pixels.right), y.Dot(pixels.bottom)};
  }
  bool operator==(const DotGrid&) const = default;

  DotAxis x;
  DotAxis y;
};

}  // namespace coregui
