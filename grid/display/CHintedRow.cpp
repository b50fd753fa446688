#include "grid/display/CHintedRow.h"

#include <algorithm>

namespace coregui {

void CHintedRow::Enter(long row) {
  m_row = row;
  m_picked.clear();
  m_seen = 0;
  Collect();
}

/// Picks from the ranges that came since the last time.
void CHintedRow::Collect() {
  const std::vector<CGridDrawHint::Range>& ranges = m_hints.GetRanges();
  if (ranges.size() < m_seen) {  // a handler cleared them
    m_picked.clear();
    m_seen = 0;
  }
  for (; m_seen < ranges.size(); ++m_seen) {
    // The first range is the one that can be widened in place.
    const CGridDrawHint::Range& range = ranges[m_seen];
    if (m_seen == 0 || (range.startRow <= m_row && m_row <= range.endRow)) m_picked.push_back(m_seen);
  }
}

bool CHintedRow::IsEmpty() {
  if (m_hints.GetRanges().size() != m_seen) Collect();
  return std::none_of(m_picked.begin(), m_picked.end(), [this](std::size_t i) {
    const CGridDrawHint::Range& range = m_hints.GetRanges()[i];
    return range.startRow <= m_row && m_row <= range.endRow;
  });
}

bool CHintedRow::IsInvalid(int col) {
  const std::vector<CGridDrawHint::Range>& ranges = m_hints.GetRanges();
  if (ranges.size() != m_seen) Collect();
  return std::any_of(m_picked.begin(), m_picked.end(),
                     [&](std::size_t i) { return ranges[i].Contains(col, m_row); }) &&
         m_hints.IsInBox(col, m_row);
}

bool CHintedRow::Touches(int from, int to) const {
  return from <= to && std::any_of(m_picked.begin(), m_picked.end(), [&](std::size_t i) {
           const CGridDrawHint::Range& range = m_hints.GetRanges()[i];
           return range.startCol <= to && range.endCol >= from && range.startRow <= m_row &&
                  m_row <= range.endRow;
         });
}

}  // namespace coregui
