#include "core/Geometry2d.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

/// One axis of the window.
struct Range {
  double low;
  double high;
  bool Contains(double value) const { return low <= value && value <= high; }
};

/// Where the coordinate that runs along a line enters and leaves a range, as fractions of the line, and at
/// which edge.
struct Crossing {
  double enter = -std::numeric_limits<double>::infinity();
  double leave = std::numeric_limits<double>::infinity();
  double enterEdge = 0;
  double leaveEdge = 0;
};

double Finite(double value) {
  constexpr double largest = std::numeric_limits<double>::max();
  return std::clamp(value, -largest, largest);
}

PNT_2D_record Finite(const PNT_2D_record& point) {
  return {Finite(point.x), Finite(point.y)};
}

bool IsNumber(const PNT_2D_record& point) {
  return !std::isnan(point.x) && !std::isnan(point.y);
}

Range RangeOf(double a, double b) {
  return {std::min(a, b), std::max(a, b)};
}

/// The crossing of the coordinate that runs from a to b (Liang and Barsky's method, one axis at a time).
Crossing Cross(const Range& range, double a, double b) {
  if (a == b) {
    Crossing all;
    if (!range.Contains(a)) std::swap(all.enter, all.leave);
    return all;
  }
  const double span = b - a;
  if (std::isinf(span)) {  // too long to be a number: the same at a quarter of the size
    Crossing quarter = Cross({range.low / 4, range.high / 4}, a / 4, b / 4);
    quarter.enterEdge *= 4;
    quarter.leaveEdge *= 4;
    return quarter;
  }
  const double first = span > 0 ? range.low : range.high;
  const double last = span > 0 ? range.high : range.low;
  return {(first - a) / span, (last - a) / span, first, last};
}

double Between(const Range& range, double a, double b, double fraction) {
  return std::clamp(a * (1 - fraction) + b * fraction, range.low, range.high);
}

}  // namespace

void tg_set_pnt_2d(PNT_2D_record& point, double x, double y) {
  point = {x, y};
}

void tg_set_line_2d(LINE_2D_record& line, double startX, double startY, double endX, double endY) {
  line = {{startX, startY}, {endX, endY}};
}

void tg_set_line_2d(LINE_2D_record& line, const PNT_2D_record& start, const PNT_2D_record& end) {
  line = {start, end};
}

bool tg_clipwindow(const PNT_2D_record& corner, const PNT_2D_record& oppositeCorner, LINE_2D_record& line) {
  if (!IsNumber(corner) || !IsNumber(oppositeCorner) || !IsNumber(line.start) || !IsNumber(line.end))
    return false;
  const PNT_2D_record first = Finite(corner);
  const PNT_2D_record second = Finite(oppositeCorner);
  const Range x = RangeOf(first.x, second.x);
  const Range y = RangeOf(first.y, second.y);
  const PNT_2D_record start = Finite(line.start);
  const PNT_2D_record end = Finite(line.end);
  const Crossing inX = Cross(x, start.x, end.x);
  const Crossing inY = Cross(y, start.y, end.y);
  const double from = std::max({0.0, inX.enter, inY.enter});
  const double to = std::min({1.0, inX.leave, inY.leave});
  if (from > to) return false;
  if (from > 0) {
    line.start = {inX.enter == from ? inX.enterEdge : Between(x, start.x, end.x, from),
                  inY.enter == from ? inY.enterEdge : Between(y, start.y, end.y, from)};
  }
  if (to < 1) {
    line.end = {inX.leave == to ? inX.leaveEdge : Between(x, start.x, end.x, to),
                inY.leave == to ? inY.leaveEdge : Between(y, start.y, end.y, to)};
  }
  return true;
}
