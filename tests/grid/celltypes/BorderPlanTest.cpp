#include "grid/celltypes/BorderPlan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace coregui {
namespace {

// The lines as text, "x,y-x,y ink" each, in a cell from (10,20) to (30,40).
constexpr CRect kCell(10, 20, 30, 40);

std::string Text(const BorderPlan& plan) {
  static constexpr const char* kInk[] = {"cell", "grid", "light", "shadow"};
  std::string text;
  for (int i = 0; i < plan.Count(); ++i) {
    const BorderLine& line = plan[i];
    text += std::to_string(line.from.x) + "," + std::to_string(line.from.y) + "-" +
            std::to_string(line.to.x) + "," + std::to_string(line.to.y) + " " +
            kInk[static_cast<int>(line.ink)] + "; ";
  }
  return text;
}

TEST(BorderPlan, DrawsTheLinesOfItsBits) {
  const struct {
    const char* name;
    int bits;
    bool spreadsheet;
    int height3d;
    const char* lines;
    CRect inner;
  } rows[] = {
      {"none", 0, false, 1, "", kCell},
      {"thin left", 0x1, false, 1, "10,20-10,40 cell; ", {11, 20, 30, 40}},
      {"thin top", 0x2, false, 1, "10,20-30,20 cell; ", {10, 21, 30, 40}},
      {"thin right", 0x4, false, 1, "29,20-29,40 cell; ", {10, 20, 29, 40}},
      {"thin bottom", 0x8, false, 1, "10,39-30,39 cell; ", {10, 20, 30, 39}},
      {"medium right goes inwards", 0x40, false, 1, "29,20-29,40 cell; 28,20-28,40 cell; ", {10, 20, 28, 40}},
      {"thick top",
       0x200,
       false,
       1,
       "10,20-30,20 cell; 10,21-30,21 cell; 10,22-30,22 cell; ",
       {10, 23, 30, 40}},
      {"the widest of a side wins",
       0x111,
       false,
       1,
       "10,20-10,40 cell; 11,20-11,40 cell; 12,20-12,40 cell; ",
       {13, 20, 30, 40}},
      {"spreadsheet", 0, true, 1, "29,20-29,40 grid; 10,39-30,39 grid; ", {10, 20, 29, 39}},
      {"spreadsheet yields to the cell's own side",
       0x4,
       true,
       1,
       "29,20-29,40 cell; 10,39-30,39 grid; ",
       {10, 20, 29, 39}},
      {"raised switches spreadsheet off",
       0x2000,
       true,
       1,
       "10,20-10,40 light; 10,20-30,20 light; 29,20-29,40 shadow; 10,39-30,39 shadow; ",
       {11, 21, 29, 39}},
      {"sunken",
       0x1000,
       false,
       1,
       "10,20-10,40 shadow; 10,20-30,20 shadow; 29,20-29,40 light; 10,39-30,39 light; ",
       {11, 21, 29, 39}},
      {"flat", 0x2000, true, 0, "", kCell}};
  for (const auto& row : rows) {
    const BorderPlan plan(kCell, row.bits, row.spreadsheet, row.height3d);
    EXPECT_EQ(Text(plan), row.lines) << row.name;
    EXPECT_EQ(plan.Inner(), row.inner) << row.name;
  }
}

TEST(BorderPlan, HoldsEveryStyleAtOnceAndNeverTurnsTheInnerRectangleInsideOut) {
  EXPECT_EQ(BorderPlan(kCell, 0x3FFF, true, 1000).Count(), 4 * 4 + 4 * 3);
  const CRect inner = BorderPlan(CRect(0, 0, 4, 2), 0xF00, true, 1).Inner();
  EXPECT_GE(std::min(inner.Width(), inner.Height()), 0);
}

}  // namespace
}  // namespace coregui
