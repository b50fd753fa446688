#include "views/FRect.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

/// The left, top, right and bottom edge.
using Edges = std::array<double, 4>;

Edges EdgesOf(FRect const& rect) {
  return {rect.GetLeft(), rect.TopLeft().y, rect.BottomRight().x, rect.GetBottom()};
}

TEST(FRect, CornersInAnyOrderAreNormalisedAndSingleEdgesStoredAsGiven) {
  FRect rect(PNT_2D_record{5, 1}, PNT_2D_record{2, 7});
  EXPECT_EQ(EdgesOf(rect), (Edges{2, 7, 5, 1}));
  EXPECT_EQ(rect.Centre().x, 3.5);
  EXPECT_EQ(rect.Centre().y, 4);
  rect.SetLeft(14);
  rect.SetBottom(13);
  EXPECT_EQ(EdgesOf(rect), (Edges{14, 7, 5, 13}));
  EXPECT_EQ(rect.Width(), 9) << "a size has no sign";
  EXPECT_EQ(rect.Height(), 6);
  rect.Set(0.0, 0.0, -0.0, -0.0);  // equal coordinates take the first corner's
  for (const double edge : EdgesOf(rect)) EXPECT_FALSE(std::signbit(edge));
}

TEST(FRect, ExpandsToPointsOnEverySideAndTranslates) {
  FRect rect;
  rect.Expand({-3, 4});
  rect.Expand({2, -5});
  rect.Translate(10, 100);
  EXPECT_EQ(EdgesOf(rect), (Edges{7, 104, 12, 95}));
}

}  // namespace
