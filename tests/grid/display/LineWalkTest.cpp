#include "grid/display/LineWalk.h"

#include <gtest/gtest.h>

#include <limits>

namespace coregui {
namespace {

std::vector<long> Indexes(const LineWalk& walk) {
  std::vector<long> indexes;
  for (const ShownLine& line : walk.lines) indexes.push_back(line.index);
  return indexes;
}

LineWalk Walk(long count, long locked, long first, int extent, std::vector<int> sizes = {}) {
  LineWalk walk;
  WalkLines(walk, LineOrder(locked, first), count, extent, [&sizes](long line) {
    return static_cast<std::size_t>(line) < sizes.size() ? sizes[static_cast<std::size_t>(line)] : 20;
  });
  return walk;
}

TEST(LineWalk, JumpsFromTheLockedLinesToTheFirstScrolledOne) {
  const LineWalk walk = Walk(100, 2, 50, 90);
  EXPECT_EQ(Indexes(walk), (std::vector<long>{0, 1, 50, 51, 52}));
  EXPECT_EQ(walk.last, 52);
  EXPECT_EQ(walk.end, 100);
}

TEST(LineWalk, GoesOnToThePartlyShownLine) {
  // A line that ends exactly at the edge does not pass it, so the next one is the last.
  EXPECT_EQ(Walk(10, 0, 0, 60).last, 3);
  EXPECT_EQ(Walk(10, 0, 0, 59).last, 2);
}

TEST(LineWalk, ReportsTheCountWhereEverythingFits) {
  const LineWalk walk = Walk(3, 0, 0, 60);
  EXPECT_EQ(walk.last, 3);
  EXPECT_EQ(walk.end, 60);
}

TEST(LineWalk, LeavesOutHiddenLines) {
  const LineWalk walk = Walk(4, 1, 1, 1000, {0, 20, 0, 30});
  EXPECT_EQ(Indexes(walk), (std::vector<long>{1, 3}));
  ASSERT_NE(walk.Find(3), nullptr);
  EXPECT_EQ(walk.Find(3)->start, 20);
  EXPECT_EQ(walk.Find(2), nullptr);
  EXPECT_EQ(walk.Find(4), nullptr);
}

TEST(LineWalk, StopsInsideLockedLinesThatFillTheWindow) {
  const LineWalk walk = Walk(100, 50, 60, 30);
  EXPECT_EQ(Indexes(walk), (std::vector<long>{0, 1}));
  EXPECT_EQ(walk.last, 1);
}

TEST(LineWalk, SurvivesATopBehindTheLastLineAndNoLinesAtAll) {
  EXPECT_TRUE(Walk(5, 0, 9, 100).lines.empty());
  EXPECT_EQ(Walk(0, 0, 0, 100).last, 0);
  EXPECT_EQ(Indexes(Walk(5, 3, 1, 75)), (std::vector<long>{0, 1, 2, 3}));
}

TEST(LineWalk, ReachesTheLastPossibleRow) {
  const long count = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(Indexes(Walk(count, 0, count - 2, 1000)), (std::vector<long>{count - 2, count - 1}));
}

TEST(MeasureScroll, SumsTheSizesPassed) {
  const auto twenty = [](long) { return 20; };
  EXPECT_EQ(MeasureScroll(5, 5, 100, twenty), (ScrollDistance{0, false}));
  EXPECT_EQ(MeasureScroll(5, 10, 100, twenty), (ScrollDistance{100, false}));
  EXPECT_EQ(MeasureScroll(10, 7, 100, twenty), (ScrollDistance{-60, false}));
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
