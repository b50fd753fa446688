#include "views/FRect.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

void ExpectEdges(FRect const& rect, double left, double top, double right, double bottom) {
  EXPECT_EQ(rect.GetLeft(), left);
  EXPECT_EQ(rect.GetTop(), top);
  EXPECT_EQ(rect.GetRight(), right);
  EXPECT_EQ(rect.GetBottom(), bottom);
  EXPECT_EQ(rect.TopLeft().y, top);
  EXPECT_EQ(rect.BottomRight().x, right);
}

TEST(FRect, CornersInAnyOrderAreNormalised) {
  FRect rect(PNT_2D_record{5, 1}, PNT_2D_record{2, 7});
  ExpectEdges(rect, 2, 7, 5, 1);
  EXPECT_EQ(rect.Width(), 3);
  EXPECT_EQ(rect.Height(), 6);
  EXPECT_EQ(rect.Centre().x, 3.5);
  EXPECT_EQ(rect.Centre().y, 4);
  rect.Set(20, 10, 50, 70);
  ExpectEdges(rect, 20, 70, 50, 10);
  rect.Set(0.0, 0.0, -0.0, -0.0);  // equal coordinates take the first corner's
  EXPECT_FALSE(std::signbit(rect.GetLeft()) || std::signbit(rect.GetRight()) || std::signbit(rect.GetTop()) ||
               std::signbit(rect.GetBottom()));
}

TEST(FRect, SingleEdgesAreStoredAsGivenAndSizesStayPositive) {
  FRect rect(0, 0, 10, 10);
  rect.SetLeft(14);
  rect.SetBottom(13);
  ExpectEdges(rect, 14, 10, 10, 13);
  EXPECT_EQ(rect.Width(), 4);
  EXPECT_EQ(rect.Height(), 3);
}

TEST(FRect, ExpandsToPointsOnEverySideAndTranslates) {
  FRect rect;
  rect.Expand({-3, 4});
  rect.Expand({2, -5});
  rect.Translate(10, 100);
  ExpectEdges(rect, 7, 104, 12, 95);
}

}  // namespace
