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
  // The extreme that is nearer to the first point than to the last one: the shortest way.
  const bool rises = m_first.y <= m_last;
  m_sink.Add({m_first.x, rises ? m_lowest : m_highest});
  m_sink.Add({m_first.x, rises ? m_highest : m_lowest});
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
  const CRect rows(m_first.x, std::min(m_lowest, last.y), m_first.x, std::max(m_highest, last.y));
  if (!inside || !IsCovered(rows)) {
    Flush();
    m_sink.Add(last);
  }
  m_sink.Break();
  m_open = false;
  m_oneColumn = true;
}

}  // namespace coregui
