#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "grid/data/KeyCompare.h"
#include "grid/data/RankTree.h"
#include "grid/data/SortRanks.h"
#include "grid/data/WorkWatch.h"

namespace coregui {

/// The outcome of the required insertion (InsertionOrder) for the standard comparison, without its steps.
/// Where blanks, texts and numbers stand together the run is not sorted in any one order, so the place of a
/// new row depends on where the scan begins and on which rows the leaps land; both are followed here, and
/// what lies between is passed over by rank.
///
/// Many rows without keys, as they lie before a row far out, are inserted one at a time only until it is
/// known what the next ones do; those then go in at once.
class RankInsertion {
 public:
  /// `ranks` are exact; `compare` compares the same rows. Both borrowed.
  RankInsertion(const SortRanks& ranks, KeyCompare& compare);
  /// The order of these rows. Those that are counted have no keys, and have one name together. Not all of
  /// them when `watch` gives up.
  std::vector<RankedRows> Sort(const std::vector<RankedRows>& rows, WorkWatch& watch);

 private:
  static constexpr std::uint32_t LEAP = 100;
  static constexpr int PATIENCE = 2;
  /// Where the scan of the next row begins depends on these alone.
  struct Hint {
    std::uint32_t position = 0;
    std::uint32_t row = 0;  // the row there
    int count = 0;
    friend bool operator==(const Hint&, const Hint&) = default;
  };
  static constexpr std::size_t CYCLE = 2 * std::size_t{PATIENCE};
  /// The steps of some like rows.
  struct Cycle {
    Hint begin;
    std::size_t steps = 0;
    std::size_t appends = 0;
    std::array<std::uint32_t, CYCLE> inner{};  // the places of the others
  };

  std::uint32_t ChooseStart();
  void MoveHint(std::uint32_t position);
  std::uint32_t FindPlace(std::uint32_t start);
  std::uint32_t InsertOne(std::uint32_t row);
  void InsertMany(std::uint32_t row, std::uint32_t count);
  bool TurnsAllBehind(std::uint32_t position) const;
  std::uint32_t FindLikeSteps(std::uint32_t row, std::uint32_t count, std::uint32_t& place) const;
  std::uint32_t RepeatCycle(const Cycle& cycle, std::uint32_t row, std::uint32_t count);
  std::uint32_t RepeatAdvance(std::uint32_t row, std::uint32_t cycles, std::uint32_t next);

  const SortRanks& m_ranks;
  KeyCompare& m_compare;
  RankTree m_run;
  std::vector<int> m_limits;  // of the row to insert
  std::vector<int> m_own;     // its ranks
  Hint m_hint;
};

}  // namespace coregui
