#include "grid/display/LineWalk.h"

#include <gtest/gtest.h>

#include <limits>

namespace coregui {
namespace {

TEST(MeasureScroll, GivesUpPastTheWindowWithoutWalkingOn) {
  long asked = 0;
  const auto size = [&asked](long) {
    ++asked;
    return 20;
  };
  EXPECT_EQ(MeasureScroll(0, std::numeric_limits<std::int32_t>::max(), 100, size), (ScrollDistance{0, true}));
  EXPECT_EQ(asked, 6);
}

}  // namespace
}  // namespace coregui
