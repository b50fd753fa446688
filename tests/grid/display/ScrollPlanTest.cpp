#include "grid/display/ScrollPlan.h"

#include <gtest/gtest.h>

#include "grid/control/CGridAxis.h"
#include "grid/display/TabPlan.h"

using coregui::CGridAxis;
using coregui::PlanScroll;
using coregui::PlanTabs;

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

TEST(TabPlan, TheCurrentTabIsAlwaysInView) {
  const std::vector<int> widths{40, 60, 50};
  EXPECT_EQ(PlanTabs(widths, 0, {100, 16})[1], CRect(40, 0, 100, 16));
  EXPECT_EQ(PlanTabs(widths, 2, {100, 16})[2], CRect(50, 0, 100, 16)) << "moved left until it is in full";
  EXPECT_EQ(PlanTabs(widths, 1, {30, 16})[1], CRect(0, 0, 60, 16))
      << "wider than the area: its start is shown";
}
