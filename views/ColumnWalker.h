#pragma once

#include <algorithm>

#include "views/CPlotSeries.h"
#include "views/CPolylineReducer.h"

namespace coregui {

/// Feeds a polyline whose x never turns back to a reducer, column by column: where a column ends is searched
/// for, and what its points reach is asked of the pyramid.
template <class Mapping>
class ColumnWalker {
 public:
  ColumnWalker(const CPlotSeries& series, const Mapping& mapping, CRect const& visible,
               CPolylineReducer& reducer)
      : m_series(series),
        m_points(series.GetPoints().data()),
        m_mapping(mapping),
        m_visible(visible),
        m_reducer(reducer) {}

  /// The points from `begin` to before `end`, one at least and no gap among them.
  void Walk(std::size_t begin, std::size_t end) {
    const bool rises = PixelOf(begin).x <= PixelOf(end - 1).x;
    std::size_t at = SkipHidden(begin, end, rises);
    while (at < end) {
      const CPoint first = PixelOf(at);
      if (rises ? first.x > m_visible.right : first.x < m_visible.left) {
        m_reducer.Add(first);  // where the line leaves; nothing behind it can be seen
        return;
      }
      const LONG column = ColumnOf(first);
      const std::size_t looked = m_length < kFew ? AddFew(at, end, column) : 0;
      at = looked > 0 && looked < kFew ? at + looked : AddColumn(at, looked, end, column);
    }
  }

  /// The end of the points before the last stretch that stays on the pixel `last`; `begin` when there are
  /// none. Where x turns back too.
  std::size_t EndOfMoving(std::size_t begin, std::size_t end, CPoint last) const {
    std::size_t i = end;
    while (i > begin) {
      std::size_t skip = 0;
      for (std::size_t level = 0; level < m_series.GetLevels(); ++level) {
        const std::size_t size = CPlotSeries::GetNodeSize(level);
        if (i % size != 0 || i - begin < size || !StaysOn(level, i / size - 1, last)) {
          break;
        }
        skip = size;
      }
      if (skip == 0) {
        if (PixelOf(i - 1) != last) {
          return i;
        }
        skip = 1;
      }
      i -= skip;
    }
    return begin;
  }

 private:
  static constexpr std::size_t kFew = 8;  ///< up to so many points of a column are looked at one by one
  static constexpr std::size_t kAhead = 2;

  static LONG ColumnOf(CPoint p) { return p.x >> Mapping::kColumnShift; }
  CPoint PixelOf(std::size_t i) const { return m_mapping.UserToWindow(m_points[i]); }

  /// The last point before the visible columns.
  std::size_t SkipHidden(std::size_t begin, std::size_t end, bool rises) const {
    const auto hidden = [&](PNT_2D_record const& p) {
      const LONG column = m_mapping.UserToWindow(p).x;
      return rises ? column < m_visible.left : column > m_visible.right;
    };
    const PNT_2D_record* seen = std::partition_point(m_points + begin, m_points + end, hidden);
    const auto first = static_cast<std::size_t>(seen - m_points);
    return first > begin ? first - 1 : begin;
  }

  /// Adds points one by one until the column ends or they are no longer few; returns how many.
  std::size_t AddFew(std::size_t at, std::size_t end, LONG column) {
    const std::size_t most = std::min(end - at, kFew);
    for (m_length = 0; m_length < most; ++m_length) {
      const CPoint p = PixelOf(at + m_length);
      if (ColumnOf(p) != column) {
        break;
      }
      m_reducer.Add(p);
    }
    return m_length;
  }

  /// Adds a column's points but for so many that were added already; returns the next one.
  std::size_t AddColumn(std::size_t at, std::size_t added, std::size_t end, LONG column) {
    const std::size_t next = EndOfColumn(at, end, column);
    m_length = next - at;
    m_series.PrefetchAround(next + kAhead * m_length);
    if (added < m_length) {
      const CPoint last = PixelOf(next - 1);
      m_reducer.AddRun(PixelOf(at + added), RowsBeforeStay(at + added, next, last), last);
    }
    return next;
  }

  CPolylineReducer::Rows RowsBeforeStay(std::size_t begin, std::size_t end, CPoint last) const {
    const CPolylineReducer::Rows rows = RowsOf(begin, end);
    if (rows.lowest < last.y && last.y < rows.highest) {
      return rows;  // wherever the stay begins
    }
    const std::size_t stay = EndOfMoving(begin, end, last);
    return stay == begin ? CPolylineReducer::kNoRow : RowsOf(begin, stay);
  }

  CPolylineReducer::Rows RowsOf(std::size_t begin, std::size_t end) const {
    const CPlotSeries::Bounds y = m_series.GetRangeY(begin, end);
    const LONG a = m_mapping.UserToWindow({m_points[begin].x, y.lowest}).y;
    const LONG b = m_mapping.UserToWindow({m_points[begin].x, y.highest}).y;
    return {std::min(a, b), std::max(a, b)};
  }

  bool StaysOn(std::size_t level, std::size_t node, CPoint pixel) const {
    const std::size_t first = node * CPlotSeries::GetNodeSize(level);
    const std::size_t last = std::min(first + CPlotSeries::GetNodeSize(level), m_series.GetCount()) - 1;
    const CPlotSeries::Bounds y = m_series.GetBoundsY(level, node);
    const CPlotSeries::Bounds x = m_series.IsMonotone()
                                      ? CPlotSeries::Bounds{m_points[first].x, m_points[last].x}
                                      : m_series.GetBoundsX(level, node);
    return m_mapping.UserToWindow({x.lowest, y.lowest}) == pixel &&
           m_mapping.UserToWindow({x.highest, y.highest}) == pixel;
  }

  /// The first point after `at` in another column. Columns are mostly about as long as the one before, so the
  /// search starts there and goes away from it in doubling steps.
  std::size_t EndOfColumn(std::size_t at, std::size_t end, LONG column) const {
    const auto isIn = [&](std::size_t i) { return ColumnOf(PixelOf(i)) == column; };
    std::size_t inside = at;
    std::size_t outside = end;
    const std::size_t guess = std::min(at + std::max<std::size_t>(m_length, 1), end);
    std::size_t step = 1;
    if (guess < end && isIn(guess)) {
      inside = guess;
      while (step < outside - inside && isIn(inside + step)) {
        inside += step;
        step *= 2;
      }
      outside = std::min(outside, inside + step);
    } else {
      outside = guess;
      while (step < outside - inside && !isIn(outside - step)) {
        outside -= step;
        step *= 2;
      }
      inside = outside - inside > step ? outside - step : inside;
    }
    const PNT_2D_record* edge = std::partition_point(
        m_points + inside + 1, m_points + outside,
        [&](PNT_2D_record const& p) { return ColumnOf(m_mapping.UserToWindow(p)) == column; });
    return static_cast<std::size_t>(edge - m_points);
  }

  const CPlotSeries& m_series;
  const PNT_2D_record* m_points;
  const Mapping& m_mapping;
  const CRect m_visible;
  CPolylineReducer& m_reducer;
  std::size_t m_length = 0;  ///< points of the column before
};

}  // namespace coregui
