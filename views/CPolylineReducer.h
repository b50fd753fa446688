#pragma once

#include <algorithm>
#include <limits>

#include "views/CPolylineSink.h"

namespace coregui {

/// Merges the consecutive points of a polyline that fall into one pixel column, without changing its picture.
///
/// Inside one column the line covers the pixels from the run's lowest to its highest, whatever it does
/// between them. So a run is drawn as first, lowest, highest, last point: the same pixels, and the same
/// segments to the columns before and after. Nothing is assumed about the order of x.
///
/// A polyline leaves out its very last pixel unless it was there before. Whoever feeds this class says which
/// point comes last and leaves out those just before it on the same pixel; the rest follows. So does each
/// run, although the next segment starts there: where a pixel has several dots, a slanted segment need not
/// fill them all. That is why a run's last stretch on one pixel is told from what comes before it.
class COREGUI_API CPolylineReducer {
 public:
  /// With a `columnShift` above 0 a column is 1 << columnShift wide, and a run is moved across it: to its
  /// first point, or onto the straight way to its last one where it reaches no further up or down.
  explicit CPolylineReducer(CPolylineSink& sink, int columnShift = 0)
      : m_sink(sink), m_columnShift(columnShift) {}

  void Add(CPoint p) { AddRun(p, kNoRow, p); }
  /// Consecutive points in one column at once: the first; the rows of those before the last stretch that
  /// stays on the last one's pixel (kNoRow when there are none); the last.
  struct Rows {
    LONG lowest;
    LONG highest;
    bool IsEmpty() const { return lowest > highest; }
  };
  static constexpr Rows kNoRow{std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::min()};
  void AddRun(CPoint first, Rows rows, CPoint last) {
    if (!m_open || ColumnOf(first) != ColumnOf(m_first)) {
      Start(first);
      m_rows = rows;
    } else if (!rows.IsEmpty() || last != m_last) {  // it leaves the pixel where it stood
      m_rows.lowest = std::min({m_rows.lowest, m_last.y, rows.lowest});
      m_rows.highest = std::max({m_rows.highest, m_last.y, rows.highest});
    }
    m_last = last;
  }
  /// Ends the polyline with its last point, which must be on another pixel than the one added before.
  void Finish(CPoint last);

 private:
  LONG ColumnOf(CPoint p) const { return p.x >> m_columnShift; }
  void Start(CPoint p);
  void Flush();
  /// Many short lines in one column (gaps) need no more than their union: true when `rows` are drawn already.
  bool IsCovered(CRect const& rows);

  CPolylineSink& m_sink;
  const int m_columnShift;
  bool m_open = false;
  bool m_oneColumn = true;  ///< the polyline at hand has not left its first column
  CPoint m_first;
  Rows m_rows = kNoRow;  ///< that are filled: a line leaves out the pixel that it ends on
  CPoint m_last;
  CRect m_covered;  ///< rows between `top` and `bottom` of column `left`, drawn by overlapping polylines
};

}  // namespace coregui
