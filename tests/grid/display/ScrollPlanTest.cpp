#include "grid/display/ScrollPlan.h"

#include <gtest/gtest.h>

#include "grid/control/CGridAxis.h"
#include "grid/display/TabStrip.h"

using coregui::CGridAxis;
using coregui::PlanScroll;
using coregui::TabStrip;

TEST(ScrollPlan, TheLastPositionShowsTheLastRowInFull) {
  struct Row {
    const char* name;
    long count;
    long locked;
    int extent;
    int min;
    int max;
    UINT page;
  };
  for (const Row& r :
       {Row{"empty", 0, 0, 100, 0, 0, 1}, Row{"all in view", 5, 0, 100, 0, 4, 5},
        Row{"more than the view", 50, 0, 100, 0, 49, 10}, Row{"locked rows", 50, 3, 100, 3, 49, 7},
        Row{"half a row left over", 50, 0, 105, 0, 49, 10}, Row{"no room at all", 50, 0, 0, 0, 49, 1},
        Row{"all that 32 bits count", 0x7FFFFFFF, 0, 100, 0, 0x7FFFFFFE, 10}}) {
    CGridAxis axis;
    axis.SetUniform(true);
    axis.SetDefaultSize(10);
    axis.SetCount(r.count);
    axis.SetLocked(r.locked);
    axis.SetExtent(r.extent);
    axis.SetFirst(axis.MaxFirst());
    const SCROLLINFO info = PlanScroll(axis);
    EXPECT_EQ(info.nMin, r.min) << r.name;
    EXPECT_EQ(info.nMax, r.max) << r.name;
    EXPECT_EQ(info.nPage, r.page) << r.name;
    EXPECT_EQ(info.nPos, info.nMax - static_cast<int>(info.nPage) + 1) << r.name;
  }
}

TEST(TabStrip, EveryTabCanBeReachedWithTheArrowsAndTheCurrentOneIsShown) {
  TabStrip strip;
  strip.SetTabs({40, 60, 30, 40, 60}, {132, 16});
  EXPECT_EQ(strip.ArrowRect(1), CRect(16, 0, 32, 16));
  EXPECT_EQ(strip.TabRect(1), CRect(72, 0, 132, 16)) << "behind the arrows";
  EXPECT_TRUE(strip.TabRect(2).IsRectEmpty());
  EXPECT_FALSE(strip.CanScroll(-1));
  strip.ShowTab(2);
  EXPECT_EQ(strip.TabRect(2), CRect(92, 0, 122, 16)) << "scrolled no more than needed";
  strip.ShowTab(1);
  EXPECT_EQ(strip.TabRect(1), CRect(32, 0, 92, 16)) << "in view already";
  strip.Scroll(9);
  EXPECT_EQ(strip.TabRect(4), CRect(72, 0, 132, 16)) << "no further than the last one needs";
  EXPECT_FALSE(strip.CanScroll(1));
  EXPECT_EQ(strip.TabAt({40, 3}), 3);
  EXPECT_EQ(strip.TabAt({20, 3}), -1) << "an arrow";
  strip.SetTabs({40, 60}, {132, 16});
  EXPECT_EQ(strip.TabRect(1), CRect(40, 0, 100, 16)) << "all fit again";
  EXPECT_TRUE(strip.ArrowRect(-1).IsRectEmpty());
  EXPECT_EQ(strip.TabAt({101, 3}), -1);
}
