#include "platform/qt/HardLine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "platform/CDC.h"

namespace coregui {

namespace {

constexpr std::uint32_t colourBits = 0x00FFFFFF;

// A line seen along its longer direction: `major` runs, `minor` follows.
struct Walk {
  std::int64_t major0, minor0, majorLength, minorLength;
  int majorStep, minorStep;
};

constexpr std::array<double, 2> dashUnits{18, 6};
constexpr std::array<double, 2> dotUnits{3, 3};
constexpr std::array<double, 4> dashDotUnits{9, 6, 3, 6};
constexpr std::array<double, 6> dashDotDotUnits{9, 3, 3, 3, 3, 3};

}  // namespace

std::span<const double> DashUnits(int style) {
  switch (style) {
    case PS_DASH:
      return dashUnits;
    case PS_DOT:
      return dotUnits;
    case PS_DASHDOT:
      return dashDotUnits;
    case PS_DASHDOTDOT:
      return dashDotDotUnits;
    default:
      return {};
  }
}

namespace {

bool IsDash(const LinePen& pen, std::int64_t step) {
  const std::span<const double> units = DashUnits(pen.style);
  double period = 0;
  for (const double unit : units) {
    period += unit;
  }
  double place = std::fmod(static_cast<double>(step) / pen.dash, period);
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (place < units[i]) {
      return i % 2 == 0;
    }
    place -= units[i];
  }
  return true;
}

// The steps of `walk` whose major coordinate lies in [low, high).
void LimitSteps(const Walk& walk, std::int64_t low, std::int64_t high, std::int64_t* first,
                std::int64_t* last) {
  if (walk.majorStep > 0) {
    *first = std::max<std::int64_t>(0, low - walk.major0);
    *last = std::min(walk.majorLength, high - walk.major0);
  } else {
    *first = std::max<std::int64_t>(0, walk.major0 - high + 1);
    *last = std::min(walk.majorLength, walk.major0 - low + 1);
  }
}

void PutAcross(Surface& surface, const CRect& clip, bool steep, std::int64_t major, std::int64_t minor,
               int thickness, std::uint32_t colour, int rop) {
  if (steep) {
    const std::int64_t from = std::max<std::int64_t>(minor, clip.left);
    const std::int64_t to = std::min<std::int64_t>(minor + thickness, clip.right);
    if (from < to) {
      PutDots(surface.Row(static_cast<int>(major)) + from, static_cast<int>(to - from), colour, rop);
    }
    return;
  }
  const std::int64_t from = std::max<std::int64_t>(minor, clip.top);
  const std::int64_t to = std::min<std::int64_t>(minor + thickness, clip.bottom);
  for (std::int64_t y = from; y < to; ++y) {
    PutDots(surface.Row(static_cast<int>(y)) + major, 1, colour, rop);
  }
}

// The dots of a solid line in copy mode, the usual one: `step` to before `last` of the walk, whose minor
// coordinate starts at `minor` with `error` of a whole.
void PutSolid(Surface& surface, const CRect& clip, const Walk& walk, bool steep, const LinePen& pen,
              std::int64_t step, std::int64_t last, std::int64_t minor, std::int64_t error) {
  const std::int64_t whole = 2 * walk.majorLength;
  const std::int64_t part = 2 * walk.minorLength;
  const std::int64_t low = steep ? clip.left : clip.top;
  const std::int64_t high = steep ? clip.right : clip.bottom;
  const std::ptrdiff_t across = steep ? 1 : surface.Stride();
  const std::ptrdiff_t along = (steep ? surface.Stride() : 1) * walk.majorStep;
  std::uint32_t* at = surface.Row(0) + (walk.major0 + walk.majorStep * step) * (steep ? surface.Stride() : 1);
  for (; step < last; ++step, at += along) {
    const std::int64_t from = std::max(minor, low);
    const std::int64_t to = std::min(minor + pen.thickness, high);
    for (std::int64_t dot = from; dot < to; ++dot) {
      at[dot * across] = pen.colour;
    }
    error += part;
    if (error >= whole) {
      error -= whole;
      minor += walk.minorStep;
    }
  }
}

// Brings far ends near the clip: beyond the exact range a line's slope may change by less than one dot in
// 2^20.
bool CutFarEnds(const CRect& clip, std::int64_t* x0, std::int64_t* y0, std::int64_t* x1, std::int64_t* y1) {
  constexpr double reach = 1 << 24;
  double t0 = 0.0;
  double t1 = 1.0;
  const auto cut = [&t0, &t1](double start, double delta, double low, double high) {
    if (delta == 0.0) {
      return start >= low && start <= high;
    }
    double a = (low - start) / delta;
    double b = (high - start) / delta;
    if (a > b) {
      std::swap(a, b);
    }
    t0 = std::max(t0, a);
    t1 = std::min(t1, b);
    return t0 <= t1;
  };
  const auto startX = static_cast<double>(*x0);
  const auto startY = static_cast<double>(*y0);
  const double deltaX = static_cast<double>(*x1) - startX;
  const double deltaY = static_cast<double>(*y1) - startY;
  if (!cut(startX, deltaX, clip.left - reach, clip.right + reach) ||
      !cut(startY, deltaY, clip.top - reach, clip.bottom + reach)) {
    return false;
  }
  *x0 = std::llround(startX + t0 * deltaX);
  *y0 = std::llround(startY + t0 * deltaY);
  *x1 = std::llround(startX + t1 * deltaX);
  *y1 = std::llround(startY + t1 * deltaY);
  return true;
}

bool IsFar(std::int64_t value) {
  constexpr std::int64_t exact = std::int64_t{1} << 29;
  return value < -exact || value > exact;
}

}  // namespace

void PutDots(std::uint32_t* at, int count, std::uint32_t colour, int rop) {
  switch (rop) {
    case R2_XORPEN:
      for (int i = 0; i < count; ++i) {
        at[i] ^= colour & colourBits;
      }
      break;
    case R2_NOT:
      for (int i = 0; i < count; ++i) {
        at[i] ^= colourBits;
      }
      break;
    default:
      std::fill_n(at, count, colour);
  }
}

void DrawHardLine(Surface& surface, const CRect& clip, const LinePen& pen, std::int64_t x0, std::int64_t y0,
                  std::int64_t x1, std::int64_t y1) {
  if ((IsFar(x0) || IsFar(y0) || IsFar(x1) || IsFar(y1)) && !CutFarEnds(clip, &x0, &y0, &x1, &y1)) {
    return;
  }
  const std::int64_t width = std::abs(x1 - x0);
  const std::int64_t height = std::abs(y1 - y0);
  const bool steep = height > width;
  const Walk walk = steep ? Walk{y0, x0, height, width, y1 > y0 ? 1 : -1, x1 > x0 ? 1 : -1}
                          : Walk{x0, y0, width, height, x1 > x0 ? 1 : -1, y1 > y0 ? 1 : -1};
  std::int64_t step = 0;
  std::int64_t last = 0;
  LimitSteps(walk, steep ? clip.top : clip.left, steep ? clip.bottom : clip.right, &step, &last);
  if (step >= last) {
    return;
  }
  // After `step` steps the minor coordinate is floor((2 step minorLength + majorLength) / (2 majorLength)).
  const std::int64_t whole = 2 * walk.majorLength;
  const std::int64_t part = 2 * walk.minorLength;
  std::int64_t error = step * part + walk.majorLength;
  std::int64_t minor = walk.minor0;
  if (step > 0) {  // a division takes as long as many dots
    minor += walk.minorStep * (error / whole);
    error %= whole;
  }
  const bool dashed = pen.style != PS_SOLID;
  if (!dashed && pen.rop == R2_COPYPEN) {
    PutSolid(surface, clip, walk, steep, pen, step, last, minor - pen.before, error);
    return;
  }
  for (; step < last; ++step) {
    const bool shown = !dashed || IsDash(pen, pen.walked + step);
    if (shown || pen.fillsGaps) {
      PutAcross(surface, clip, steep, walk.major0 + walk.majorStep * step, minor - pen.before, pen.thickness,
                shown ? pen.colour : pen.gap, pen.rop);
    }
    error += part;
    if (error >= whole) {
      error -= whole;
      minor += walk.minorStep;
    }
  }
}

}  // namespace coregui
