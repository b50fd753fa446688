#include "grid/display/LineWalk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace coregui {
namespace {

TEST(LineWalk, GoesFromTheLockedLinesOnToThePartlyShownOne) {
  constexpr long kMost = std::numeric_limits<std::int32_t>::max();
  struct Row {
    const char* name;
    long count;
    long locked;
    long first;
    int extent;
    std::vector<long> shown;
    long last;
    int end;
    std::vector<int> sizes = {};  // of the first lines; the others have 20
  };
  const Row rows[] = {
      {"locked lines, then scrolled ones", 100, 2, 50, 90, {0, 1, 50, 51, 52}, 52, 100},
      {"an end at the edge does not pass it", 10, 0, 0, 60, {0, 1, 2, 3}, 3, 80},
      {"an end behind the edge", 10, 0, 0, 59, {0, 1, 2}, 2, 60},
      {"everything fits", 3, 0, 0, 60, {0, 1, 2}, 3, 60},
      {"hidden lines", 4, 1, 1, 1000, {1, 3}, 4, 50, {0, 20, 0, 30}},
      {"locked lines fill the window", 100, 50, 60, 30, {0, 1}, 1, 40},
      {"the first one is locked", 5, 3, 1, 75, {0, 1, 2, 3}, 3, 80},
      {"the first one lies behind the last", 5, 0, 9, 100, {}, 5, 0},
      {"no lines", 0, 0, 0, 100, {}, 0, 0},
      {"the last possible row", kMost, 0, kMost - 2, 1000, {kMost - 2, kMost - 1}, kMost, 40}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    LineWalk walk;
    const auto size = [&row](long line) {
      return static_cast<std::size_t>(line) < row.sizes.size() ? row.sizes[static_cast<std::size_t>(line)]
                                                               : 20;
    };
    WalkLines(walk, LineOrder(row.locked, row.first), row.count, row.extent, size);
    ASSERT_EQ(walk.lines.size(), row.shown.size());
    int start = 0;
    for (std::size_t i = 0; i < row.shown.size(); ++i) {
      ASSERT_EQ(walk.Find(row.shown[i]), &walk.lines[i]);
      EXPECT_EQ(walk.lines[i].start, start);
      start += size(row.shown[i]);
    }
    EXPECT_EQ(walk.last, row.last);
    EXPECT_EQ(walk.end, row.end);
    for (const long line : {row.first + 1, row.count}) {
      const bool shown = std::find(row.shown.begin(), row.shown.end(), line) != row.shown.end();
      EXPECT_EQ(walk.Find(line) != nullptr, shown) << line;
    }
  }
}

TEST(MeasureScroll, GivesUpPastTheWindowWithoutWalkingOn) {
  long asked = 0;
  const auto size = [&asked](long) {
    ++asked;
    return 20;
  };
  EXPECT_EQ(MeasureScroll(0, std::numeric_limits<std::int32_t>::max(), 100, size), (ScrollDistance{0, true}));
  EXPECT_EQ(asked, 6);
}

}  // namespace
}  // namespace coregui
