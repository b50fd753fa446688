#include "views/PassesThrough.h"

#include <algorithm>

namespace coregui {

namespace {

class PassSearch {
 public:
  PassSearch(const CPlotSeries& series, FRect const& part) : m_points(series.GetPoints()), m_series(series) {
    m_x = {std::min(part.GetLeft(), part.GetRight()), std::max(part.GetLeft(), part.GetRight())};
    m_y = {std::min(part.GetBottom(), part.GetTop()), std::max(part.GetBottom(), part.GetTop())};
  }

  /// Looks at the legs that begin in a node.
  bool Visit(std::size_t level, std::size_t node) const {
    const std::size_t size = CPlotSeries::GetNodeSize(level);
    const std::size_t first = node * size;
    const std::size_t end = std::min(first + size, m_points.size());
    if (!MayReach(level, node, first, end)) {
      return false;
    }
    const std::size_t step = level == 0 ? 1 : CPlotSeries::GetNodeSize(level - 1);
    for (std::size_t i = first; i < end; i += step) {
      if (level == 0 ? i + 1 < m_points.size() && LegPasses(m_points[i], m_points[i + 1])
                     : Visit(level - 1, i / step)) {
        return true;
      }
    }
    return false;
  }

 private:
  using Bounds = CPlotSeries::Bounds;

  static void Include(Bounds& bounds, double value) {
    bounds.lowest = std::min(bounds.lowest, value);
    bounds.highest = std::max(bounds.highest, value);
  }
  static bool Meet(const Bounds& a, const Bounds& b) {
    return a.lowest <= b.highest && a.highest >= b.lowest;
  }

  bool MayReach(std::size_t level, std::size_t node, std::size_t first, std::size_t end) const {
    Bounds y = m_series.GetBoundsY(level, node);
    if (y.lowest > y.highest) {
      return false;
    }
    Bounds x{m_points[first].x, m_points[first].x};
    bool known = true;
    if (!m_series.IsMonotone()) {
      x = m_series.GetBoundsX(level, node);
    } else {
      // A gap at an end may stand anywhere: look inside.
      known = CPlotSeries::IsDrawable(m_points[first]) && CPlotSeries::IsDrawable(m_points[end - 1]);
      Include(x, m_points[end - 1].x);
    }
    if (end < m_points.size() && CPlotSeries::IsDrawable(m_points[end])) {  // the last leg ends there
      Include(x, m_points[end].x);
      Include(y, m_points[end].y);
    }
    return Meet(y, m_y) && (!known || Meet(x, m_x));
  }

  /// Narrows the part of a leg (from 0 to 1) to what lies between the bounds of one axis.
  static void Narrow(double from, double way, const Bounds& bounds, double& start, double& end) {
    if (way == 0.0) {
      if (from < bounds.lowest || from > bounds.highest) {
        start = 2.0;  // nothing is left
      }
      return;
    }
    const double a = (bounds.lowest - from) / way;
    const double b = (bounds.highest - from) / way;
    start = std::max(start, std::min(a, b));
    end = std::min(end, std::max(a, b));
  }

  bool LegPasses(PNT_2D_record const& from, PNT_2D_record const& to) const {
    if (!CPlotSeries::IsDrawable(from) || !CPlotSeries::IsDrawable(to)) {
      return false;
    }
    double start = 0.0;
    double end = 1.0;
    Narrow(from.x, to.x - from.x, m_x, start, end);
    Narrow(from.y, to.y - from.y, m_y, start, end);
    return start <= end;
  }

  const std::vector<PNT_2D_record>& m_points;
  const CPlotSeries& m_series;
  Bounds m_x{};
  Bounds m_y{};
};

}  // namespace

bool PassesThrough(const CPlotSeries& series, FRect const& part) {
  return series.GetLevels() > 0 && PassSearch(series, part).Visit(series.GetLevels() - 1, 0);
}

}  // namespace coregui
