#pragma once

#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "tests/support/ShortestFailing.h"

namespace coregui::test {

/// One operation with arguments that often lie a little outside.
struct GridStep {
  int operation;
  int a;
  int b;
  int c;
};

enum class Redraws { changes, nothing };
struct GridOperation {
  const char* name;
  void (*run)(CGridCtrl& grid, const GridStep& step);
  Redraws redraws = Redraws::changes;
};

inline const GridOperation kGridOperations[] = {
    {"SetNumberRows", [](CGridCtrl& g, const GridStep& s) { g.SetNumberRows(s.a * 4L); }},
    {"SetNumberCols", [](CGridCtrl& g, const GridStep& s) { g.SetNumberCols(s.a); }},
    {"InsertRow", [](CGridCtrl& g, const GridStep& s) { g.InsertRow(s.a); }},
    {"DeleteRow", [](CGridCtrl& g, const GridStep& s) { g.DeleteRow(s.a); }},
    {"InsertCol", [](CGridCtrl& g, const GridStep& s) { g.InsertCol(s.a); }},
    {"DeleteCol", [](CGridCtrl& g, const GridStep& s) { g.DeleteCol(s.a); }},
    {"MoveColPosition", [](CGridCtrl& g, const GridStep& s) { g.MoveColPosition(s.a, s.b, s.c % 2); }},
    {"LockColumns", [](CGridCtrl& g, const GridStep& s) { g.LockColumns(s.a / 3); }},
    {"LockRows", [](CGridCtrl& g, const GridStep& s) { g.LockRows(s.a / 3); }},
    {"SetColWidth", [](CGridCtrl& g, const GridStep& s) { g.SetColWidth(s.a, s.b / 4 * 40); }},
    {"SetRowHeight", [](CGridCtrl& g, const GridStep& s) { g.SetRowHeight(s.a, s.b / 4 * 15); }},
    {"SetUniformRowHeight", [](CGridCtrl& g, const GridStep& s) { g.SetUniformRowHeight(s.a % 2); }},
    {"FitToWindow", [](CGridCtrl& g, const GridStep& s) { g.FitToWindow(s.a, s.b); }},
    {"MoveWindow", [](CGridCtrl& g, const GridStep& s) { g.MoveWindow(0, 0, s.a * 40, s.b * 30); }},
    {"GotoCell", [](CGridCtrl& g, const GridStep& s) { g.GotoCell(s.a, s.b); }},
    {"MoveCurrentCol", [](CGridCtrl& g, const GridStep& s) { g.MoveCurrentCol(s.a); }},
    {"MoveCurrentRow", [](CGridCtrl& g, const GridStep& s) { g.MoveCurrentRow(s.a); }},
    {"SetTopRow", [](CGridCtrl& g, const GridStep& s) { g.SetTopRow(s.a * 3L); }},
    {"SetLeftCol", [](CGridCtrl& g, const GridStep& s) { g.SetLeftCol(s.a); }},
    {"MoveTopRow", [](CGridCtrl& g, const GridStep& s) { g.MoveTopRow(s.a); }},
    {"MoveLeftCol", [](CGridCtrl& g, const GridStep& s) { g.MoveLeftCol(s.a); }},
    {"JoinCells",
     [](CGridCtrl& g, const GridStep& s) { g.JoinCells(s.a, s.b, s.a + s.c / 4, s.b + s.c / 3); }},
    {"JoinWithHeading",
     [](CGridCtrl& g, const GridStep& s) { g.JoinCells(s.c % 2 - 1, s.c % 3 - 1, s.a, s.b); }},
    {"DeleteCell", [](CGridCtrl& g, const GridStep& s) { g.DeleteCell(s.a / 2, s.b / 2); }, Redraws::nothing},
    {"UnJoinCells", [](CGridCtrl& g, const GridStep& s) { g.UnJoinCells(s.a, s.b, s.a + 2, s.b + 2); }},
    {"SetDefDataSource", [](CGridCtrl& g, const GridStep& s) { g.SetDefDataSource(s.a % 2); },
     Redraws::nothing},
    {"SetNumberSheets", [](CGridCtrl& g, const GridStep& s) { g.SetNumberSheets(s.a / 3); }},
    {"SetSheetNumber", [](CGridCtrl& g, const GridStep& s) { g.SetSheetNumber(s.a / 3); }},
};

/// A row of steps that is always the same for a seed. `operations` is how many there are to choose from.
inline std::vector<GridStep> RandomSteps(unsigned seed, std::size_t operations, std::size_t count) {
  std::mt19937 random(seed);
  std::vector<GridStep> steps(count);
  for (GridStep& step : steps) {
    const auto argument = [&] { return static_cast<int>(random() % 15) - 2; };
    step = {static_cast<int>(random() % operations), argument(), argument(), argument()};
  }
  return steps;
}

/// The fault and the shortest row of steps that has one. `nameOf` names an operation by its number.
template <class FaultAfter, class NameOf>
std::string ExplainSteps(const std::vector<GridStep>& failing, FaultAfter faultAfter, NameOf nameOf) {
  const std::vector<GridStep> steps = ShortestFailing(failing, faultAfter);
  std::ostringstream text;
  text << faultAfter(steps) << " after";
  for (const GridStep& s : steps) {
    text << " " << nameOf(s.operation) << "(" << s.a << "," << s.b << "," << s.c << ")";
  }
  return text.str();
}

}  // namespace coregui::test
