#include "grid/display/CGridPainter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "grid/control/CGridMultiSelect.h"
#include "grid/display/CHintedRow.h"
#include "tests/grid/display/FakeGrid.h"

namespace coregui::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A painter over a fake grid that draws on a recording context.
struct CGridPainterTest : testing::Test {
  FakeGrid grid;
  CGridPainter painter{grid, grid};
  CRecordingDC screen;

  void Paint() {
    grid.type.drawn.clear();
    grid.log.clear();
    screen.ClearLog();
    painter.Paint({&screen, nullptr, CRect(0, 0, 210, 110)});
  }
  void SetCurrent(int col, long row) {
    grid.GetInfo().columns.current = grid.GetInfo().columns.drag = col;
    grid.GetInfo().rows.current = grid.GetInfo().rows.drag = row;
  }
};

TEST_F(CGridPainterTest, DrawsOnlyHintedCellsInRowOrder) {
  painter.Hints().AddHint(1, 2);
  painter.Hints().AddHint(0, 1, 1, 1);
  SetCurrent(5, 50);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,1", "1,1", "1,2"));
  EXPECT_EQ(grid.type.lastRect, CRect(50, 40, 100, 60));
  Paint();
  EXPECT_THAT(grid.type.drawn, IsEmpty()) << "a pass empties the hints";
}

TEST_F(CGridPainterTest, JumpsFromLockedLinesToTheScrolledOnes) {
  grid.GetInfo().columns.SetLocked(1);
  grid.GetInfo().columns.SetFirst(7);
  grid.GetInfo().rows.SetLocked(2);
  grid.GetInfo().rows.SetFirst(30);
  painter.Hints().AddHint(0, 1, 7, 30);
  SetCurrent(-1, -1);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,1", "7,1", "0,30", "7,30"));
  // The separators: right of and below what is locked.
  EXPECT_THAT(std::wstring(screen.GetLog()), testing::HasSubstr(L"LineTo 49,20 49,41 #000000"));
  EXPECT_THAT(std::wstring(screen.GetLog()), testing::HasSubstr(L"LineTo 0,39 51,39 #000000"));
}

TEST_F(CGridPainterTest, DrawsAJoinedBlockOnceWithItsWholeRectangle) {
  grid.JoinCells(1, 1, 2, 8);
  grid.GetInfo().rows.SetFirst(4);
  painter.HintAll();
  SetCurrent(-1, -1);
  Paint();
  EXPECT_EQ(std::count(grid.type.drawn.begin(), grid.type.drawn.end(), "1,1"), 1);
  EXPECT_EQ(std::count(grid.type.drawn.begin(), grid.type.drawn.end(), "1,5"), 0);
  painter.Hints().AddHint(2, 6);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("1,1"));
  EXPECT_EQ(grid.type.lastRect, CRect(50, -60, 150, 100));
}

TEST_F(CGridPainterTest, MarksTheCurrentCellBeforeTheSelection) {
  grid.SetMultiSelectMode(1);
  CGridMultiSelect& selection = *grid.GetInfo().selection;
  selection.StartBlock(0, 0);
  selection.StartBlock(1, 0);
  SetCurrent(0, 0);
  painter.Hints().AddHint(0, 0, 2, 0);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,0 c", "1,0 s2", "2,0"));
  grid.GetInfo().view.highlightRow = 1;
  painter.Hints().AddHint(0, 0, 1, 0);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,0 c", "1,0 c"));
}

TEST_F(CGridPainterTest, FillsTheBlankAreas) {
  grid.SetNumberCols(3);
  grid.SetNumberRows(2);
  Paint();
  EXPECT_EQ(screen.CountOf(L"FillRect 150,0,210,110 #563412"), 1) << screen.GetLog().ToUtf8();
  EXPECT_EQ(screen.CountOf(L"FillRect 0,40,210,110 #563412"), 1) << screen.GetLog().ToUtf8();
  EXPECT_EQ(grid.GetRightCol(), 3);
  EXPECT_EQ(grid.GetBottomRow(), 2);
}

TEST_F(CGridPainterTest, PaintsAnEmptyGridAndOneWithoutRoom) {
  grid.SetNumberRows(0);
  painter.HintAll();
  Paint();
  EXPECT_THAT(grid.type.drawn, IsEmpty());
  EXPECT_EQ(screen.CountOf(L"FillRect 0,0,210,110"), 1);
  grid.SetNumberRows(100);
  grid.GetInfo().columns.SetExtent(0);
  grid.GetInfo().rows.SetExtent(0);
  painter.HintAll();
  Paint();
  EXPECT_EQ(grid.type.drawn.size(), 1U) << "the walk ends with the first cell that passes the edges";
}

TEST_F(CGridPainterTest, ReachesTheLastPossibleRow) {
  grid.SetNumberRows(0x7FFFFFFF);
  grid.GetInfo().rows.SetFirst(0x7FFFFFFF - 2);
  painter.HintAll();
  SetCurrent(0, 0x7FFFFFFE);
  Paint();
  EXPECT_EQ(grid.type.drawn.back(), "4,2147483646");
  EXPECT_EQ(grid.type.drawn.size(), 10U);
  EXPECT_EQ(grid.GetRightCol(), 4) << "partly shown";
}

TEST_F(CGridPainterTest, DrawsRowsThatComeUpAtTheEndInTheSamePass) {
  // There turns out to be one more row each time the end is reached, up to five.
  grid.SetNumberRows(2);
  grid.type.onDraw = [this](int, long row) {
    if (row + 1 == grid.GetNumberRows() && row < 4) grid.SetNumberRows(row + 2, 0);
  };
  painter.Hints().AddHint(0, 0, 0, 1);
  SetCurrent(-1, -1);
  Paint();
  EXPECT_THAT(grid.type.drawn, testing::Contains("0,2"));
  EXPECT_EQ(grid.type.drawn.back(), "4,4");
  EXPECT_EQ(grid.GetBottomRow(), 5);
}

TEST_F(CGridPainterTest, SurvivesRowsDeletedByTheDrawing) {
  grid.type.onDraw = [this](int, long row) {
    if (row == 1) grid.SetNumberRows(2, 0);
  };
  painter.HintAll();
  Paint();
  EXPECT_EQ(grid.type.drawn.back().substr(0, 3), "4,1");
  EXPECT_EQ(grid.GetBottomRow(), 2);
}

TEST_F(CGridPainterTest, ARepaintAskedForInsideAPassStaysForTheNext) {
  painter.Hints().AddHint(0, 0, 0, 1);
  grid.onGetCell = [this](int, long row) {
    if (row != 1) return;
    painter.Hints().AddHint(0, 0);
    painter.RequestDuringPass({0, 0, 0, 0});
    painter.Paint({&screen, nullptr, CRect(0, 0, 210, 110)});  // no pass within the pass
  };
  SetCurrent(-1, -1);
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,0", "0,1"));
  EXPECT_EQ(painter.TakeRequested().size(), 1U);
  grid.onGetCell = nullptr;
  Paint();
  EXPECT_THAT(grid.type.drawn, ElementsAre("0,0"));
}

TEST_F(CGridPainterTest, DrawsOnTheBitmapAndCopiesIt) {
  CRecordingDC memory;
  painter.Hints().AddHint(0, 0);
  SetCurrent(0, 0);
  painter.Frame().SetFocus(true);
  painter.Paint({&screen, &memory, CRect(0, 0, 210, 110)});
  EXPECT_THAT(grid.log, ElementsAre("setup 1 memory", "focus 0,0,50,20"));
  EXPECT_EQ(screen.CountOf(L"BitBlt 0,0,210,110"), 1) << screen.GetLog().ToUtf8();
}

TEST_F(CGridPainterTest, TheFocusRectangleSurroundsTheCellTheBlockOrTheRow) {
  const auto focus = [this] {
    Paint();
    return grid.log.back();
  };
  grid.JoinCells(3, 1, 4, 2);
  SetCurrent(1, 1);
  EXPECT_EQ(focus(), "setup 1") << "without the focus";
  painter.Frame().SetFocus(true);
  EXPECT_EQ(focus(), "focus 50,20,100,40");
  painter.Frame().DisableOnce();
  EXPECT_EQ(focus(), "setup 1") << "left out once";
  SetCurrent(3, 1);
  EXPECT_EQ(focus(), "focus 150,20,250,60");
  grid.GetInfo().view.highlightRow = 1;
  SetCurrent(1, 1);
  EXPECT_EQ(focus(), "focus 0,20,1000,40") << "all columns from the left one on";
  grid.GetInfo().view.highlightRowToEdge = 1;
  EXPECT_EQ(focus(), "focus 0,20,210,40");
  grid.SetNumberCols(3);
  EXPECT_EQ(focus(), "focus 0,20,150,40");
}

TEST_F(CGridPainterTest, TheFrameOfARowThatFillsTheWindowLeavesOutTheLockedColumnsIsKept) {
  SetCurrent(1, 1);
  painter.Frame().SetFocus(true);
  grid.GetInfo().view.highlightRow = 1;
  grid.LockColumns(2);
  Paint();
  EXPECT_EQ(grid.log.back(), "focus 0,20,900,40");
}

// --- Hints by row

TEST(CHintedRow, AnswersAsTheHintsDoAlsoThoseAddedWhileTheRowIsDrawn) {
  CGridDrawHint hints;
  hints.AddHint(2, 2);
  hints.AddHint(4, 3, 6, 9);
  hints.AddHint(0, 5, 1, 5);
  CHintedRow row(hints);
  for (long at = 0; at < 11; ++at) {
    row.Enter(at);
    for (int col = 0; col < 8; ++col)
      EXPECT_EQ(row.IsInvalid(col), hints.IsInvalid(col, at) != 0) << col << ',' << at;
  }
  EXPECT_TRUE(row.IsEmpty());
  hints.AddHint(1, 10);
  EXPECT_FALSE(row.IsEmpty());
  EXPECT_TRUE(row.IsInvalid(1));
}

TEST(CHintedRow, ARangeWidenedBeyondTheBoxIsNotSeenIsKept) {
  CGridDrawHint hints;
  hints.AddHint(1, 1);
  hints.AddToHint(3, 3);
  CHintedRow row(hints);
  row.Enter(3);
  EXPECT_FALSE(row.IsInvalid(3));
  row.Enter(1);
  EXPECT_TRUE(row.IsInvalid(1));
}

}  // namespace
}  // namespace coregui::test
