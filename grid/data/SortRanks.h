#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "grid/data/SortKeys.h"

namespace coregui {

/// The standard comparison of rows as a comparison of ranks.
///
/// How two keys compare depends on the deciding one's type: the new row's when ascending, the other's when
/// descending. A number goes by the number field of both, a text by both texts (one without text is above
/// all), a blank decides and nothing after it counts. So a row's kind is the types of its keys up to the
/// first blank, and each kind orders all rows: by the fields that it names, the first one first. A row's rank
/// of a kind is its place in that order; rows that compare equal share one. "The new row goes before the
/// other" is then "one of the other's ranks is above the new row's limit of the same kind".
class SortRanks {
 public:
  /// `keys` by column, one at least.
  SortRanks(const std::vector<KeyColumn>& keys, bool descending);
  /// Whether ranks stand for these keys: none is NaN, which compares equal to everything, and their kinds are
  /// few.
  bool AreExact() const { return m_areExact; }
  /// How many kinds have ranks; 0 when every row begins with a blank.
  std::size_t KindCount() const { return m_ranks.size(); }
  /// The row's ranks as one of the run.
  void GetRanks(std::uint32_t row, std::vector<int>& ranks) const;
  /// The row's limits as the new one.
  void GetLimits(std::uint32_t row, std::vector<int>& limits) const;

 private:
  static constexpr int NO_KIND = -1;
  static constexpr std::size_t MOST_KINDS = 16;
  /// A kind while the keys are read: another one and one type more.
  struct Pattern {
    std::size_t parent;
    std::size_t key;
    bool byNumber;
    std::array<std::size_t, 2> next;  // with a text, with a number; 0 when there is none
    int kind;                         // NO_KIND when no row has it
  };
  bool FindKinds(const std::vector<KeyColumn>& keys);
  std::size_t Extend(std::size_t pattern, std::size_t key, bool byNumber);
  void RankPatterns(const std::vector<KeyColumn>& keys);

  bool m_descending;
  bool m_areExact;
  std::vector<Pattern> m_patterns;        // the first one is that of a blank
  std::vector<int> m_kinds;               // by row
  std::vector<std::vector<int>> m_ranks;  // by kind and row
};

}  // namespace coregui
