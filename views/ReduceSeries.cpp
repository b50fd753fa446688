#include "views/ReduceSeries.h"

#include <algorithm>

#include "views/CPolylineReducer.h"
#include "views/CViewMapping.h"
#include "views/ColumnWalker.h"
#include "views/DeviceNumbers.h"

namespace coregui {

namespace {

/// Whole pixels, each a column and a row.
template <class Base>
struct PixelMapping {
  static constexpr int kColumnShift = 0;
  const Base& base;
  CPoint UserToWindow(PNT_2D_record const& p) const { return base.UserToWindow(p); }
};

/// Units of a place; the places are the columns and rows.
template <class Base>
struct PlaceMapping {
  static constexpr int kColumnShift = kPlaceShift;
  const Base& base;
  double units;  ///< in a pixel
  CPoint UserToWindow(PNT_2D_record const& p) const {
    const PNT_2D_record at = base.UserToDevice(p);
    return {TruncateToDevice(at.x * units + 0.5), TruncateToDevice(at.y * units + 0.5)};
  }
};

/// Gives the points of one polyline at a time. Where x turns back it walks the pyramid: a node that lies in
/// one pixel column or row, or wholly beyond one side, gives a few points; any other is opened.
template <class Mapping>
class SeriesWalker {
 public:
  SeriesWalker(const CPlotSeries& series, const Mapping& mapping, CPolylineSink& sink)
      : m_series(series),
        m_points(series.GetPoints().data()),
        m_mapping(mapping),
        m_visible(sink.GetVisible()),
        m_reducer(sink, Mapping::kColumnShift),
        m_columns(series, mapping, sink.GetVisible(), m_reducer) {}

  /// Draws the points from `begin` to before `end`, among which is no gap.
  void Draw(std::size_t begin, std::size_t end) {
    const CPoint last = PixelOf(end - 1);
    const std::size_t lastMoving = m_columns.EndOfMoving(begin, end, last);
    if (lastMoving == begin) {
      return;  // all on one pixel: nothing to draw
    }
    if (m_series.IsMonotone()) {
      m_columns.Walk(begin, lastMoving);
    } else {
      m_begin = begin;
      m_end = lastMoving;
      Visit(m_series.GetLevels() - 1, 0);
    }
    m_reducer.Finish(last);
  }

 private:
  /// The points of a node that are asked for, and the bounds of all its points.
  struct Node {
    std::size_t first;
    std::size_t last;  ///< included
    CPlotSeries::Bounds x;
    CPlotSeries::Bounds y;
  };

  CPoint PixelOf(std::size_t i) const { return m_mapping.UserToWindow(m_points[i]); }

  Node NodeAt(std::size_t level, std::size_t node, std::size_t begin, std::size_t end) const {
    const std::size_t size = CPlotSeries::GetNodeSize(level);
    const std::size_t start = node * size;
    const std::size_t stop = std::min(start + size, m_series.GetCount());
    Node at{std::max(start, begin), std::min(stop, end) - 1, {}, {}};
    at.y = m_series.GetBoundsY(level, node);
    at.x = m_series.IsMonotone() ? CPlotSeries::Bounds{m_points[at.first].x, m_points[at.last].x}
                                 : m_series.GetBoundsX(level, node);
    return at;
  }

  void Visit(std::size_t level, std::size_t index) {
    const Node node = NodeAt(level, index, m_begin, m_end);
    if (node.last - node.first >= 4) {
      const CPoint low = m_mapping.UserToWindow({node.x.lowest, node.y.lowest});
      const CPoint high = m_mapping.UserToWindow({node.x.highest, node.y.highest});
      if (IsHidden(low, high)) {
        m_reducer.Add(PixelOf(node.first));
        m_reducer.Add(PixelOf(node.last));
        return;
      }
      if (IsOne(low.x, high.x) || IsOne(low.y, high.y)) {
        AddNode(node);
        return;
      }
    }
    Open(level, node);
  }

  /// A node in one column or row: the first point, what is reached before the last stretch that stays on one
  /// pixel, the last point. In copy mode the way between them does not matter.
  void AddNode(const Node& node) {
    const CPoint last = PixelOf(node.last);
    m_reducer.Add(PixelOf(node.first));
    const std::size_t stay = m_columns.EndOfMoving(node.first, node.last + 1, last);
    if (stay > node.first) {
      const CPlotSeries::Bounds x = m_series.GetRangeX(node.first, stay);
      const CPlotSeries::Bounds y = m_series.GetRangeY(node.first, stay);
      const CPoint low = m_mapping.UserToWindow({x.lowest, y.lowest});
      const CPoint high = m_mapping.UserToWindow({x.highest, y.highest});
      // Not straight from an extreme to the last point on it, whose pixel the line leaves out.
      m_reducer.Add(last == high ? high : low);
      m_reducer.Add(last == high ? low : high);
    }
    m_reducer.Add(last);
  }

  void Open(std::size_t level, const Node& node) {
    if (level == 0) {
      for (std::size_t i = node.first; i <= node.last; ++i) {
        m_reducer.Add(PixelOf(i));
      }
      return;
    }
    const std::size_t size = CPlotSeries::GetNodeSize(level - 1);
    for (std::size_t child = node.first / size; child <= node.last / size; ++child) {
      Visit(level - 1, child);
    }
  }

  /// Whether two coordinates are of the same column or row.
  static bool IsOne(LONG a, LONG b) { return a >> Mapping::kColumnShift == b >> Mapping::kColumnShift; }

  bool IsHidden(CPoint a, CPoint b) const {
    return (a.x < m_visible.left && b.x < m_visible.left) ||
           (a.x > m_visible.right && b.x > m_visible.right) || (a.y < m_visible.top && b.y < m_visible.top) ||
           (a.y > m_visible.bottom && b.y > m_visible.bottom);
  }

  const CPlotSeries& m_series;
  const PNT_2D_record* m_points;
  const Mapping& m_mapping;
  const CRect m_visible;
  CPolylineReducer m_reducer;
  ColumnWalker<Mapping> m_columns;  ///< where x never turns back
  std::size_t m_begin = 0;
  std::size_t m_end = 0;
};

template <class Mapping>
void Reduce(const CPlotSeries& series, const Mapping& mapping, CPolylineSink& sink) {
  SeriesWalker<Mapping> walker(series, mapping, sink);
  std::size_t begin = series.FindPoint(0);
  while (begin < series.GetCount()) {
    const std::size_t end = series.FindGap(begin);
    walker.Draw(begin, end);
    begin = series.FindPoint(end);
  }
}

}  // namespace

void ReduceSeries(const CPlotSeries& series, const CPlotMapping& mapping, CPolylineSink& sink) {
  // The view's mapping is the one of the large drawings; known by its type, its arithmetic is inlined.
  if (const auto* view = dynamic_cast<const CViewMapping*>(&mapping)) {
    Reduce(series, PixelMapping<CViewMapping>{*view}, sink);
  } else {
    Reduce(series, PixelMapping<CPlotMapping>{mapping}, sink);
  }
}

void ReduceSeriesToPlaces(const CPlotSeries& series, const CPlotMapping& mapping, int places,
                          CPolylineSink& sink) {
  const auto units = static_cast<double>(places << kPlaceShift);
  if (const auto* view = dynamic_cast<const CViewMapping*>(&mapping)) {
    Reduce(series, PlaceMapping<CViewMapping>{*view, units}, sink);
  } else {
    Reduce(series, PlaceMapping<CPlotMapping>{mapping, units}, sink);
  }
}

}  // namespace coregui
