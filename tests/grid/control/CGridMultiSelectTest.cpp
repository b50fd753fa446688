#include "grid/control/CGridMultiSelect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "grid/control/CGridDrawHint.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::At;
using coregui::test::LoggingGrid;
using coregui::test::SelectedIn;

TEST(CGridMultiSelect, TheLastBlockThatCoversACellDecidesUnlessTheFirstShall) {
  for (const int mode : {0, MULTISELECT_FIRSTWINS}) {
    CGridMultiSelect selection;
    selection.SelectMode(mode);
    selection.StartBlock(0, 0);
    selection.EndBlock(3, 3);
    selection.ToggleCell(2, 2);
    int block = -1;
    EXPECT_EQ(selection.IsSelected(2, 2, &block), mode == 0 ? 0 : 1);
    EXPECT_EQ(block, mode == 0 ? 1 : 0);
    EXPECT_EQ(selection.IsSelected(1, 1), 1);
    EXPECT_EQ(selection.IsSelected(9, 9, &block), 0);
    EXPECT_EQ(block, 0);
  }
}

TEST(CGridMultiSelect, TogglingTwiceInvertsTheSameBlock) {
  CGridMultiSelect selection;
  selection.OnLClick(1, 1, 0);
  selection.OnLClick(1, 1, MK_CONTROL);
  EXPECT_EQ(selection.IsSelected(1, 1), 1) << "a Ctrl click adds a block, it never deselects";
  CGridMultiSelect other;
  other.StartBlock(0, 0);
  other.EndBlock(2, 2);
  other.ToggleCell(1, 1);
  EXPECT_EQ(other.IsSelected(1, 1), 0);
  other.ToggleCell(1, 1);
  EXPECT_EQ(other.IsSelected(1, 1), 1);
  EXPECT_EQ(other.GetNumberBlocks(), 2);
}

TEST(CGridMultiSelect, ReportsRightTopLeftBottomInThisOrder) {
  LoggingGrid grid(10, 20, 500, 100);
  CGridMultiSelect& selection = *grid.GetMultiSelect();
  selection.StartBlock(5, 7);
  selection.EndBlock(2, 9);
  EXPECT_EQ(grid.TakeLog(), "Selection 5 7 5 7 1; Selection 5 7 2 9 1");
  selection.ToggleCell(3, 8);
  selection.ToggleCell(3, 8);
  EXPECT_EQ(grid.TakeLog(), "Selection 3 8 3 8 2; Selection 3 8 3 8 2")
      << "inverting a block is a change too";
}

TEST(CGridMultiSelect, HintsTheCellsWhoseLookChanges) {
  CWnd frame;
  frame.Create(L"", L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200), nullptr, 0);
  LoggingGrid grid;
  ASSERT_TRUE(grid.CreateGrid(WS_CHILD, CRect(0, 0, 300, 200), &frame, 1));
  grid.SetNumberCols(10);
  grid.SetNumberRows(20);
  CGridMultiSelect& selection = *grid.GetMultiSelect();
  CGridDrawHint& hints = *grid.GetDrawHints();
  struct Step {
    const char* name;
    std::function<void()> change;
    const char* hinted;
  };
  const Step steps[] = {
      {"begun", [&] { selection.StartBlock(3, 4); }, "3,4 to 3,4 "},
      {"extended both ways", [&] { selection.EndBlock(5, 6); }, "3,4 to 5,6 3,4 to 5,6 "},
      {"turned over its start", [&] { selection.EndBlock(5, 2); }, "3,2 to 5,6 "},
      {"a cell taken out", [&] { selection.ToggleCell(4, 3); }, "4,3 to 4,3 "},
      {"and in again", [&] { selection.ToggleCell(4, 3); }, "4,3 to 4,3 "},
      {"out once more", [&] { selection.ToggleCell(4, 3); }, "4,3 to 4,3 "},
      {"a block that deselects comes to select", [&] { selection.EndBlock(4, 3); }, "4,3 to 4,3 "},
      {"all dropped", [&] { selection.OnLClick(9, 9, 0); }, "3,2 to 5,4 9,9 to 9,9 "},
  };
  for (const Step& step : steps) {
    hints.ClearHints();
    step.change();
    std::string hinted;
    for (const CGridDrawHint::Range& r : hints.GetRanges()) {
      hinted += At(r.startCol, r.startRow) + " to " + At(r.endCol, r.endRow) + " ";
    }
    EXPECT_EQ(hinted, step.hinted) << step.name;
  }
  grid.DestroyWindow();
  frame.DestroyWindow();
}

TEST(CGridMultiSelect, WholeRowsReachOnePastTheLastColumnIsKept) {
  LoggingGrid grid(10, 20, 500, 100);
  grid.SetMultiSelectMode(MULTISELECT_ROWS);
  CGridMultiSelect& selection = *grid.GetMultiSelect();
  selection.StartBlock(5, 7);
  selection.EndBlock(5, 8);
  int left = 0;
  int right = 0;
  long top = 0;
  long bottom = 0;
  EXPECT_EQ(selection.GetCurrentBlock(&left, &top, &right, &bottom), 0);
  EXPECT_EQ(CRect(left, top, right, bottom), CRect(0, 7, 10, 8));
  EXPECT_EQ(selection.IsCellInColSelected(99), 1) << "any column stands for column 1";
  EXPECT_EQ(selection.IsCellInRowSelected(8), 1);
  EXPECT_EQ(selection.IsCellInRowSelected(9), 0);
  EXPECT_EQ(SelectedIn(selection), "0,7 0,8 ") << "one cell per row";
}

TEST(CGridMultiSelect, EnumeratesRowByRowBothWaysAndTheCurrentCellWhenEmpty) {
  LoggingGrid grid(10, 20, 500, 100);
  grid.GotoCell(4, 4);
  CGridMultiSelect& selection = *grid.GetMultiSelect();
  int col = 0;
  long row = 0;
  EXPECT_EQ(SelectedIn(selection), "4,4 ");
  EXPECT_EQ(selection.EnumLastSelected(&col, &row), 0);
  EXPECT_EQ(At(col, row), "4,4");
  selection.StartBlock(1, 1);
  selection.EndBlock(2, 2);
  selection.ToggleCell(2, 1);
  selection.StartBlock(6, 2);
  EXPECT_EQ(SelectedIn(selection), "1,1 1,2 2,2 6,2 ");
  std::string backwards;
  for (int more = selection.EnumLastSelected(&col, &row); more == 0;
       more = selection.EnumPreviousSelected(&col, &row)) {
    backwards += At(col, row) + " ";
  }
  EXPECT_EQ(backwards, "6,2 2,2 1,2 1,1 ");
  int right = 0;
  long bottom = 0;
  EXPECT_EQ(selection.GetTotalRange(&col, &row, &right, &bottom), 0);
  EXPECT_EQ(CRect(col, row, right, bottom), CRect(1, 1, 6, 2));
  selection.ClearAll();
  EXPECT_EQ(selection.GetTotalRange(&col, &row, &right, &bottom), 1);
  EXPECT_EQ(selection.GetOrigCell(&col, &row), 1);
  EXPECT_EQ(selection.EndBlock(1, 1), 1);
}

TEST(CGridMultiSelect, ClicksAndKeysBeginExtendAndKeepBlocksByTheirKeys) {
  CGridMultiSelect selection;
  selection.OnLClick(1, 1, 0);
  EXPECT_EQ(SelectedIn(selection), "1,1 ");
  selection.OnLClick(2, 2, MK_SHIFT);
  EXPECT_EQ(SelectedIn(selection), "1,1 2,1 1,2 2,2 ");
  selection.OnRClick(1, 2, 0);
  EXPECT_EQ(SelectedIn(selection), "1,1 2,1 1,2 2,2 ") << "a right click inside keeps the selection";
  selection.OnLClick(7, 7, MK_CONTROL);
  selection.OnMouseMove(8, 7, MK_LBUTTON);
  EXPECT_EQ(SelectedIn(selection), "1,1 2,1 1,2 2,2 7,7 8,7 ");
  selection.OnRClick(20, 20, 0);
  EXPECT_EQ(SelectedIn(selection), "20,20 ") << "a right click outside begins anew";
  selection.OnKeyMove(1, 1);
  SetKeyState(VK_SHIFT, true);
  selection.OnKeyMove(2, 1);
  SetKeyState(VK_SHIFT, false);
  SetKeyState(VK_CONTROL, true);
  selection.OnKeyMove(6, 6);
  SetKeyState(VK_CONTROL, false);
  EXPECT_EQ(SelectedIn(selection), "1,1 2,1 6,6 ") << "Ctrl keeps the old blocks";
  selection.OnKeyMove(8, 8);
  EXPECT_EQ(SelectedIn(selection), "8,8 ");
}

TEST(CGridDrawHint, AHintSpreadsOverWhatIsDrawnAsOneAndForgetsIt) {
  using Range = CGridDrawHint::Range;
  using testing::ElementsAre;
  CGridDrawHint hints;
  hints.NoteDrawnAsOne({1, 4, 3, 6});
  hints.NoteDrawnAsOne({2, 0, 3, 0});
  hints.NoteDrawnAsOne({2, 0, 5, 0});
  hints.NoteDrawnAsOne({-1, 4, 0, 9});
  hints.SpreadHints();
  EXPECT_THAT(hints.GetDrawnAsOne(), ElementsAre(Range{2, 0, 5, 0}, Range{-1, 4, 0, 9}, Range{1, 4, 3, 6}));
  EXPECT_TRUE(hints.IsDrawnAsOne({5, 0, 9, 1}));
  EXPECT_FALSE(hints.IsDrawnAsOne({6, 0, 9, 9}));
  hints.AddHint(3, 6);
  hints.AddHint(-1, 1, -1, 3);
  hints.AddHint(1, 0, 5, 0);
  hints.SpreadHints();
  EXPECT_THAT(hints.GetRanges(),
              ElementsAre(Range{3, 6, 3, 6}, Range{-1, 1, -1, 3}, Range{1, 0, 5, 0}, Range{1, 4, 3, 6}))
      << "what is hinted in full is not hinted again";
  EXPECT_THAT(hints.GetDrawnAsOne(), ElementsAre(Range{-1, 4, 0, 9}));
}

TEST(CGridDrawHint, WideningTheFirstRangeLeavesTheBoxIsKept) {
  CGridDrawHint hints;
  EXPECT_EQ(hints.IsInvalid(0, 0), 0);
  hints.AddHint(2, 2, 4, 4);
  hints.AddToHint(8, 8);
  EXPECT_EQ(hints.IsInvalid(4, 4), 1);
  EXPECT_EQ(hints.IsInvalid(8, 8), 0) << "inside the range, outside the box";
  int startCol = 9;
  long startRow = 9;
  int endCol = 9;
  long endRow = 9;
  EXPECT_EQ(hints.GetTotalRange(&startCol, &startRow, &endCol, &endRow), 1);
  EXPECT_EQ(endCol, 8);
  hints.AddHint(6, 0);
  EXPECT_EQ(hints.IsInvalid(6, 0), 1);
  EXPECT_EQ(hints.IsInvalid(6, 1), 0) << "in the box, in no range";
  hints.SetAsValid(1, 1);
  EXPECT_EQ(hints.IsValid(1, 1), 1);
  hints.ClearHints();
  EXPECT_EQ(hints.IsValid(1, 1), 0);
  EXPECT_EQ(hints.IsInvalid(2, 2), 0);
  EXPECT_EQ(hints.GetTotalRange(&startCol, &startRow, &endCol, &endRow), 0);
  EXPECT_EQ(endRow, 0);
}
