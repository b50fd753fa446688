#include "grid/data/RankInsertion.h"

#include <algorithm>

namespace coregui {

RankInsertion::RankInsertion(const SortRanks& ranks, KeyCompare& compare)
    : m_ranks(ranks),
      m_compare(compare),
      m_run(std::max<std::size_t>(ranks.KindCount(), 1)),
      m_limits(std::max<std::size_t>(ranks.KindCount(), 1), RankTree::NEVER),
      m_own(m_limits.size(), RankTree::LOWEST) {}

void RankInsertion::MoveHint(std::uint32_t position) {
  m_hint.position = position;
  m_hint.row = m_run.At(position);
}

std::uint32_t RankInsertion::ChooseStart() {
  const std::uint32_t hint = m_hint.position;
  if (m_compare.First(m_hint.row) < 1) {
    if (--m_hint.count == -PATIENCE) {
      if (hint > 0) MoveHint(hint - 1);
      m_hint.count = 0;
    }
    return 0;
  }
  if (++m_hint.count == PATIENCE) {
    if (hint + 1 < m_run.Size()) MoveHint(hint + 1);
    m_hint.count = 0;
  }
  return hint;
}

/// The scan looks at the start and then at every hundredth row. The first of them that the new row goes
/// before ends the leaps, and the place is the first such row behind the last leap's beginning; so is it when
/// the next leap would pass the end. No row looked at before that one turned the scan: so the first row that
/// the new one goes before, counted from a landing that did not turn it, is the place when the next landing
/// turns it or passes the end. Else the scan has gone on to that landing, over whatever lay between.
std::uint32_t RankInsertion::FindPlace(std::uint32_t start) {
  std::uint32_t next = m_run.FindAbove(start, m_limits);
  for (;;) {
    const std::uint64_t leaps = (static_cast<std::uint64_t>(next) - start + LEAP - 1) / LEAP;
    const std::uint64_t landing = start + leaps * LEAP;
    if (landing >= m_run.Size() || landing == next) return next;
    const std::uint32_t beyond = m_run.FindAbove(static_cast<std::uint32_t>(landing), m_limits);
    if (beyond == landing) return next;
    next = beyond;
  }
}

/// Inserts the row that was taken; tells whether it went to the end.
bool RankInsertion::InsertOne(std::uint32_t row) {
  const std::uint32_t place = FindPlace(ChooseStart());
  const bool appended = place == m_run.Size();
  m_run.Insert(place, {row, 1}, m_own);
  // The hint stays on its row.
  if (place <= m_hint.position) ++m_hint.position;
  return appended;
}

/// How many of `count` rows take the same place, known without their steps: 0 when it is not known.
///
/// The hint stands among rows like the new ones, with one behind it at least. Each scan then starts at the
/// hint, which advances by every second row. Where no row behind turns the scan, the place is the end of all,
/// as long as the hint stays among its like. Where the next other rows turn it, as many as a leap passes, or
/// all up to the end, every leap ends among them, and the place is before them; the like rows grow by that
/// faster than the hint advances.
std::uint32_t RankInsertion::FindLikeSteps(std::uint32_t row, std::uint32_t count,
                                           std::uint32_t& place) const {
  if (m_hint.row != row) return 0;
  const std::uint32_t like = m_run.EntryAt(m_hint.position).count;
  if (like == 1) return 0;
  const std::uint32_t end = m_hint.position + like;
  place = m_run.FindAbove(end, m_limits);
  if (place == m_run.Size() && place != end) {
    const std::int64_t within = static_cast<std::int64_t>(like - 1) * PATIENCE - m_hint.count;
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(within, 0, count));
  }
  if (place != end) return 0;
  const std::uint64_t known = std::min<std::uint64_t>(static_cast<std::uint64_t>(end) + LEAP, m_run.Size());
  for (std::uint32_t at = end; at < known; ++at) {
    if (m_run.FindAbove(at, m_limits) != at) return 0;
  }
  return count;
}

/// Whether all further like rows go to the end: four did, and the scan of the next one begins as that of the
/// first of them did. What it lands on has not changed, and behind that come only rows like it.
bool RankInsertion::Recurs(Cycle& cycle, bool appended) const {
  cycle.onlyAppends = cycle.onlyAppends && appended;
  if (++cycle.steps < 2 * PATIENCE) return false;
  const bool recurs = cycle.onlyAppends && cycle.begin == m_hint;
  cycle = {m_hint};
  return recurs;
}

void RankInsertion::InsertMany(std::uint32_t row, std::uint32_t count) {
  Cycle cycle{m_hint};
  while (count > 0) {
    std::uint32_t place = 0;
    if (const std::uint32_t like = FindLikeSteps(row, count, place); like > 0) {
      const auto steps = static_cast<std::uint32_t>(m_hint.count + static_cast<std::int64_t>(like));
      m_run.Insert(place, {row, like}, m_own);
      m_hint.position += steps / PATIENCE;
      m_hint.count = static_cast<int>(steps % PATIENCE);
      count -= like;
      cycle = {m_hint};
      continue;
    }
    --count;
    if (!Recurs(cycle, InsertOne(row))) continue;
    const std::uint32_t whole = count / (2 * PATIENCE) * (2 * PATIENCE);
    if (whole != 0) m_run.Insert(m_run.Size(), {row, whole}, m_own);
    count -= whole;
  }
}

std::vector<RankedRows> RankInsertion::Sort(const std::vector<RankedRows>& rows) {
  for (const RankedRows& next : rows) {
    m_compare.Take(next.row);
    m_ranks.GetLimits(next.row, m_limits);
    m_ranks.GetRanks(next.row, m_own);
    std::uint32_t left = next.count;
    if (m_run.Size() == 0) {
      m_run.Insert(0, {next.row, 1}, m_own);
      m_hint = {0, next.row, 0};
      --left;
    }
    if (left == 1) {
      InsertOne(next.row);
    } else {
      InsertMany(next.row, left);
    }
  }
  return m_run.Flatten();
}

}  // namespace coregui
