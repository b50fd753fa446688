#include "grid/display/SizingEdges.h"

#include <gtest/gtest.h>

#include <vector>

namespace coregui {
namespace {

TEST(SizingEdges, TwoPixelsEachSideAreHotAndAHiddenLineComesFirst) {
  const struct {
    int position;
    std::vector<int> sizes;
    long line;  // -1: none is sized
  } rows[] = {{47, {50, 50}, -1}, {48, {50, 50}, 0},    {52, {50, 50}, 0},
              {53, {50, 50}, -1}, {100, {50, 50}, 1},   {50, {50, 20}, 0},
              {0, {0, 50}, 0},    {50, {50, 0, 50}, 1}, {50, {50, 0, 0, 50}, 1}};
  for (const auto& row : rows) {
    EdgeFinder finder(row.position);
    long line = 0;
    for (const int size : row.sizes)
      if (!finder.Next(line++, size)) break;
    EXPECT_EQ(finder.IsFound() ? finder.Line() : -1, row.line) << row.position << " of " << row.sizes.size();
  }
}

}  // namespace
}  // namespace coregui
