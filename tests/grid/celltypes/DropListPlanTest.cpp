#include "grid/celltypes/DropListPlan.h"

#include <gtest/gtest.h>

namespace coregui {
namespace {

constexpr CRect kCell(20, 40, 95, 60);

DropListMeasures Measures(int choices) {
  return {choices, 16, 50, 17, CSize(400, 500)};
}

TEST(DropListPlan, OpensUnderTheCellMovedRight) {
  EXPECT_EQ(DropListRect(kCell, Measures(4)), CRect(30, 60, 105, 60 + 4 * 16 + 6));
}

TEST(DropListPlan, ShowsFifteenChoicesAtMostAndRoomForTheScrollBar) {
  const CRect list = DropListRect(kCell, Measures(20));
  EXPECT_EQ(list.Height(), 15 * 16 + 6);
  EXPECT_EQ(list.Width(), 75 + 17);
  EXPECT_EQ(DropListRect(kCell, Measures(14)).Width(), 75);
}

TEST(DropListPlan, GrowsToTheWidestChoice) {
  DropListMeasures measures = Measures(3);
  measures.widestChoice = 200;
  EXPECT_EQ(DropListRect(kCell, measures).Width(), 210);
}

TEST(DropListPlan, StaysInsideTheWindow) {
  const CRect low(20, 470, 95, 490);
  EXPECT_EQ(DropListRect(low, Measures(4)).bottom, 500);
  DropListMeasures small = Measures(15);
  small.window = CSize(60, 100);
  const CRect list = DropListRect(low, small);
  EXPECT_EQ(list.TopLeft(), CPoint(0, 0)) << "never beyond the top or left edge";
}

TEST(DropListPlan, ChoicesAreTheLinesOfTheLabel) {
  const CStringList choices = SplitChoices(L"Cut\nFill\n\nBalance");
  ASSERT_EQ(choices.GetCount(), 4);
  EXPECT_EQ(choices.GetAt(1), L"Fill");
  EXPECT_EQ(choices.GetAt(2), L"");
  EXPECT_EQ(choices.GetAt(3), L"Balance");
  EXPECT_TRUE(SplitChoices(L"").IsEmpty());
}

TEST(DropListPlan, ButtonNeverLeavesANarrowCell) {
  EXPECT_EQ(DropButtonRect(kCell, 17), CRect(78, 40, 95, 60));
  EXPECT_EQ(DropButtonRect(CRect(0, 0, 10, 20), 17), CRect(0, 0, 10, 20));
}

}  // namespace
}  // namespace coregui
