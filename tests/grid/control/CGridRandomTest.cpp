#include <gtest/gtest.h>

#include <set>

#include "grid/control/CGridInfo.h"
#include "grid/data/CGridMem.h"
#include "tests/grid/GridOperations.h"
#include "tests/grid/control/LoggingGrid.h"

using namespace coregui::test;

namespace {

/// What is wrong with the sheet; empty when nothing is.
std::string FaultOf(LoggingGrid& grid) {
  CGridInfo& info = grid.GetInfo();
  if (!info.columns.Check()) return "columns";
  if (!info.rows.Check()) return "rows";
  if (info.columns.Count() > 0 && grid.GetCurrentCol() < 0) return "no current column";
  if (info.rows.Count() > 0 && grid.GetCurrentRow() < 0) return "no current row";
  std::set<int> shown;
  for (int col = 0; col < grid.GetNumberCols(); ++col) shown.insert(grid.GetColTranslation(col));
  if (static_cast<long>(shown.size()) != info.columns.Count()) return "data that two columns show";
  for (int pixel = 0; pixel < 300; pixel += 7) {
    int col = 0;
    long row = 0;
    CRect rect;
    if (grid.GetCellFromPoint(pixel, pixel, &col, &row, &rect) == 0 && !rect.PtInRect({pixel, pixel})) {
      return "the cell at pixel " + std::to_string(pixel) + " is not there";
    }
  }
  return {};
}

std::string FaultAfter(const std::vector<GridStep>& steps) {
  LoggingGrid grid(5, 20, 200, 100);
  CGridMem other;
  grid.AddDataSource(&other);
  for (const GridStep& step : steps) {
    kGridOperations[step.operation].run(grid, step);
    if (std::string fault = FaultOf(grid); !fault.empty()) return fault;
  }
  return {};
}

}  // namespace

TEST(CGridCtrl, StaysInOrderThroughRandomOperations) {
  for (unsigned seed = 0; seed < 500; ++seed) {
    const std::vector<GridStep> steps = RandomSteps(seed, std::size(kGridOperations), 80);
    ASSERT_EQ(FaultAfter(steps), "") << "seed " << seed << ": " << ExplainSteps(steps, FaultAfter, [](int i) {
      return kGridOperations[i].name;
    });
  }
}
