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

/// Inserts the row that was taken; tells where.
std::uint32_t RankInsertion::InsertOne(std::uint32_t row) {
  const std::uint32_t place = FindPlace(ChooseStart());
  m_run.Insert(place, {row, 1}, m_own);
  // The hint stays on its row.
  if (place <= m_hint.position) ++m_hint.position;
  return place;
}

/// Whether the rows from the position on turn the scan, as many as a leap passes, or all up to the end.
bool RankInsertion::TurnsAllBehind(std::uint32_t position) const {
  const std::uint64_t known =
      std::min<std::uint64_t>(static_cast<std::uint64_t>(position) + LEAP, m_run.Size());
  for (std::uint32_t at = position; at < known; ++at) {
    if (m_run.FindAbove(at, m_limits) != at) return false;
  }
  return true;
}

/// How many of `count` rows take the same place, known without their steps: 0 when it is not known.
///
/// The hint stands among rows like the new ones, with one behind it at least. Each scan then starts at the
/// hint, which advances by every second row. Where the next rows that turn the scan are as many as a leap
/// passes, or all up to the end, or where there are none, every leap ends there, and the place is before
/// them, as long as the hint stays among its like. It does for ever when they grow there, faster than it
/// advances.
std::uint32_t RankInsertion::FindLikeSteps(std::uint32_t row, std::uint32_t count,
                                           std::uint32_t& place) const {
  if (m_hint.row != row) return 0;
  const std::uint32_t like = m_run.EntryAt(m_hint.position).count;
  if (like == 1) return 0;
  const std::uint32_t end = m_hint.position + like;
  place = m_run.FindAbove(end, m_limits);
  if (!TurnsAllBehind(place)) return 0;
  if (place == end) return count;
  const std::int64_t within = static_cast<std::int64_t>(like - 1) * PATIENCE - m_hint.count;
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(within, 0, count));
}

/// Goes on as the last CYCLE like rows did, where that is certain, and tells for how many rows.
///
/// The scans began at the same rows. Then all rows went to the end: what the scans landed on has not changed,
/// and behind it come only rows like them. Or all went before the same row, where every leap ends.
std::uint32_t RankInsertion::RepeatCycle(const Cycle& cycle, std::uint32_t row, std::uint32_t count) {
  const std::uint32_t cycles = count / CYCLE;
  const std::uint32_t next = m_run.FindAbove(m_hint.position, m_limits);
  std::uint32_t place = m_run.Size();
  const bool advanced = m_hint.row == row && cycle.begin.row == row && m_hint.count == cycle.begin.count &&
                        m_hint.position == cycle.begin.position + CYCLE / PATIENCE;
  const bool halfBefore =
      cycle.appends == CYCLE / 2 && cycle.inner[0] + 2 == next && cycle.inner[1] + 1 == next;
  // Near the end a scan stops for want of rows to leap over, and there come more.
  if (advanced && halfBefore && m_run.Size() - next > 2 * LEAP) {
    return RepeatAdvance(row, cycles, next);
  }
  if (cycle.begin != m_hint || cycles == 0) return 0;
  if (cycle.appends == 0) {
    place = cycle.inner[0] + CYCLE;
    for (std::uint32_t i = 0; i < CYCLE; ++i) {
      if (cycle.inner[i] != cycle.inner[0] + i) return 0;
    }
    if (!TurnsAllBehind(place)) return 0;
  } else if (cycle.appends != CYCLE) {
    return 0;
  }
  m_run.Insert(place, {row, cycles * static_cast<std::uint32_t>(CYCLE)}, m_own);
  return cycles * CYCLE;
}

/// The hint advances among rows like the new ones. Of two scans that begin there one leaps onto the row
/// `next` that turns it, and puts the new row before; the other passes all. So hint and row advance together,
/// and the leaps land the same way again, as long as the hint stays among its like.
std::uint32_t RankInsertion::RepeatAdvance(std::uint32_t row, std::uint32_t cycles, std::uint32_t next) {
  const std::uint32_t like = m_run.EntryAt(m_hint.position).count;
  if (m_hint.position + like != next) cycles = std::min(cycles, (like - 1) / 2);
  if (cycles == 0) return 0;
  m_run.Insert(next, {row, 2 * cycles}, m_own);
  m_run.Insert(m_run.Size(), {row, 2 * cycles}, m_own);
  m_hint.position += 2 * cycles;
  return cycles * CYCLE;
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
    const std::uint32_t end = m_run.Size();
    --count;
    if (const std::uint32_t at = InsertOne(row); at == end) {
      ++cycle.appends;
    } else {
      cycle.inner[cycle.steps - cycle.appends] = at;
    }
    if (++cycle.steps < CYCLE) continue;
    count -= RepeatCycle(cycle, row, count);
    cycle = {m_hint};
  }
}

std::vector<RankedRows> RankInsertion::Sort(const std::vector<RankedRows>& rows, WorkWatch& watch) {
  constexpr std::size_t unasked = 1024;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i % unasked == 0 && !watch.GoesOn(static_cast<double>(i) / static_cast<double>(rows.size()))) break;
    const RankedRows& next = rows[i];
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
