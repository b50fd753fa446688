#include "grid/celltypes/BorderPlan.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

struct Row {
  const char* name;
  int bits;
  bool spreadsheet;
  int height3d;
  const char* lines;
  CRect inner;
};

class BorderPlanTable : public testing::TestWithParam<Row> {};

TEST_P(BorderPlanTable, DrawsTheLinesOfItsBits) {
  const Row& row = GetParam();
  const BorderPlan plan(kCell, row.bits, row.spreadsheet, row.height3d);
  EXPECT_EQ(Text(plan), row.lines);
  EXPECT_EQ(plan.Inner(), row.inner) << plan.Inner().left << ',' << plan.Inner().top << ','
                                     << plan.Inner().right << ',' << plan.Inner().bottom;
}

INSTANTIATE_TEST_SUITE_P(
    Styles, BorderPlanTable,
    testing::Values(Row{"none", 0, false, 1, "", kCell},  //
                    Row{"thinLeft", 0x1, false, 1, "10,20-10,40 cell; ", CRect(11, 20, 30, 40)},
                    Row{"thinTop", 0x2, false, 1, "10,20-30,20 cell; ", CRect(10, 21, 30, 40)},
                    Row{"thinRight", 0x4, false, 1, "29,20-29,40 cell; ", CRect(10, 20, 29, 40)},
                    Row{"thinBottom", 0x8, false, 1, "10,39-30,39 cell; ", CRect(10, 20, 30, 39)},
                    Row{"mediumRightGoesInwards", 0x40, false, 1, "29,20-29,40 cell; 28,20-28,40 cell; ",
                        CRect(10, 20, 28, 40)},
                    Row{"thickTop", 0x200, false, 1, "10,20-30,20 cell; 10,21-30,21 cell; 10,22-30,22 cell; ",
                        CRect(10, 23, 30, 40)},
                    Row{"theWidestOfASideWins", 0x111, false, 1,
                        "10,20-10,40 cell; 11,20-11,40 cell; 12,20-12,40 cell; ", CRect(13, 20, 30, 40)},
                    Row{"spreadsheet", 0, true, 1, "29,20-29,40 grid; 10,39-30,39 grid; ",
                        CRect(10, 20, 29, 39)},
                    Row{"spreadsheetYieldsToTheCellsOwnSide", 0x4, true, 1,
                        "29,20-29,40 cell; 10,39-30,39 grid; ", CRect(10, 20, 29, 39)},
                    Row{"raisedSwitchesSpreadsheetOff", 0x2000, true, 1,
                        "10,20-10,40 light; 10,20-30,20 light; 29,20-29,40 shadow; 10,39-30,39 shadow; ",
                        CRect(11, 21, 29, 39)},
                    Row{"sunken", 0x1000, false, 1,
                        "10,20-10,40 shadow; 10,20-30,20 shadow; 29,20-29,40 light; 10,39-30,39 light; ",
                        CRect(11, 21, 29, 39)},
                    Row{"flat3d", 0x2000, true, 0, "", kCell}),
    [](const auto& test) { return test.param.name; });

TEST(BorderPlan, NeverTurnsTheInnerRectangleInsideOut) {
  const BorderPlan plan(CRect(0, 0, 4, 2), 0xF00, true, 1);
  EXPECT_GE(plan.Inner().Width(), 0);
  EXPECT_GE(plan.Inner().Height(), 0);
}

TEST(BorderPlan, HoldsEveryStyleAtOnce) {
  const BorderPlan plan(kCell, 0x3FFF, true, 1000);
  EXPECT_EQ(plan.Count(), 4 * 4 + 4 * 3);
}

}  // namespace
}  // namespace coregui
