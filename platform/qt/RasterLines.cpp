#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "platform/qt/HardLine.h"
#include "platform/qt/RasterTarget.h"
#include "platform/qt/SmoothLine.h"

// Lines of a raster: straight into the rows.

namespace coregui {

namespace {

/// How many dots a hard line has from one point to before another.
std::int64_t StepsBetween(const DotGrid& grid, const DrawAttributes& with, POINT a, POINT b) {
  const auto length = [](const DotAxis& axis, LONG origin, LONG from, LONG to) {
    return std::abs(axis.WideDot(std::int64_t{to} + origin) - axis.WideDot(std::int64_t{from} + origin));
  };
  return std::max(length(grid.x, with.origin.x, a.x, b.x), length(grid.y, with.origin.y, a.y, b.y));
}

}  // namespace

LinePen RasterTarget::HardPen(const DrawAttributes& with) const {
  LinePen pen;
  const int width = std::abs(with.pen->GetWidth());
  pen.colour = Opaque(with.pen->GetColor());
  pen.rop = with.rop;
  pen.thickness = width == 0 ? 1 : DotWidth(width);
  pen.before = width > 1 ? DotWidth(width / 2) : 0;
  pen.style = width > 1 ? PS_SOLID : with.pen->GetStyle();
  pen.dash = std::max(1.0, Scale());
  pen.gap = Opaque(with.backColour);
  pen.fillsGaps = with.backMode == OPAQUE && with.rop == R2_COPYPEN;
  return pen;
}

CRect RasterTarget::PutStraight(const DrawAttributes& with, bool level, std::int64_t at, std::int64_t start,
                                std::int64_t end, const LinePen& pen) {
  const DotAxis& along = level ? Grid().x : Grid().y;
  const DotAxis& aside = level ? Grid().y : Grid().x;
  const int first = along.Dot(start);
  const int last = along.Dot(end);
  // A thin line ends with its pixel at the latest: where a pixel is no whole number of dots, it must not
  // reach into the next one, which may be another's.
  const int across = pen.before > 0 ? aside.Dot(at) - pen.before
                                    : std::min(aside.Dot(at), aside.Dot(at + 1) - pen.thickness);
  const CRect dots = level ? CRect(first, across, last, across + pen.thickness)
                           : CRect(across, first, across + pen.thickness, last);
  with.clip.ForEach(dots, [this, &pen](const CRect& part) { PutRect(part, pen.colour, pen.rop); });
  return dots;
}

CRect RasterTarget::StraightLine(const DrawAttributes& with, POINT from, POINT to, const LinePen& pen) {
  const std::int64_t fromX = std::int64_t{from.x} + with.origin.x;
  const std::int64_t fromY = std::int64_t{from.y} + with.origin.y;
  const std::int64_t toX = std::int64_t{to.x} + with.origin.x;
  const std::int64_t toY = std::int64_t{to.y} + with.origin.y;
  const bool level = fromY == toY;
  if ((level || fromX == toX) && pen.style == PS_SOLID) {
    const std::int64_t start = level ? fromX : fromY;
    const std::int64_t end = level ? toX : toY;
    return PutStraight(with, level, level ? fromY : fromX, start <= end ? start : end + 1,
                       start <= end ? end : start + 1, pen);
  }
  with.clip.ForEach(with.clip.box, [&](const CRect& part) {
    DrawHardLine(*m_surface, part, pen, Grid().x.WideDot(fromX), Grid().y.WideDot(fromY),
                 Grid().x.WideDot(toX), Grid().y.WideDot(toY));
  });
  return with.clip.box;
}

void RasterTarget::Polyline(const DrawAttributes& with, const POINT* points, int count) {
  if (with.pen->GetStyle() == PS_NULL || with.clip.box.IsRectEmpty()) {
    return;
  }
  const bool straight = count == 2 && (points[0].x == points[1].x || points[0].y == points[1].y) &&
                        with.pen->GetStyle() == PS_SOLID;
  if (!DrawsHard(with) && !(straight && !with.smooth)) {
    PainterTarget::Polyline(with, points, count);
    return;
  }
  LinePen pen = HardPen(with);
  if (count == 2) {
    CRect drawn;
    drawn.IntersectRect(StraightLine(with, points[0], points[1], pen), with.clip.box);
    m_surface->Damage(drawn);
    return;
  }
  m_surface->Damage(with.clip.box);
  const bool merges = pen.rop == R2_COPYPEN && pen.style == PS_SOLID;
  for (int i = 1; i < count;) {
    const int next = merges ? PutUpAndDown(with, points, i, count, pen) : i;
    if (next == i) {
      StraightLine(with, points[i - 1], points[i], pen);
      pen.walked += StepsBetween(Grid(), with, points[i - 1], points[i]);
      ++i;
    } else {
      i = next;
    }
  }
}

int RasterTarget::PutUpAndDown(const DrawAttributes& with, const POINT* points, int i, int count,
                               const LinePen& pen) {
  const LONG x = points[i - 1].x;
  LONG low = std::numeric_limits<LONG>::max();
  LONG high = std::numeric_limits<LONG>::min();
  int next = i;
  for (; next < count && points[next].x == x; ++next) {
    const LONG from = points[next - 1].y;
    const LONG to = points[next].y;
    if (from != to) {
      low = std::min(low, from < to ? from : to + 1);
      high = std::max(high, from < to ? to - 1 : from);
    }
  }
  if (next - i < 2) {
    return i;
  }
  if (low <= high) {
    PutStraight(with, false, std::int64_t{x} + with.origin.x, std::int64_t{low} + with.origin.y,
                std::int64_t{high} + with.origin.y + 1, pen);
  }
  return next;
}

void RasterTarget::SmoothPolylineF(const DrawAttributes& with, const double* xy, int count) {
  std::vector<double> dots(2 * static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < dots.size(); i += 2) {
    // A whole coordinate names the middle of its pixel, so that smooth and hard lines lie on each other.
    dots[i] = Grid().x.Exact(xy[i] + with.origin.x + 0.5);
    dots[i + 1] = Grid().y.Exact(xy[i + 1] + with.origin.y + 0.5);
  }
  const double width = std::max(1.0, with.pen->GetWidth() * Scale());
  with.clip.ForEach(with.clip.box, [&](const CRect& part) {
    DrawSmoothLine(*m_surface, part, Opaque(with.pen->GetColor()), width, dots.data(), dots.size() / 2);
  });
  m_surface->Damage(with.clip.box);
}

void RasterTarget::PolylineF(const DrawAttributes& with, const double* xy, int count) {
  if (with.smooth && with.rop == R2_COPYPEN && with.pen->GetStyle() == PS_SOLID) {
    SmoothPolylineF(with, xy, count);
    return;
  }
  if (!DrawsHard(with)) {
    PainterTarget::PolylineF(with, xy, count);
    return;
  }
  if (with.pen->GetStyle() == PS_NULL || with.clip.box.IsRectEmpty()) {
    return;
  }
  LinePen pen = HardPen(with);
  const DotGrid grid = Grid();
  const auto dot = [](double exact) {
    constexpr double limit = 4e9;
    return static_cast<std::int64_t>(std::floor(std::clamp(exact, -limit, limit) + 0.5));
  };
  bool drawing = false;
  std::int64_t lastX = 0;
  std::int64_t lastY = 0;
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    const double x = xy[2 * i] + with.origin.x;
    const double y = xy[2 * i + 1] + with.origin.y;
    if (!std::isfinite(x) || !std::isfinite(y)) {
      drawing = false;
      continue;
    }
    const std::int64_t dotX = dot(grid.x.Exact(x));
    const std::int64_t dotY = dot(grid.y.Exact(y));
    if (drawing && (dotX != lastX || dotY != lastY)) {
      with.clip.ForEach(with.clip.box, [&](const CRect& part) {
        DrawHardLine(*m_surface, part, pen, lastX, lastY, dotX, dotY);
      });
      pen.walked += std::max(std::abs(dotX - lastX), std::abs(dotY - lastY));
    }
    drawing = true;
    lastX = dotX;
    lastY = dotY;
  }
  m_surface->Damage(with.clip.box);
}

}  // namespace coregui
