#include "views/CPolylineReducer.h"

namespace coregui {

void CPolylineReducer::Start(CPoint p) {
  if (m_open) {
    Flush();
    m_oneColumn = false;
  }
  m_open = true;
  m_first = p;
}

void CPolylineReducer::Flush() {
  m_sink.Add(m_first);
  if (m_rows.IsEmpty()) {
    return;  // all on one pixel
  }
  const auto [low, high] = std::minmax(m_first.y, m_last.y);
  if (m_columnShift > 0 && m_rows.lowest >= low && m_rows.highest <= high) {
    m_sink.Add(m_last);  // one way from end to end
    return;
  }
  // The shortest way, but never straight from an extreme to the last point on it: the pixel that a line ends
  // on is not filled, and the extreme's is.
  const bool lowestFirst = m_last.y == m_rows.lowest || (m_last.y != m_rows.highest && m_first.y <= m_last.y);
  m_sink.Add({m_first.x, lowestFirst ? m_rows.lowest : m_rows.highest});
  m_sink.Add({m_first.x, lowestFirst ? m_rows.highest : m_rows.lowest});
  m_sink.Add({m_first.x, m_last.y});
}

bool CPolylineReducer::IsCovered(CRect const& rows) {
  if (rows.left != m_covered.left || rows.top >= m_covered.bottom || rows.bottom <= m_covered.top) {
    m_covered = rows;
    return false;
  }
  const bool covered = rows.top > m_covered.top && rows.bottom < m_covered.bottom;
  m_covered.top = std::min(m_covered.top, rows.top);
  m_covered.bottom = std::max(m_covered.bottom, rows.bottom);
  return covered;
}

void CPolylineReducer::Finish(CPoint last) {
  const bool inside = m_oneColumn && ColumnOf(last) == ColumnOf(m_first);
  const LONG column = ColumnOf(m_first);
  const CRect rows(column, std::min({m_rows.lowest, m_last.y, last.y}), column,
                   std::max({m_rows.highest, m_last.y, last.y}));
  if (!inside || !IsCovered(rows)) {
    Flush();
    m_sink.Add(last);
  }
  m_sink.Break();
  m_open = false;
  m_oneColumn = true;
}

}  // namespace coregui
