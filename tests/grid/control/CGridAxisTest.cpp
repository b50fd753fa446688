#include "grid/control/CGridAxis.h"

#include <gtest/gtest.h>

#include <random>

using coregui::CGridAxis;

namespace {

/// Of given sizes; `uniform` when they shall be one size.
void Fill(CGridAxis& axis, const std::vector<int>& sizes, int extent) {
  axis.SetDefaultSize(10);
  axis.SetCount(static_cast<long>(sizes.size()));
  for (std::size_t i = 0; i < sizes.size(); ++i) axis.SetSize(static_cast<long>(i), sizes[i]);
  axis.SetExtent(extent);
}

/// A page move as it is told in words: walk from an entry, taking its size from the room, while the next one
/// fits.
long WalkPage(const CGridAxis& axis, long index, int step) {
  std::int64_t room = axis.Room();
  long at = index;
  if (room < 0) return at;
  while (true) {
    room -= axis.CostOf(at);
    if (room < 0 || axis.SizeOf(at + step) > room || at + step < 0) return at;
    at += step;
  }
}

/// The view that shows `index` in full, told the same way.
long WalkUp(const CGridAxis& axis, long index) {
  std::int64_t room = axis.Room();
  long first = index;
  for (long at = index; at >= 0; --at) {
    room -= axis.SizeOf(at);
    if (room < 0) break;
    first = at;
  }
  return first;
}

}  // namespace

TEST(CGridAxis, PageAndViewAgreeWithWalkingEntryByEntry) {
  std::mt19937 random(11);
  for (int round = 0; round < 300; ++round) {
    std::vector<int> sizes(1 + random() % 40);
    const bool uniform = random() % 3 == 0;
    for (int& size : sizes) size = uniform ? 10 : random() % 4 == 0 ? 0 : static_cast<int>(random() % 40);
    CGridAxis axis;
    axis.SetUniform(uniform);
    Fill(axis, sizes, static_cast<int>(random() % 200));
    axis.SetLocked(static_cast<long>(random() % std::min<std::size_t>(sizes.size(), 4)));
    for (long index = 0; index < axis.Count(); ++index) {
      SCOPED_TRACE(testing::Message() << "round " << round << " index " << index << " room " << axis.Room());
      // A hidden entry at the end of a page is as good as the one before it: both start the same page.
      const long forward = WalkPage(axis, index, 1);
      EXPECT_EQ(axis.OffsetOf(axis.PageTarget(index, 1)), axis.OffsetOf(forward));
      EXPECT_EQ(std::max(axis.PageTarget(index, 1), axis.Count() - 1), std::max(forward, axis.Count() - 1))
          << "rows that are not there yet count too";
      EXPECT_EQ(axis.OffsetOf(axis.PageTarget(index, -1)), axis.OffsetOf(WalkPage(axis, index, -1)));
      EXPECT_EQ(axis.OffsetOf(axis.FirstThatShows(index)), axis.OffsetOf(WalkUp(axis, index)));
    }
  }
}

TEST(CGridAxis, EveryPixelOfAnEntryLeadsBackToIt) {
  for (const bool uniform : {false, true}) {
    CGridAxis axis;
    axis.SetUniform(uniform);
    Fill(axis, {10, 0, 25, 7, 0, 0, 13, 10, 30, 1}, 60);
    axis.SetLocked(2);
    axis.SetFirst(6);
    for (const long index : {0L, 6L, 7L, 8L, 9L}) {
      for (int pixel = 0; pixel < axis.SizeOf(index); ++pixel) {
        EXPECT_EQ(axis.IndexAtPosition(axis.PositionOf(index) + pixel), index)
            << uniform << " pixel " << pixel;
      }
    }
    EXPECT_EQ(axis.IndexAtPosition(-1), -1);
    EXPECT_EQ(axis.IndexAtPosition(axis.PositionOf(axis.Count())), -1);
  }
}

TEST(CGridAxis, BringsTheDraggedEntryIntoViewInBillionsAndInAViewTooSmallForIt) {
  constexpr long most = 0x7FFFFFFF;
  CGridAxis axis;
  axis.SetUniform(true);
  axis.SetDefaultSize(20);
  axis.SetCount(most);
  axis.SetExtent(1000);
  EXPECT_EQ(axis.PageTarget(most - 1, -1), most - 50);
  axis.drag = most - 1;
  axis.KeepDragInView();
  EXPECT_EQ(axis.First(), most - 50);
  axis.SetExtent(4);
  axis.drag = 2;
  axis.KeepDragInView();
  EXPECT_EQ(axis.First(), 2);
}

TEST(CGridAxis, SkipsHiddenEntriesInTheDirectionAsked) {
  CGridAxis axis;
  Fill(axis, {0, 10, 0, 0, 10, 0}, 100);
  EXPECT_EQ(axis.NearestShown(2, 1), 4);
  EXPECT_EQ(axis.NearestShown(3, -1), 1);
  EXPECT_EQ(axis.NearestShown(4, -1), 4);
  EXPECT_EQ(axis.NearestShown(5, 1), -1);
  EXPECT_EQ(axis.NearestShown(0, -1), -1);
}
