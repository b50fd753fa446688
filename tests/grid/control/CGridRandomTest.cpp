#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>

#include "grid/control/CGridInfo.h"
#include "grid/data/CGridMem.h"
#include "tests/grid/control/LoggingGrid.h"
#include "tests/support/ShortestFailing.h"

using coregui::test::LoggingGrid;

namespace {

/// One operation with arguments that often lie a little outside.
struct Step {
  int operation;
  int a;
  int b;
  int c;
};

struct Operation {
  const char* name;
  void (*run)(CGridCtrl& grid, const Step& step);
};

const Operation operations[] = {
    {"SetNumberRows", [](CGridCtrl& g, const Step& s) { g.SetNumberRows(s.a * 4L); }},
    {"SetNumberCols", [](CGridCtrl& g, const Step& s) { g.SetNumberCols(s.a); }},
    {"InsertRow", [](CGridCtrl& g, const Step& s) { g.InsertRow(s.a); }},
    {"DeleteRow", [](CGridCtrl& g, const Step& s) { g.DeleteRow(s.a); }},
    {"InsertCol", [](CGridCtrl& g, const Step& s) { g.InsertCol(s.a); }},
    {"DeleteCol", [](CGridCtrl& g, const Step& s) { g.DeleteCol(s.a); }},
    {"MoveColPosition", [](CGridCtrl& g, const Step& s) { g.MoveColPosition(s.a, s.b, s.c % 2); }},
    {"LockColumns", [](CGridCtrl& g, const Step& s) { g.LockColumns(s.a / 3); }},
    {"LockRows", [](CGridCtrl& g, const Step& s) { g.LockRows(s.a / 3); }},
    {"SetColWidth", [](CGridCtrl& g, const Step& s) { g.SetColWidth(s.a, s.b / 4 * 40); }},
    {"SetRowHeight", [](CGridCtrl& g, const Step& s) { g.SetRowHeight(s.a, s.b / 4 * 15); }},
    {"SetUniformRowHeight", [](CGridCtrl& g, const Step& s) { g.SetUniformRowHeight(s.a % 2); }},
    {"FitToWindow", [](CGridCtrl& g, const Step& s) { g.FitToWindow(s.a, s.b); }},
    {"MoveWindow", [](CGridCtrl& g, const Step& s) { g.MoveWindow(0, 0, s.a * 40, s.b * 30); }},
    {"GotoCell", [](CGridCtrl& g, const Step& s) { g.GotoCell(s.a, s.b); }},
    {"MoveCurrentCol", [](CGridCtrl& g, const Step& s) { g.MoveCurrentCol(s.a); }},
    {"MoveCurrentRow", [](CGridCtrl& g, const Step& s) { g.MoveCurrentRow(s.a); }},
    {"SetTopRow", [](CGridCtrl& g, const Step& s) { g.SetTopRow(s.a * 3L); }},
    {"SetLeftCol", [](CGridCtrl& g, const Step& s) { g.SetLeftCol(s.a); }},
    {"MoveTopRow", [](CGridCtrl& g, const Step& s) { g.MoveTopRow(s.a); }},
    {"MoveLeftCol", [](CGridCtrl& g, const Step& s) { g.MoveLeftCol(s.a); }},
    {"JoinCells", [](CGridCtrl& g, const Step& s) { g.JoinCells(s.a, s.b, s.a + s.c / 4, s.b + s.c / 3); }},
    {"JoinWithHeading", [](CGridCtrl& g, const Step& s) { g.JoinCells(s.c % 2 - 1, s.c % 3 - 1, s.a, s.b); }},
    {"DeleteCell", [](CGridCtrl& g, const Step& s) { g.DeleteCell(s.a / 2, s.b / 2); }},
    {"UnJoinCells", [](CGridCtrl& g, const Step& s) { g.UnJoinCells(s.a, s.b, s.a + 2, s.b + 2); }},
    {"SetDefDataSource", [](CGridCtrl& g, const Step& s) { g.SetDefDataSource(s.a % 2); }},
    {"SetNumberSheets", [](CGridCtrl& g, const Step& s) { g.SetNumberSheets(s.a / 3); }},
    {"SetSheetNumber", [](CGridCtrl& g, const Step& s) { g.SetSheetNumber(s.a / 3); }},
};

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

std::string FaultAfter(const std::vector<Step>& steps) {
  LoggingGrid grid(5, 20, 200, 100);
  CGridMem other;
  grid.AddDataSource(&other);
  for (const Step& step : steps) {
    operations[step.operation].run(grid, step);
    if (std::string fault = FaultOf(grid); !fault.empty()) return fault;
  }
  return {};
}

/// Leaves out what the fault does not need.
std::string Explain(const std::vector<Step>& failing) {
  const std::vector<Step> steps = coregui::test::ShortestFailing(failing, FaultAfter);
  std::ostringstream text;
  text << FaultAfter(steps) << " after";
  for (const Step& s : steps) {
    text << " " << operations[s.operation].name << "(" << s.a << "," << s.b << "," << s.c << ")";
  }
  return text.str();
}

}  // namespace

TEST(CGridCtrl, StaysInOrderThroughRandomOperations) {
  for (unsigned seed = 0; seed < 500; ++seed) {
    std::mt19937 random(seed);
    std::vector<Step> steps(80);
    for (Step& step : steps) {
      const auto argument = [&] { return static_cast<int>(random() % 15) - 2; };
      step = {static_cast<int>(random() % std::size(operations)), argument(), argument(), argument()};
    }
    ASSERT_EQ(FaultAfter(steps), "") << "seed " << seed << ": " << Explain(steps);
  }
}
