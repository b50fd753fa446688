#include "views/ReduceDashes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "views/DeviceNumbers.h"

namespace coregui {

namespace {

constexpr double kPixelsOfPart = 2048.0;

class DashReducer {
 public:
  DashReducer(const CPlotSeries& series, const CPlotMapping& mapping, CRect const& visible,
              std::size_t mostPoints)
      : m_series(series),
        m_mapping(mapping),
        m_visible(visible),
        m_mostPoints(mostPoints),
        m_line{CPolylineSink(CPolylineSink::Everywhere()), CPolylineSink(visible)} {}

  DashedLine Take() {
    const std::size_t part = PointsOfPart();
    for (std::size_t begin = m_series.FindPoint(0); begin < m_series.GetCount();) {
      const std::size_t gap = m_series.FindGap(begin);
      for (std::size_t first = begin; first + 1 < gap;) {
        const std::size_t last = std::min(first + part, gap - 1);
        if (IsVisible(first, last)) {
          AddPart(first, last);
        }
        first = last;
      }
      begin = m_series.FindPoint(gap);
    }
    return std::move(m_line);
  }

 private:
  CPoint PixelOf(std::size_t i) const { return m_mapping.UserToWindow(m_series.GetPoints()[i]); }

  /// How many points lie between two places at which the dashes begin anew: a power of two.
  std::size_t PointsOfPart() const {
    FRect bounds;
    if (!m_series.GetBounds(&bounds)) {
      return 1;
    }
    const PNT_2D_record a = m_mapping.UserToDevice(bounds.TopLeft());
    const PNT_2D_record b = m_mapping.UserToDevice(bounds.BottomRight());
    const double height = m_series.IsMonotone() ? 1.0 : std::fabs(b.y - a.y);
    const double pixels = std::max({std::fabs(b.x - a.x), height, 1.0});
    std::size_t part = 1;
    while (part < m_series.GetCount() &&
           static_cast<double>(part) * pixels < kPixelsOfPart * static_cast<double>(m_series.GetCount())) {
      part *= 2;
    }
    return part;
  }

  bool IsVisible(std::size_t first, std::size_t last) const {
    const std::vector<PNT_2D_record>& points = m_series.GetPoints();
    const CPlotSeries::Bounds y = m_series.GetRangeY(first, last + 1);
    const CPlotSeries::Bounds x = m_series.IsMonotone() ? CPlotSeries::Bounds{points[first].x, points[last].x}
                                                        : m_series.GetRangeX(first, last + 1);
    const CPoint a = m_mapping.UserToWindow({x.lowest, y.lowest});
    const CPoint b = m_mapping.UserToWindow({x.highest, y.highest});
    return std::max(a.x, b.x) >= m_visible.left && std::min(a.x, b.x) <= m_visible.right &&
           std::max(a.y, b.y) >= m_visible.top && std::min(a.y, b.y) <= m_visible.bottom;
  }

  void AddPart(std::size_t first, std::size_t last) {
    for (std::size_t i = first; i <= last;) {
      i = last - first < m_mostPoints ? AddPoint(i) : AddColumn(i, last);
    }
    m_line.dashes.Break();
  }

  std::size_t AddPoint(std::size_t i) {
    m_line.dashes.Add(PixelOf(i));
    return i + 1;
  }

  /// Adds the stretch from a point on that stays in its column; returns the point behind it.
  std::size_t AddColumn(std::size_t first, std::size_t last) {
    const CPoint from = PixelOf(first);
    const auto begin = m_series.GetPoints().begin();
    const auto isIn = [&](PNT_2D_record const& p) { return m_mapping.UserToWindow(p).x == from.x; };
    const auto start = begin + static_cast<std::ptrdiff_t>(first);
    const auto stop = begin + static_cast<std::ptrdiff_t>(last) + 1;
    const auto end =
        m_series.IsMonotone() ? std::partition_point(start, stop, isIn) : std::find_if_not(start, stop, isIn);
    const auto next = static_cast<std::size_t>(end - begin);
    const CPoint to = PixelOf(next - 1);
    const CPlotSeries::Bounds y = m_series.GetRangeY(first, next);
    const LONG a = m_mapping.UserToWindow({start->x, y.lowest}).y;
    const LONG b = m_mapping.UserToWindow({start->x, y.highest}).y;
    const auto [top, bottom] = std::minmax(a, b);
    if (top < std::min(from.y, to.y) || bottom > std::max(from.y, to.y)) {
      m_line.solid.Add({from.x, top});
      m_line.solid.Add({from.x, SaturateToDevice(std::int64_t{bottom} + 1)});  // a line leaves out its end
      m_line.solid.Break();
    }
    m_line.dashes.Add(from);
    m_line.dashes.Add(to);
    return next;
  }

  const CPlotSeries& m_series;
  const CPlotMapping& m_mapping;
  const CRect m_visible;
  const std::size_t m_mostPoints;
  DashedLine m_line;
};

}  // namespace

DashedLine ReduceDashes(const CPlotSeries& series, const CPlotMapping& mapping, CRect const& visible,
                        std::size_t mostPoints) {
  return DashReducer(series, mapping, visible, mostPoints).Take();
}

}  // namespace coregui
