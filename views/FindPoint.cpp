#include "views/FindPoint.h"

#include <algorithm>
#include <cmath>

namespace coregui {

namespace {

class NearestSearch {
 public:
  NearestSearch(const CPlotSeries& series, const CPlotMapping& mapping, CPoint at, int pixels)
      : m_series(series), m_mapping(mapping), m_at(at), m_best(static_cast<double>(pixels) * pixels) {}

  void Visit(std::size_t level, std::size_t node) {
    const std::size_t size = CPlotSeries::GetNodeSize(level);
    const std::size_t first = node * size;
    const std::size_t last = std::min(first + size, m_series.GetCount());
    if (!IsNear(level, node, first, last - 1)) {
      return;
    }
    if (level == 0) {
      for (std::size_t i = first; i < last; ++i) {
        Look(i);
      }
      return;
    }
    const std::size_t child = CPlotSeries::GetNodeSize(level - 1);
    for (std::size_t i = first; i < last; i += child) {
      Visit(level - 1, i / child);
    }
  }
  bool IsFound() const { return m_found; }
  std::size_t GetIndex() const { return m_index; }

 private:
  /// True when the node's bounds reach into the square around the pixel.
  bool IsNear(std::size_t level, std::size_t node, std::size_t first, std::size_t last) const {
    const CPlotSeries::Bounds& y = m_series.GetBoundsY(level, node);
    if (y.lowest > y.highest) {
      return false;
    }
    const PNT_2D_record& start = m_series.GetPoints()[first];
    const PNT_2D_record& end = m_series.GetPoints()[last];
    CPlotSeries::Bounds x{start.x, end.x};
    if (!m_series.IsMonotone()) {
      x = m_series.GetBoundsX(level, node);
    } else if (!CPlotSeries::IsDrawable(start) || !CPlotSeries::IsDrawable(end)) {
      return true;  // a gap stands at an end, anywhere: look inside
    }
    const PNT_2D_record a = m_mapping.UserToDevice({x.lowest, y.lowest});
    const PNT_2D_record b = m_mapping.UserToDevice({x.highest, y.highest});
    const double reach = std::sqrt(m_best) + 1.0;
    return std::min(a.x, b.x) - m_at.x <= reach && m_at.x - std::max(a.x, b.x) <= reach &&
           std::min(a.y, b.y) - m_at.y <= reach && m_at.y - std::max(a.y, b.y) <= reach;
  }

  void Look(std::size_t i) {
    const PNT_2D_record& p = m_series.GetPoints()[i];
    if (!CPlotSeries::IsDrawable(p)) {
      return;
    }
    const PNT_2D_record device = m_mapping.UserToDevice(p);
    const double dx = device.x - m_at.x;
    const double dy = device.y - m_at.y;
    const double distance = dx * dx + dy * dy;
    if (distance < m_best || (!m_found && distance == m_best)) {
      m_best = distance;
      m_index = i;
      m_found = true;
    }
  }

  const CPlotSeries& m_series;
  const CPlotMapping& m_mapping;
  const CPoint m_at;
  double m_best;  ///< squared distance to beat
  std::size_t m_index = 0;
  bool m_found = false;
};

}  // namespace

bool FindPoint(const CPlotSeries& series, const CPlotMapping& mapping, CPoint at, int pixels,
               std::size_t* index) {
  if (series.GetLevels() == 0) {
    return false;
  }
  NearestSearch search(series, mapping, at, pixels);
  search.Visit(series.GetLevels() - 1, 0);
  *index = search.GetIndex();
  return search.IsFound();
}

}  // namespace coregui
