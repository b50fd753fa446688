#include "grid/celltypes/DropListPlan.h"

#include <gtest/gtest.h>

namespace coregui {
namespace {

constexpr CRect kCell(20, 40, 95, 60);

DropListMeasures Measures(int choices) {
  return {choices, 16, 50, 17, CSize(400, 500)};
}

TEST(DropListPlan, OpensUnderTheCellMovedRightAsLargeAsItsChoicesAndTheWindowAllow) {
  EXPECT_EQ(DropListRect(kCell, Measures(4)), CRect(30, 60, 105, 60 + 4 * 16 + 6));
  EXPECT_EQ(DropListRect(kCell, Measures(14)).Width(), 75);
  const CRect scrolled = DropListRect(kCell, Measures(20));
  EXPECT_EQ(scrolled.Size(), CSize(75 + 17, 15 * 16 + 6)) << "fifteen choices and a scroll bar";
  DropListMeasures wide = Measures(3);
  wide.widestChoice = 200;
  EXPECT_EQ(DropListRect(kCell, wide).Width(), 210);
  EXPECT_EQ(DropListRect(CRect(20, 470, 95, 490), Measures(4)).bottom, 500);
  DropListMeasures small = Measures(15);
  small.window = CSize(60, 100);
  EXPECT_EQ(DropListRect(CRect(20, 470, 95, 490), small).TopLeft(), CPoint(0, 0))
      << "never beyond the top or left edge";
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
