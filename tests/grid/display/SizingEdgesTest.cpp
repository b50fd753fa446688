#include "grid/display/SizingEdges.h"

#include <gtest/gtest.h>

#include <vector>

namespace coregui {
namespace {

/// The line to size at a position, -1 for none.
long LineAt(int position, const std::vector<int>& sizes) {
  EdgeFinder finder(position);
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    if (!finder.Next(static_cast<long>(i), sizes[i])) break;
  }
  return finder.IsFound() ? finder.Line() : -1;
}

TEST(SizingEdges, TwoPixelsEachSideAreHotAndThreeAreNot) {
  const std::vector<int> sizes{50, 50};
  EXPECT_EQ(LineAt(47, sizes), -1);
  EXPECT_EQ(LineAt(48, sizes), 0);
  EXPECT_EQ(LineAt(52, sizes), 0);
  EXPECT_EQ(LineAt(53, sizes), -1);
  EXPECT_EQ(LineAt(100, sizes), 1);
}

TEST(SizingEdges, TakesTheHiddenLineBehindTheEdge) {
  EXPECT_EQ(LineAt(50, {50, 0, 50}), 1);
  EXPECT_EQ(LineAt(50, {50, 0, 0, 50}), 1);
  EXPECT_EQ(LineAt(50, {50, 20}), 0);
  EXPECT_EQ(LineAt(0, {0, 50}), 0) << "a hidden first line can be dragged open too";
}

TEST(SizingEdges, ADragNeverMakesASizeNegative) {
  EXPECT_EQ(DraggedSize(50, 200, 230), 80);
  EXPECT_EQ(DraggedSize(50, 200, 150), 0);
  EXPECT_EQ(DraggedSize(50, 200, -1000), 0);
}

}  // namespace
}  // namespace coregui
