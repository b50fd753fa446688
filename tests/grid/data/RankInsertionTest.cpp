#include "grid/data/RankInsertion.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "grid/data/InsertionOrder.h"

namespace {

using coregui::KeyColumn;
using coregui::SortKey;

/// How the keys of one column are made.
struct Mix {
  const char* name;
  int blanks;  // in a hundred
  int texts;   // in a hundred of the others
  int values;  // how many different ones
  int block;   // rows in a row that are of one type
};

SortKey RandomKey(const Mix& mix, std::mt19937& random) {
  const auto below = [&random](int high) { return static_cast<int>(random() % static_cast<unsigned>(high)); };
  SortKey key;
  if (below(100) < mix.blanks) return key;
  const int value = below(mix.values);
  key.byNumber = below(100) >= mix.texts;
  key.hasText = !key.byNumber || below(20) != 0;  // a number may lack its value
  key.rank = static_cast<std::uint32_t>(below(mix.values));
  // A text counts as the number it begins with, mostly none.
  if (key.byNumber || below(3) == 0) key.number = key.hasText ? value - mix.values / 3 : 0;
  return key;
}

std::vector<KeyColumn> RandomKeys(const Mix& mix, std::size_t columns, std::uint32_t rows,
                                  std::mt19937& random) {
  std::vector<KeyColumn> keys(columns, KeyColumn(rows));
  for (std::size_t column = 0; column < columns; ++column) {
    for (std::uint32_t row = 0; row < rows; ++row) {
      SortKey& key = keys[column][row];
      do {
        key = RandomKey(mix, random);
      } while (
          row % static_cast<std::uint32_t>(mix.block) != 0 &&
          (key.byNumber != keys[column][row - 1].byNumber || key.hasText != keys[column][row - 1].hasText));
    }
  }
  return keys;
}

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

TEST(RankInsertion, GivesRunsOfEmptyRowsThePlacesThatTheStepsGive) {
  std::mt19937 random(20);
  const auto below = [&random](unsigned high) { return static_cast<std::uint32_t>(random() % high); };
  for (int round = 0; round < 600; ++round) {
    // A third of them: some numbers around 0, each far from the one before.
    const bool farApart = round % 3 == 1;
    const Mix mix = farApart ? Mix{"", 0, 0, 3, 1}
                             : Mix{"", static_cast<int>(below(40)), static_cast<int>(below(101)),
                                   1 + static_cast<int>(below(300)), 1 + static_cast<int>(below(30))};
    const std::uint32_t rows = farApart ? 3 + below(4) : 1 + below(round % 3 == 0 ? 400 : 8);
    std::vector<KeyColumn> keys = RandomKeys(mix, 1 + below(2), rows, random);
    if (below(3) == 0) {
      // Depths below a level: an empty row counts as the level itself.
      for (SortKey& key : keys[0]) key.number = -std::fabs(key.number);
    }
    for (KeyColumn& column : keys) column.emplace_back();
    std::vector<coregui::RankedRows> counted;
    for (std::uint32_t row = 0; row < rows; ++row) {
      const bool run = farApart || below(rows > 40 ? 20 : 2) == 0;
      if (run) counted.push_back({rows, 1 + below(std::array{9U, 150U, 900U}[farApart ? 2 : below(3)])});
      counted.push_back({row, 1});
    }
    ExpectOrderOfSteps(keys, counted, below(2) != 0, round);
  }
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
