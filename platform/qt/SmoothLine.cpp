#include "platform/qt/SmoothLine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "platform/qt/CoverageMask.h"

namespace coregui {

namespace {

constexpr std::size_t kMostCells = 1U << 17U;  // of a mask: a megabyte, which the processor keeps near
constexpr int kPlaces = CoverageMask::kPlaces;

/// A place of the line, in places of a mask; row r's middle is at r + 0.5.
struct Spot {
  double x;
  double y;
  bool IsFinite() const { return std::isfinite(x) && std::isfinite(y); }
};

/// The left or right edge of a shape along its rows: x = at + slope * y.
struct Edge {
  double at;
  double slope;
  double At(double y) const { return at + slope * y; }
};

class SmoothStroke {
 public:
  SmoothStroke(CoverageMask& mask, double radius) : m_mask(mask), m_radius(radius) {}

  /// One piece of the line: finite points, one at least.
  void Draw(const Spot* points, std::size_t count) {
    if (std::all_of(points, points + count,
                    [&](Spot const& s) { return s.x == points->x && s.y == points->y; })) {
      return;
    }
    for (std::size_t i = 0; i < count;) {
      double low = points[i].y;
      double high = low;
      std::size_t next = i + 1;
      for (; next < count && points[next].x == points[i].x; ++next) {
        low = std::min(low, points[next].y);
        high = std::max(high, points[next].y);
      }
      const bool inside = i > 0 && next < count && next == i + 1;
      if (!inside || IsCorner(points[i - 1], points[i], points[next])) {
        PutUpright(points[i].x, low, high);
        m_turned = 0.0;
      }
      if (next < count) {
        PutSegment(points[next - 1], points[next]);
      }
      i = next;
    }
  }

 private:
  /// False while the sides of the segments since the last corner miss each other by too little to be seen.
  bool IsCorner(Spot const& from, Spot const& at, Spot const& to) {
    constexpr double kSmall = 0.25;  // places
    const double ax = at.x - from.x, ay = at.y - from.y, bx = to.x - at.x, by = to.y - at.y;
    const double along = ax * bx + ay * by;
    m_turned += along > 0.0 ? std::fabs(ax * by - ay * bx) / along : 0.0;
    return along <= 0.0 || m_turned * m_radius > kSmall;
  }

  bool Limit(double top, double bottom, int* first, int* last) const {
    const auto rowOf = [&](double y) {
      const double inside = std::clamp<double>(y, m_mask.Places().top, m_mask.Places().bottom);
      return static_cast<int>(std::ceil(inside - 0.5));
    };
    *first = rowOf(top);
    *last = rowOf(bottom);
    return *first < *last;
  }

  /// A round dot, drawn out upwards.
  void PutUpright(double x, double low, double high) {
    if (x + m_radius < m_mask.Places().left || x - m_radius > m_mask.Places().right) {
      return;
    }
    int row = 0;
    int last = 0;
    if (!Limit(low - m_radius, high + m_radius, &row, &last)) {
      return;
    }
    const auto put = [&](int end) {
      for (; row < std::min(end, last); ++row) {
        const double y = row + 0.5;
        const double off = y < low ? low - y : std::max(0.0, y - high);
        const double half = std::sqrt(std::max(0.0, m_radius * m_radius - off * off));
        m_mask.CoverRun(row, x - half, x + half);
      }
    };
    int first = 0;
    int end = 0;
    if (Limit(low, high, &first, &end)) {
      const int firstWhole = (first + kPlaces - 1) / kPlaces * kPlaces;
      put(firstWhole);
      for (; row + kPlaces <= end; row += kPlaces) {
        m_mask.CoverRuns(row, x - m_radius, x + m_radius);
      }
    }
    put(last);
  }

  /// What lies beside a segment, up to the radius, between its ends.
  void PutSegment(Spot const& a, Spot const& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = std::hypot(dx, dy);
    if (length == 0.0) {
      return;
    }
    const double acrossX = m_radius * std::fabs(dy) / length;  // from the line to its sides
    const double acrossY = m_radius * std::fabs(dx) / length;
    if (std::max(a.x, b.x) + acrossX < m_mask.Places().left ||
        std::min(a.x, b.x) - acrossX > m_mask.Places().right) {
      return;
    }
    const Spot& upper = a.y <= b.y ? a : b;
    const Spot& lower = a.y <= b.y ? b : a;
    int row = 0;
    int last = 0;
    if (!Limit(upper.y - acrossY, lower.y + acrossY, &row, &last)) {
      return;
    }
    // The sides run along the segment, the ends across it; each bounds from the left or from the right.
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    const double slope = dy != 0.0 ? dx / dy : 0.0;
    const double half = dy != 0.0 ? m_radius * length / std::fabs(dy) : kEndless;
    const Edge side{dy != 0.0 ? a.x - slope * a.y : 0.0, slope};
    const double endSlope = dx != 0.0 ? -dy / dx : 0.0;
    const Spot& leftmost = a.x <= b.x ? a : b;
    const Spot& rightmost = a.x <= b.x ? b : a;
    const Edge left{dx != 0.0 ? leftmost.x - endSlope * leftmost.y : -kEndless, endSlope};
    const Edge right{dx != 0.0 ? rightmost.x - endSlope * rightmost.y : kEndless, endSlope};
    // Between the corners next to its ends the sides alone bound it.
    const double plainTop = upper.y + acrossY;
    const double plainBottom = lower.y - acrossY;
    const bool upright = std::fabs(slope) * kPlaces * kPlaces < 1.0;  // no step aside in a row of dots
    while (row < last) {
      const double y = row + 0.5;
      if (upright && row % kPlaces == 0 && row + kPlaces <= last && y >= plainTop &&
          y + kPlaces - 1 <= plainBottom) {
        const double middle = side.At(row + kPlaces / 2.0);
        m_mask.CoverRuns(row, middle - half, middle + half);
        row += kPlaces;
        continue;
      }
      m_mask.CoverRun(row, std::max(side.At(y) - half, left.At(y)), std::min(side.At(y) + half, right.At(y)));
      ++row;
    }
  }

  CoverageMask& m_mask;
  const double m_radius;
  double m_turned = 0.0;  ///< since the last corner, in radians as long as they are small
};

void StrokeBand(Surface& surface, const CRect& band, std::uint32_t colour, double radius,
                const std::vector<Spot>& spots) {
  CoverageMask mask(band);
  SmoothStroke stroke(mask, radius);
  for (auto at = spots.begin(); at != spots.end();) {
    const auto end = std::find_if_not(at, spots.end(), [](Spot const& s) { return s.IsFinite(); });
    if (at != end) {
      stroke.Draw(&*at, static_cast<std::size_t>(end - at));
    }
    at = std::find_if(end, spots.end(), [](Spot const& s) { return s.IsFinite(); });
  }
  mask.Blend(surface, colour);
}

}  // namespace

void DrawSmoothLine(Surface& surface, const CRect& clip, std::uint32_t colour, double width,
                    const double* points, std::size_t count) {
  constexpr double kFar = 1e9;  // beyond, the line keeps its way through the surface well enough
  std::vector<Spot> spots(count);
  Spot low{clip.right * 1.0, clip.bottom * 1.0};
  Spot high{clip.left * 1.0, clip.top * 1.0};
  for (std::size_t i = 0; i < count; ++i) {
    Spot at{points[2 * i], points[2 * i + 1]};
    if (at.IsFinite()) {
      at = {std::clamp(at.x, -kFar, kFar), std::clamp(at.y, -kFar, kFar)};
      low = {std::min(low.x, at.x), std::min(low.y, at.y)};
      high = {std::max(high.x, at.x), std::max(high.y, at.y)};
    }
    spots[i] = {at.x * kPlaces, at.y * kPlaces};
  }
  const double radius = width / 2.0;
  const auto clamped = [&](double v, LONG from, LONG to) {
    return static_cast<LONG>(std::floor(std::clamp(v, from * 1.0, to * 1.0)));
  };
  CRect band(clamped(low.x - radius, clip.left, clip.right), clamped(low.y - radius, clip.top, clip.bottom),
             clamped(high.x + radius + 1.0, clip.left, clip.right),
             clamped(high.y + radius + 1.0, clip.top, clip.bottom));
  if (band.IsRectEmpty()) {
    return;
  }
  const LONG bottom = band.bottom;
  const LONG rows = std::max<LONG>(1, static_cast<LONG>(kMostCells) / band.Width());
  for (; band.top < bottom; band.top = band.bottom) {
    band.bottom = std::min(bottom, band.top + rows);
    StrokeBand(surface, band, colour, radius * kPlaces, spots);
  }
}

}  // namespace coregui
