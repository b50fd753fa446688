#pragma once

#include <cstdint>
#include <vector>

#include "grid/data/KeyCompare.h"
#include "grid/data/RankTree.h"
#include "grid/data/SortRanks.h"

namespace coregui {

/// The outcome of the required insertion (InsertionOrder) for the standard comparison, without its steps.
/// Where blanks, texts and numbers stand together the run is not sorted in any one order, so the place of a
/// new row depends on where the scan begins and on which rows the leaps land; both are followed here, and
/// what lies between is passed over by rank.
class RankInsertion {
 public:
  /// `ranks` are exact; `compare` compares the same rows. Both borrowed.
  RankInsertion(const SortRanks& ranks, KeyCompare& compare);
  /// The order of the rows 0 to count - 1.
  std::vector<std::uint32_t> Sort(std::uint32_t count);

 private:
  static constexpr std::uint32_t LEAP = 100;
  static constexpr int PATIENCE = 2;
  std::uint32_t ChooseStart();
  void MoveHint(std::uint32_t position);
  std::uint32_t FindPlace(std::uint32_t start);
  bool GoesBefore(std::uint32_t position);

  const SortRanks& m_ranks;
  KeyCompare& m_compare;
  RankTree m_run;
  std::vector<int> m_limits;  // of the row to insert
  std::vector<int> m_scratch;
  std::uint32_t m_hint = 0;     // the hint row's position
  std::uint32_t m_hintRow = 0;  // and the row itself
  int m_count = 0;
};

}  // namespace coregui
