#include "grid/display/CHintedRow.h"

#include <algorithm>

namespace coregui {

void CHintedRow::Enter(long row) {
  m_row = row;
  Collect();
}

void CHintedRow::Collect() {
  const std::vector<CGridDrawHint::Range>& ranges = m_hints.GetRanges();
  m_picked.clear();
  m_seen = ranges.size();
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    // The first range is the one that can be widened in place.
    if (i == 0 || (ranges[i].startRow <= m_row && m_row <= ranges[i].endRow)) m_picked.push_back(i);
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

}  // namespace coregui
