#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "platform/Types.h"

// From world arithmetic to 32-bit device pixels without undefined behaviour: what does not fit saturates.

namespace coregui {

/// The nearest value that 32 bits hold.
constexpr LONG SaturateToDevice(std::int64_t value) {
  return static_cast<LONG>(
      std::clamp<std::int64_t>(value, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}

/// The whole part of a value, truncated towards zero and saturated; NaN gives 0.
///
/// Kept: truncation, not rounding. Callers add 0.5, so positions are rounded to nearest right of and below
/// the origin but towards it on the other side; drawings that were digitised on these pixels rely on it.
constexpr LONG TruncateToDevice(double value) {
  const double finite = value == value ? value : 0.0;  // only NaN differs from itself
  return static_cast<LONG>(std::min(std::max(finite, -2147483648.0), 2147483647.0));
}

/// A length in points (1/72 inch) in whole device pixels, truncated towards zero.
constexpr LONG PointsToPixels(std::int64_t points, LONG dotsPerInch) {
  return SaturateToDevice(points * dotsPerInch / 72);
}

}  // namespace coregui
