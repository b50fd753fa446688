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
  // The shortest way, but never straight from an extreme to the last point on it: the pixel that a line ends
  // on is not filled, and the extreme's is.
  const bool lowestFirst = m_last == m_rows.lowest || (m_last != m_rows.highest && m_first.y <= m_last);
  m_sink.Add({m_first.x, lowestFirst ? m_rows.lowest : m_rows.highest});
  m_sink.Add({m_first.x, lowestFirst ? m_rows.highest : m_rows.lowest});
  m_sink.Add({m_first.x, m_last});
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
  const bool inside = m_oneColumn && last.x == m_first.x;
  const CRect rows(m_first.x, std::min({m_rows.lowest, m_last, last.y}), m_first.x,
                   std::max({m_rows.highest, m_last, last.y}));
  if (!inside || !IsCovered(rows)) {
    Flush();
    m_sink.Add(last);
  }
  m_sink.Break();
  m_open = false;
  m_oneColumn = true;
}

}  // namespace coregui
