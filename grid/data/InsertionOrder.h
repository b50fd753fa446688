#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "grid/data/WorkWatch.h"

namespace coregui {

/// A sequence that grows by insertion anywhere, in blocks, so that an insertion moves little and steps are
/// short.
class BlockSequence {
 public:
  /// A block and an index in it; one past the last index of the last block is the end.
  struct Place {
    std::size_t block = 0;
    std::size_t index = 0;
  };
  std::uint32_t At(const Place& place) const { return m_blocks[place.block][place.index]; }
  /// Moves `count` on; false, and unchanged, when that would pass the end.
  bool Advance(Place& place, std::size_t count) const;
  /// Moves back by one; false at the head.
  bool Retreat(Place& place) const;
  /// Inserts before `place`; `kept` goes on to mean the same item.
  void Insert(Place place, std::uint32_t item, Place& kept);
  std::vector<std::uint32_t> Flatten() const;

 private:
  static constexpr std::size_t BLOCK = 512;
  std::vector<std::vector<std::uint32_t>> m_blocks;
};

/// The required insertion of rows into a sorted run, in the very steps that decide the order where
/// comparisons contradict each other. `Compare` gives the result of comparing a new row with one of the run,
/// key by key.
///
/// Why another algorithm may stand in for it when comparisons are consistent. Let `before` say that the first
/// key that differs puts the new row before a row of the run. If the comparisons come from an order in which
/// any two rows compare, the run is sorted in it, and `before` is false for a first part of the run and true
/// for the rest. The new row goes where it turns true. The hint row gave a first key below the new one, so it
/// and all rows ahead of it lie in the first part, and starting behind the head skips nothing. A leap lands
/// either in the first part, and then so do all rows it passed over, or in the rest, and then the place lies
/// between the row leapt from and the landing, where the single steps find it. So hint and leaps change the
/// cost and not the place, which is behind all rows that compare below or equal: a stable sort.
template <typename Compare>
class InsertionOrder {
 public:
  explicit InsertionOrder(Compare& compare) : m_compare(compare) {}

  /// The order of the rows 0 to count - 1; no order of all when `watch` gives up.
  std::vector<std::uint32_t> Sort(std::uint32_t count, WorkWatch& watch) {
    for (std::uint32_t row = 0; row < count && watch.GoesOn(); ++row) {
      if (row % ROWS_UNASKED == 0) watch.GoesOn(static_cast<double>(row) / count);
      m_compare.Take(row);
      if (row == 0) {
        Place none;
        m_run.Insert({}, row, none);
        m_hint = {};
        continue;
      }
      const Place place = FindPlace(ChooseStart());
      m_run.Insert(place, row, m_hint);
    }
    return m_run.Flatten();
  }

 private:
  static constexpr std::size_t LEAP = 100;
  static constexpr int PATIENCE = 2;
  static constexpr std::uint32_t ROWS_UNASKED = 16;
  using Place = BlockSequence::Place;

  Place ChooseStart() {
    const Place hint = m_hint;
    if (m_compare.First(m_run.At(m_hint)) < 1) {
      if (--m_count == -PATIENCE) {
        m_run.Retreat(m_hint);
        m_count = 0;
      }
      return {};
    }
    if (++m_count == PATIENCE) {
      m_run.Advance(m_hint, 1);
      m_count = 0;
    }
    return hint;
  }

  Place FindPlace(Place at) {
    bool leaping = true;
    Place leaptFrom = at;
    bool hasLeapt = false;
    for (;;) {
      if (m_compare.All(m_run.At(at)) < 0) {
        if (!hasLeapt || !leaping) return at;
        at = leaptFrom;
        leaping = false;
      } else if (leaping) {
        leaptFrom = at;
        hasLeapt = true;
        if (m_run.Advance(at, LEAP)) continue;
        leaping = false;
      }
      if (!m_run.Advance(at, 1)) return End(at);
    }
  }

  /// Behind the last row.
  static Place End(Place last) { return {last.block, last.index + 1}; }

  Compare& m_compare;
  BlockSequence m_run;
  Place m_hint;
  int m_count = 0;
};

}  // namespace coregui
