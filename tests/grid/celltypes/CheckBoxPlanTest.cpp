#include "grid/celltypes/CheckBoxPlan.h"

#include <gtest/gtest.h>

namespace coregui {
namespace {

TEST(CheckBoxPlan, BoxGrowsWithTheRowUpToTwelve) {
  EXPECT_EQ(CheckBoxSize(11), 5);
  EXPECT_EQ(CheckBoxSize(12), kSmallestCheckBox);
  EXPECT_EQ(CheckBoxSize(17), 11);
  EXPECT_EQ(CheckBoxSize(18), 12);
  EXPECT_EQ(CheckBoxSize(400), 12);
}

struct Row {
  const char* name;
  int alignment;
  long extended;
  CRect box;
};

class CheckBoxPlaces : public testing::TestWithParam<Row> {};

TEST_P(CheckBoxPlaces, FollowTheStyle) {
  const Row& row = GetParam();
  const CRect box = CheckBoxRect(CRect(100, 50, 180, 80), row.alignment, row.extended);
  EXPECT_EQ(box, row.box) << box.left << ',' << box.top << ',' << box.right << ',' << box.bottom;
}

INSTANTIATE_TEST_SUITE_P(Styles, CheckBoxPlaces,
                         testing::Values(Row{"plain", 0, 0, CRect(103, 59, 115, 71)},
                                         Row{"alignmentCountsOnlyWithItsBit", 0x12, 0,
                                             CRect(103, 59, 115, 71)},
                                         Row{"roundIsOneWider", 0, kCheckRound, CRect(103, 59, 116, 71)},
                                         Row{"centred", 0x4, kCheckAligned, CRect(134, 59, 146, 71)},
                                         Row{"rightBottom", 0x12, kCheckAligned, CRect(162, 62, 174, 74)},
                                         Row{"leftTop", 0x9, kCheckAligned, CRect(103, 53, 115, 65)}),
                         [](const auto& test) { return test.param.name; });

TEST(CheckBoxPlan, StatesGoRound) {
  EXPECT_EQ(NextCheckState(0, 0), 1);
  EXPECT_EQ(NextCheckState(1, 0), 0);
  EXPECT_EQ(NextCheckState(2, 0), 1);
  EXPECT_EQ(NextCheckState(1, kCheckThreeStates), 2);
  EXPECT_EQ(NextCheckState(2, kCheckThreeStates), 0);
  EXPECT_EQ(NextCheckState(-7, kCheckThreeStates), 0);
}

TEST(CheckBoxPlan, MarksAreDoubledInLargeBoxes) {
  EXPECT_EQ(CrossMark(CRect(0, 0, 9, 9)).lines, 2);
  EXPECT_EQ(CrossMark(CRect(0, 0, 10, 10)).lines, 4);
  const CheckMark tick = TickMark(CRect(100, 50, 112, 62));
  EXPECT_EQ(tick.points[0], CPoint(102, 58));
  EXPECT_EQ(tick.points[1], CPoint(104, 60));
  EXPECT_EQ(tick.points[3], CPoint(115, 49));
  EXPECT_EQ(tick.lines, 4);
}

}  // namespace
}  // namespace coregui
