#include "views/FRect.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(FRect, CornersInAnyOrderAreNormalised) {
  FRect rect(PNT_2D_record{5, 1}, PNT_2D_record{2, 7});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(rect.GetLeft(), 2);
    EXPECT_EQ(rect.GetTop(), 7);
    EXPECT_EQ(rect.GetRight(), 5);
    EXPECT_EQ(rect.GetBottom(), 1);
    EXPECT_EQ(rect.Width(), 3);
    EXPECT_EQ(rect.Height(), 6);
    EXPECT_EQ(rect.Centre().x, 3.5);
    EXPECT_EQ(rect.Centre().y, 4);
    rect.Set(2, 1, 5, 7);
  }
}

TEST(FRect, EqualCoordinatesTakeTheFirstCorner) {
  const FRect rect(0.0, 0.0, -0.0, -0.0);
  EXPECT_FALSE(std::signbit(rect.GetLeft()) || std::signbit(rect.GetRight()) || std::signbit(rect.GetTop()) ||
               std::signbit(rect.GetBottom()));
}

TEST(FRect, SingleEdgesAreStoredAsGivenAndSizesStayPositive) {
  FRect rect(0, 0, 10, 10);
  rect.SetLeft(14);
  rect.SetBottom(13);
  EXPECT_EQ(rect.TopLeft().x, 14);
  EXPECT_EQ(rect.BottomRight().y, 13);
  EXPECT_EQ(rect.Width(), 4);
  EXPECT_EQ(rect.Height(), 3);
}

TEST(FRect, ExpandsToPointsOnEverySideAndTranslates) {
  FRect rect;
  rect.Expand({-3, 4});
  rect.Expand({2, -5});
  rect.Translate(10, 100);
  EXPECT_EQ(rect.GetLeft(), 7);
  EXPECT_EQ(rect.GetRight(), 12);
  EXPECT_EQ(rect.GetTop(), 104);
  EXPECT_EQ(rect.GetBottom(), 95);
}

}  // namespace
