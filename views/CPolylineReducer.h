#pragma once

#include "views/CPolylineSink.h"

namespace coregui {

/// Merges the consecutive points of a polyline that fall into one pixel column, without changing its picture.
///
/// Inside one column the line covers the pixels from the run's lowest to its highest, whatever it does
/// between them. So a run is drawn as first, lowest, highest, last point: the same pixels, and the same
/// segments to the columns before and after. Nothing is assumed about the order of x.
///
/// A polyline leaves out its very last pixel unless it was there before. Whoever feeds this class says which
/// point comes last and leaves out those just before it on the same pixel; the rest follows.
class COREGUI_API CPolylineReducer {
 public:
  explicit CPolylineReducer(CPolylineSink& sink) : m_sink(sink) {}

  void Add(CPoint p) { AddRun(p, p.y, p.y, p.y); }
  /// Consecutive points in one column at once: the first, the rows that they reach, the last one's row.
  void AddRun(CPoint first, LONG lowest, LONG highest, LONG last) {
    if (m_open && first.x == m_first.x) {
      m_lowest = std::min(m_lowest, lowest);
      m_highest = std::max(m_highest, highest);
    } else {
      Start(first);
      m_lowest = lowest;
      m_highest = highest;
    }
    m_last = last;
  }
  /// Ends the polyline with its last point, which must be on another pixel than the one added before.
  void Finish(CPoint last);

 private:
  void Start(CPoint p);
  void Flush();
  /// Many short lines in one column (gaps) need no more than their union: true when `rows` are drawn already.
  bool IsCovered(CRect const& rows);

  CPolylineSink& m_sink;
  bool m_open = false;
  bool m_oneColumn = true;  ///< the polyline at hand has not left its first column
  CPoint m_first;
  LONG m_lowest = 0;
  LONG m_highest = 0;
  LONG m_last = 0;
  CRect m_covered;  ///< rows between `top` and `bottom` of column `left`, drawn by overlapping polylines
};

}  // namespace coregui
