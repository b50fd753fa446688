#include "grid/data/RankInsertion.h"

#include <algorithm>

namespace coregui {

RankInsertion::RankInsertion(const SortRanks& ranks, KeyCompare& compare)
    : m_ranks(ranks),
      m_compare(compare),
      m_run(std::max<std::size_t>(ranks.KindCount(), 1)),
      m_limits(std::max<std::size_t>(ranks.KindCount(), 1), RankTree::NEVER),
      m_scratch(m_limits.size(), RankTree::LOWEST) {}

void RankInsertion::MoveHint(std::uint32_t position) {
  m_hint = position;
  m_hintRow = m_run.At(position);
}

std::uint32_t RankInsertion::ChooseStart() {
  const std::uint32_t hint = m_hint;
  if (m_compare.First(m_hintRow) < 1) {
    if (--m_count == -PATIENCE) {
      if (hint > 0) MoveHint(hint - 1);
      m_count = 0;
    }
    return 0;
  }
  if (++m_count == PATIENCE) {
    if (hint + 1 < m_run.Size()) MoveHint(hint + 1);
    m_count = 0;
  }
  return hint;
}

bool RankInsertion::GoesBefore(std::uint32_t position) {
  m_ranks.GetRanks(m_run.At(position), m_scratch);
  for (std::size_t kind = 0; kind < m_limits.size(); ++kind) {
    if (m_scratch[kind] > m_limits[kind]) return true;
  }
  return false;
}

/// The scan looks at the start and then at every hundredth row. The first of them that the new row goes
/// before ends the leaps, and the place is the first such row behind the last leap's beginning; so is it when
/// the next leap would pass the end. No row looked at before that one turned the scan: so the first row that
/// the new one goes before, counted from a landing that did not turn it, is the place when the next landing
/// turns it or passes the end. Else the scan has gone on to that landing, over whatever lay between.
std::uint32_t RankInsertion::FindPlace(std::uint32_t start) {
  for (std::uint32_t from = start;;) {
    const std::uint32_t next = m_run.FindAbove(from, m_limits);
    const std::uint32_t leaps = (next - start + LEAP - 1) / LEAP;
    const std::uint64_t landing = start + static_cast<std::uint64_t>(leaps) * LEAP;
    if (landing >= m_run.Size() || landing == next) return next;
    from = static_cast<std::uint32_t>(landing);
    if (GoesBefore(from)) return next;
  }
}

std::vector<std::uint32_t> RankInsertion::Sort(std::uint32_t count) {
  for (std::uint32_t row = 0; row < count; ++row) {
    m_compare.Take(row);
    m_ranks.GetLimits(row, m_limits);
    const std::uint32_t place = row == 0 ? 0 : FindPlace(ChooseStart());
    m_ranks.GetRanks(row, m_scratch);
    m_run.Insert(place, row, m_scratch);
    // The hint stays on its row.
    if (row != 0 && place <= m_hint) ++m_hint;
  }
  return m_run.Flatten();
}

}  // namespace coregui
