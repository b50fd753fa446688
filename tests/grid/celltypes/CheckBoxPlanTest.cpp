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

TEST(CheckBoxPlan, PlacesFollowTheStyle) {
  const struct {
    const char* name;
    int alignment;
    long extended;
    CRect box;
  } rows[] = {{"plain", 0, 0, {103, 59, 115, 71}},
              {"the alignment counts only with its bit", 0x12, 0, {103, 59, 115, 71}},
              {"round is one wider", 0, kCheckRound, {103, 59, 116, 71}},
              {"centred", 0x4, kCheckAligned, {134, 59, 146, 71}},
              {"right bottom", 0x12, kCheckAligned, {162, 62, 174, 74}},
              {"left top", 0x9, kCheckAligned, {103, 53, 115, 65}}};
  for (const auto& row : rows)
    EXPECT_EQ(CheckBoxRect(CRect(100, 50, 180, 80), row.alignment, row.extended), row.box) << row.name;
}

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
