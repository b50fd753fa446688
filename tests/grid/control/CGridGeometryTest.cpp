#include <gtest/gtest.h>

#include "grid/control/CGridInfo.h"
#include "grid/control/CGridLayout.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::CGridLayout;
using coregui::test::At;
using coregui::test::LoggingGrid;
using coregui::test::TextOf;

namespace {

std::string RectOf(CGridCtrl& grid, int col, long row) {
  RECT rect;
  return grid.GetCellRect(col, row, &rect) == 0 ? TextOf(rect) : "none";
}

/// The cell of a section of the window.
std::string CellAt(CGridCtrl& grid, int x, int y, int section = coregui::GRIDSECTION_GRID) {
  int col = 0;
  long row = 0;
  RECT rect;
  return grid.GetSectionCellFromPoint(section, x, y, &col, &row, &rect) == 0 ? At(col, row) : "none";
}

/// Columns 30, hidden, 50, 20, 60, 40 …; rows 10, 25, hidden, 15, 10 …
void GiveUnevenSizes(CGridCtrl& grid) {
  constexpr int widths[] = {30, 0, 50, 20, 60, 40};
  constexpr int heights[] = {10, 25, 0, 15};
  for (int col = 0; col < grid.GetNumberCols(); ++col) grid.SetColWidth(col, widths[col % 6]);
  for (long row = 0; row < grid.GetNumberRows(); ++row) grid.SetRowHeight(row, heights[row % 4]);
}

}  // namespace

TEST(CGridGeometry, EveryPixelOfTheViewLeadsToACellAndBack) {
  for (const int locked : {0, 1, 2}) {
    LoggingGrid grid(14, 30, 200, 90);
    GiveUnevenSizes(grid);
    grid.LockColumns(locked);
    grid.LockRows(locked);
    grid.SetLeftCol(5);
    grid.SetTopRow(7);
    for (int y = 0; y < 90; ++y) {
      for (int x = 0; x < 200; ++x) {
        int col = -9;
        long row = -9;
        RECT rect;
        ASSERT_EQ(grid.GetCellFromPoint(x, y, &col, &row, &rect), 0) << x << "," << y << grid;
        ASSERT_TRUE(CRect(rect).PtInRect(CPoint(x, y)))
            << x << "," << y << " cell " << col << "," << row << " at " << TextOf(rect) << grid;
        const bool shown = (col < locked || col >= 5) && (row < locked || row >= grid.GetTopRow());
        ASSERT_TRUE(shown) << x << "," << y << " gives the scrolled-away cell " << col << "," << row << grid;
      }
    }
  }
}

TEST(CGridGeometry, AJoinedBlockIsOneRectangleFromAnyOfItsCells) {
  LoggingGrid grid(8, 12, 200, 60);
  grid.JoinCells(1, 2, 2, 4);
  EXPECT_EQ(RectOf(grid, 2, 3), "50,20,150,50");
  EXPECT_EQ(CellAt(grid, 149, 49), "1,2");
  grid.SetTopRow(3);
  EXPECT_EQ(RectOf(grid, 2, 3), "50,-10,150,20") << "its start is scrolled away";
  grid.LockColumns(2);
  grid.SetLeftCol(4);
  EXPECT_EQ(RectOf(grid, 2, 3), "50,-10,100,20") << "its end is, and its locked column is not";
}

TEST(CGridGeometry, HeadingCellsStandInTheirOwnWindows) {
  LoggingGrid grid(8, 12, 200, 60);
  grid.SetTH_NumberRows(2);
  grid.SetTH_RowHeight(0, 15);
  grid.SetTH_RowHeight(1, 5);
  grid.SetTH_Height(30);
  EXPECT_EQ(RectOf(grid, 1, -1), "50,15,100,30");
  EXPECT_EQ(RectOf(grid, 1, -2), "50,0,100,15") << "the outermost row takes what is left";
  EXPECT_EQ(RectOf(grid, -1, 3), "0,30,40,40");
  EXPECT_EQ(RectOf(grid, -1, -1), "0,15,40,30");
  EXPECT_EQ(RectOf(grid, -2, 0), "none");
  EXPECT_EQ(RectOf(grid, 0, 12), "none");
  EXPECT_EQ(CellAt(grid, 60, 14, coregui::GRIDSECTION_TOPHEADING), "1,-2");
  EXPECT_EQ(CellAt(grid, 5, 55, coregui::GRIDSECTION_SIDEHEADING), "-1,5");
  EXPECT_EQ(CellAt(grid, 60, 30, coregui::GRIDSECTION_TOPHEADING), "none");
}

TEST(CGridGeometry, BillionsOfRowsStayWithinTheirPixels) {
  LoggingGrid grid(2, 0x7FFFFFFF, 100, 100);
  EXPECT_EQ(grid.GetUniformRowHeight(), 1);
  EXPECT_EQ(grid.AppendRow(), 1);
  EXPECT_EQ(RectOf(grid, 0, 0x7FFFFFFE), "0,2147483647,50,2147483647");
  grid.SetTopRow(0x7FFFFFFE);
  EXPECT_EQ(grid.GetTopRow(), 0x7FFFFFFF - 10);
  EXPECT_EQ(RectOf(grid, 0, 0x7FFFFFFE), "0,90,50,100");
  EXPECT_EQ(RectOf(grid, 0, 0), "0,-2147483648,50,-2147483648");
  EXPECT_EQ(CellAt(grid, 0, 99), "0,2147483646");
  EXPECT_EQ(grid.GotoRow(5), 0);
  EXPECT_EQ(grid.GetTopRow(), 5);
}

TEST(CGridLayout, ABarThatIsNeededMayMakeTheOtherOneNeeded) {
  CGridInfo info;
  CGridCtrl grid;
  info.view.vScrollWidth = 16;
  info.view.hScrollHeight = 16;
  info.headings.sideWidth = 0;
  info.headings.topHeight = 0;
  info.rows.SetDefaultSize(10);
  info.columns.SetDefaultSize(50);
  info.rows.SetRowCount(10);
  info.columns.SetCount(2);
  struct Row {
    const char* name;
    CSize client;
    const char* body;
    bool vertical;
    bool horizontal;
  };
  for (const Row& r :
       {Row{"fits exactly", {100, 100}, "0,0,100,100", false, false},
        Row{"too low: the vertical bar takes the columns' room", {100, 99}, "0,0,84,83", true, true},
        Row{"too narrow: the horizontal bar takes the rows' room", {99, 100}, "0,0,83,84", true, true},
        Row{"too low, with room beside", {116, 99}, "0,0,100,99", true, false},
        Row{"smaller than the bars", {10, 10}, "0,0,0,0", true, true}}) {
    const CGridLayout layout = CGridLayout::Of(info, r.client);
    EXPECT_EQ(TextOf(layout.body), r.body) << r.name;
    EXPECT_EQ(!layout.vScroll.IsRectNull(), r.vertical) << r.name;
    EXPECT_EQ(!layout.hScroll.IsRectNull(), r.horizontal) << r.name;
  }
  info.view.tabWidth = 40;
  const CGridLayout layout = CGridLayout::Of(info, {200, 200});
  EXPECT_EQ(TextOf(layout.tabs), "0,184,40,200");
  EXPECT_EQ(TextOf(layout.hScroll), "40,184,200,200");
}
