#include "grid/data/RankInsertion.h"

#include <gtest/gtest.h>

#include "grid/data/InsertionOrder.h"

namespace {

using coregui::KeyColumn;
using coregui::SortKey;

std::vector<std::uint32_t> OneByOne(const std::vector<coregui::RankedRows>& rows) {
  std::vector<std::uint32_t> names;
  for (const auto& entry : rows) names.insert(names.end(), entry.count, entry.row);
  return names;
}

/// Rows that are counted must come as if each had been inserted. The name of the empty ones is the last.
void ExpectOrderOfSteps(const std::vector<KeyColumn>& keys, const std::vector<coregui::RankedRows>& counted,
                        bool descending, int round) {
  std::vector<KeyColumn> single(keys.size());
  std::vector<std::uint32_t> names;
  for (const auto& [row, count] : counted) {
    names.insert(names.end(), count, row);
    for (std::size_t key = 0; key < keys.size(); ++key)
      single[key].insert(single[key].end(), count, keys[key][row]);
  }
  coregui::KeyCompare steps(single, descending);
  coregui::WorkWatch watch;
  std::vector<std::uint32_t> wanted =
      coregui::InsertionOrder(steps).Sort(static_cast<std::uint32_t>(names.size()), watch);
  for (std::uint32_t& row : wanted) row = names[row];
  coregui::KeyCompare compare(keys, descending);
  const coregui::SortRanks ranks(keys, descending);
  ASSERT_EQ(wanted, OneByOne(coregui::RankInsertion(ranks, compare).Sort(counted, watch)))
      << "round " << round;
}

/// Empty rows that stand on both sides of texts, which turn them, and advance with the hint: until it has
/// left its like, and as long as there are rows enough to leap over.
TEST(RankInsertion, EmptyRowsPassTextsAsLongAsTheStepsDo) {
  struct Part {
    char type;
    std::uint32_t count;
  };
  const std::vector<Part> tables[] = {{{'-', 302}, {'0', 6}, {'t', 1}, {'0', 4}, {'-', 293}},
                                      {{'-', 301}, {'0', 1}, {'t', 1}, {'0', 6}, {'-', 296}},
                                      {{'t', 11}, {'1', 3}, {'-', 180}},
                                      {{'t', 9}, {'-', 48}, {'0', 3}, {'-', 136}}};
  int round = 0;
  for (const std::vector<Part>& table : tables) {
    KeyColumn keys;
    std::vector<coregui::RankedRows> counted;
    for (const Part& part : table) {
      const SortKey key{part.type == '1' ? 1.0 : 0.0, part.type == 't' ? 1U : 0U, part.type != 't', true};
      if (part.type != '-') keys.insert(keys.end(), part.count, key);
    }
    const auto empty = static_cast<std::uint32_t>(keys.size());
    keys.emplace_back();
    std::uint32_t row = 0;
    for (const Part& part : table) {
      if (part.type == '-') counted.push_back({empty, part.count});
      for (std::uint32_t i = 0; part.type != '-' && i < part.count; ++i) counted.push_back({row++, 1});
    }
    ExpectOrderOfSteps({keys}, counted, true, round++);
  }
}

}  // namespace
