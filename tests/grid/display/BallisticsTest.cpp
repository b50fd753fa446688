#include "grid/display/Ballistics.h"

#include <gtest/gtest.h>

#include <limits>

namespace coregui {
namespace {

TEST(Ballistics, StepIsTheWholePartOfThePower) {
  EXPECT_EQ(BallisticStep(1.0, 1), 1);
  EXPECT_EQ(BallisticStep(2.9, 1), 2);
  EXPECT_EQ(BallisticStep(2.5, 2), 6);
  EXPECT_EQ(BallisticStep(3.0, 3), 27);
  EXPECT_EQ(BallisticStep(1e6, 3), std::numeric_limits<std::int32_t>::max());
}

TEST(Ballistics, FactorsBeforeTheGridCountWholeLines) {
  EXPECT_EQ(FactorBefore(-1, 75), 1.0);
  EXPECT_EQ(FactorBefore(-74, 75), 1.0);
  EXPECT_EQ(FactorBefore(-150, 75), 3.0);
  EXPECT_EQ(FactorBefore(-5, 0), 6.0) << "a default size of 0 must not divide";
}

TEST(Ballistics, OnlyTheFactorRightOfTheGridIsFractionalIsKept) {
  EXPECT_DOUBLE_EQ(FactorRightOf(650, 500, 100), 2.5);
  EXPECT_EQ(FactorBelow(650, 500, 100), 2.0);
  // Over the partly visible last line, inside the grid:
  EXPECT_EQ(BallisticStep(FactorRightOf(490, 500, 75), 2), 0);
  EXPECT_EQ(BallisticStep(FactorBelow(490, 500, 20), 2), 1);
}

TEST(Ballistics, KeysHaveOnePaceWithoutModeOrDelay) {
  EXPECT_EQ(PaceKey(1000, 0, 50), (KeyPace{1, false}));
  EXPECT_EQ(PaceKey(2, 4, 0), (KeyPace{1, false}));
  EXPECT_EQ(PaceKey(std::numeric_limits<int>::max(), 1, 0).step, std::numeric_limits<std::int32_t>::max());
}

}  // namespace
}  // namespace coregui
