#include "core/Geometry2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <tuple>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kMax = std::numeric_limits<double>::max();

std::string Text(const LINE_2D_record& line) {
  std::ostringstream text;
  text << line.start.x << ' ' << line.start.y << " -> " << line.end.x << ' ' << line.end.y;
  return text.str();
}

// What is left of each line in the window from 0, 0 to 10, 5; empty for nothing.
const std::tuple<const char*, LINE_2D_record, const char*> kClipCases[] = {
    {"inside stays", {{1, 1}, {9, 4}}, "1 1 -> 9 4"},
    {"horizontal, right to left", {{20, 2}, {-20, 2}}, "10 2 -> 0 2"},
    {"vertical", {{3, -1}, {3, 9}}, "3 0 -> 3 5"},
    {"diagonal through both edges", {{-5, -5}, {10, 10}}, "0 0 -> 5 5"},
    {"one end inside", {{4, 2}, {4, 200}}, "4 2 -> 4 5"},
    {"along the border", {{-1, 5}, {11, 5}}, "0 5 -> 10 5"},
    {"touches a corner", {{-1, 1}, {1, -1}}, "0 0 -> 0 0"},
    {"passes outside a corner", {{-2, 1}, {1, -2}}, ""},
    {"horizontal, above", {{1, 6}, {9, 6}}, ""},
    {"ends before the window", {{-9, 2}, {-1, 2}}, ""},
    {"a point inside", {{3, 3}, {3, 3}}, "3 3 -> 3 3"},
    {"a point outside", {{3, 6}, {3, 6}}, ""},
    {"not a number", {{3, kNan}, {3, 3}}, ""},
    {"infinite, horizontal", {{-kInf, 2}, {kInf, 2}}, "0 2 -> 10 2"},
    {"infinite to one side", {{5, 1}, {5, kInf}}, "5 1 -> 5 5"},
    {"as long as numbers go", {{-kMax, 2}, {kMax, 2}}, "0 2 -> 10 2"},
};

}  // namespace

TEST(ClipWindow, CutsLinesAtTheWindow) {
  for (const auto& [name, line, left] : kClipCases) {
    LINE_2D_record cut = line;
    EXPECT_EQ(tg_clipwindow({0, 0}, {10, 5}, cut), *left != '\0') << name;
    EXPECT_EQ(Text(cut), *left != '\0' ? left : Text(line)) << name;
  }
}

TEST(ClipWindow, CornersComeInAnyOrderAndTheWindowMayBeFlat) {
  LINE_2D_record line;
  tg_set_line_2d(line, -1, 1, 20, 1);
  EXPECT_TRUE(tg_clipwindow({10, 0}, {0, 5}, line));
  EXPECT_EQ(Text(line), "0 1 -> 10 1");
  tg_set_line_2d(line, {2, -7}, {2, 7});
  EXPECT_TRUE(tg_clipwindow({0, 1}, {4, 1}, line));
  EXPECT_EQ(Text(line), "2 1 -> 2 1");
  EXPECT_FALSE(tg_clipwindow({kNan, 0}, {4, 1}, line));
  EXPECT_TRUE(tg_clipwindow({-kInf, -kInf}, {kInf, kInf}, line));
  tg_set_line_2d(line, -kMax, -kMax, kMax, kMax);
  EXPECT_TRUE(tg_clipwindow({0, 0}, {10, 5}, line));
  EXPECT_TRUE(line.start.x >= 0 && line.start.y >= 0 && line.end.x <= 10 && line.end.y <= 5) << Text(line);
}

TEST(ClipWindow, WhatIsKeptLiesInTheWindowAndOnTheLine) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> mantissa(-1, 1);
  std::uniform_int_distribution<int> exponent(-3, 9);
  const auto number = [&] { return mantissa(random) * std::pow(10.0, exponent(random)); };
  int kept = 0;
  for (int i = 0; i < 20'000; ++i) {
    const LINE_2D_record whole{{number(), number()}, {number(), number()}};
    LINE_2D_record line = whole;
    if (!tg_clipwindow({-100, -50}, {100, 50}, line)) continue;
    ++kept;
    const double length = std::hypot(whole.end.x - whole.start.x, whole.end.y - whole.start.y);
    for (const PNT_2D_record& p : {line.start, line.end}) {
      ASSERT_TRUE(p.x >= -100 && p.x <= 100 && p.y >= -50 && p.y <= 50)
          << Text(whole) << " gives " << Text(line);
      const double area = (whole.end.x - whole.start.x) * (p.y - whole.start.y) -
                          (whole.end.y - whole.start.y) * (p.x - whole.start.x);
      ASSERT_LE(std::abs(area / length), 1e-6) << Text(whole) << " gives " << Text(line);
    }
  }
  EXPECT_GT(kept, 4'000);
}
