#include <gtest/gtest.h>

#include "grid/control/CGridInfo.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::CurrentOf;
using coregui::test::LoggingGrid;
using coregui::test::RowOf;
using coregui::test::ViewOf;

TEST(CGridSizing, ManyRowsSwitchToOneHeightForGood) {
  LoggingGrid grid(2, 10, 100, 100);
  grid.SetRowHeight(3, 33);
  EXPECT_EQ(grid.SetNumberRows(64000), 0);
  EXPECT_EQ(grid.GetUniformRowHeight(), 0);
  EXPECT_EQ(grid.GetRowHeight(3), 33) << "heights are kept while the table grows";
  EXPECT_EQ(grid.GetRowHeight(63999), 10);
  grid.SetNumberRows(64001);
  EXPECT_EQ(grid.GetUniformRowHeight(), 1);
  EXPECT_EQ(grid.GetRowHeight(3), 10);
  EXPECT_EQ(grid.SetUniformRowHeight(0), 1);
  grid.SetNumberRows(10);
  EXPECT_EQ(grid.GetUniformRowHeight(), 1);
  EXPECT_EQ(grid.SetNumberRows(-1), 1);
  EXPECT_EQ(grid.SetNumberRows(0x80000000L), 1);
  EXPECT_EQ(grid.GetNumberRows(), 10);
}

TEST(CGridSizing, FewerRowsOrColumnsBringPositionLocksAndViewBackIn) {
  LoggingGrid grid(20, 40, 200, 100);
  grid.LockRows(5);
  grid.LockColumns(2);
  grid.GotoCell(15, 35);
  grid.log.clear();
  EXPECT_EQ(grid.SetNumberRows(5), 0);
  EXPECT_EQ(grid.GetLockedRows(), 4);
  EXPECT_EQ(CurrentOf(grid) + " " + ViewOf(grid), "15,4 14,4");
  EXPECT_EQ(grid.DeleteRow(0), 0);
  EXPECT_EQ(grid.GetLockedRows(), 3) << "one row at least can be scrolled";
  EXPECT_EQ(grid.InsertRow(0), 0);
  EXPECT_EQ(grid.LockRows(4), 0);
  EXPECT_EQ(grid.SetNumberCols(2), 0);
  EXPECT_EQ(grid.GetLockedColumns(), 1);
  EXPECT_EQ(CurrentOf(grid) + " " + ViewOf(grid), "1,3 1,4");
  EXPECT_EQ(grid.TakeLog(), "TopRowChange 31 4; TopRowChange 4 3; TopRowChange 3 4; LeftColChange 14 1");
  grid.SetNumberRows(0);
  EXPECT_EQ(grid.GetCurrentRow(), -1);
  EXPECT_EQ(grid.SetNumberRows(3), 0);
  EXPECT_EQ(grid.GetCurrentRow(), 0) << "without a current row the first one becomes it";
  LoggingGrid whole(2, 5, 200, 100);
  whole.GotoRow(4);
  whole.SetNumberRows(3);
  EXPECT_EQ(whole.GetInfo().rows.lastCurrent, 2) << "there is no row 4 to repaint";
}

TEST(CGridSizing, LockingMovesTheViewBehindTheLockedOnes) {
  LoggingGrid grid(20, 40, 200, 100);
  EXPECT_EQ(grid.LockRows(-1) + grid.LockColumns(-1), 2);
  EXPECT_EQ(grid.LockRows(41) + grid.LockColumns(21), 2);
  EXPECT_EQ(grid.LockRows(3) + grid.LockColumns(2), 0);
  EXPECT_EQ(ViewOf(grid), "2,3");
  grid.SetTopRow(10);
  grid.SetLeftCol(9);
  EXPECT_EQ(grid.LockRows(2) + grid.LockColumns(1), 0);
  EXPECT_EQ(ViewOf(grid), "9,10");
  EXPECT_EQ(grid.LockRows(0) + grid.LockColumns(0), 0);
  EXPECT_EQ(ViewOf(grid), "0,0");
}

TEST(CGridSizing, RowsGoInAndOutWithTheirCellsAndHeights) {
  LoggingGrid grid(2, 4, 100, 100);
  grid.Fill();
  grid.SetRowHeight(1, 17);
  EXPECT_EQ(grid.InsertRow(1), 0);
  EXPECT_EQ(grid.GetNumberRows(), 5);
  EXPECT_EQ(grid.Text(0, 1), "");
  EXPECT_EQ(grid.Text(0, 2), "a1");
  EXPECT_EQ(grid.GetRowHeight(2), 17);
  EXPECT_EQ(grid.DeleteRow(0), 0);
  EXPECT_EQ(grid.Text(0, 1), "a1") << grid;
  EXPECT_EQ(grid.GetRowHeight(1), 17);
  EXPECT_EQ(grid.AppendRow(), 0);
  EXPECT_EQ(grid.InsertRow(5), 0) << "behind the last row: appended";
  EXPECT_EQ(grid.InsertRow(7), 1);
  EXPECT_EQ(grid.DeleteRow(6), 1);
  EXPECT_EQ(grid.DeleteRow(-1), 1);
  EXPECT_EQ(grid.GetNumberRows(), 6);
}

TEST(CGridSizing, ColumnsKeepTheirCellsThroughMovesInsertionsAndDeletions) {
  LoggingGrid grid(4, 2, 400, 100);
  grid.Fill();
  grid.SetColWidth(0, 77);
  EXPECT_EQ(grid.MoveColPosition(0, 2, 1), 0);
  EXPECT_EQ(RowOf(grid, 4), "b0 a0 c0 d0 ");
  EXPECT_EQ(grid.GetColWidth(1), 77);
  EXPECT_EQ(grid.MoveColPosition(3, 0, 1), 0);
  EXPECT_EQ(RowOf(grid, 4), "d0 b0 a0 c0 ");
  EXPECT_EQ(grid.MoveColPosition(0, 3, 0), 0) << "behind the last column";
  EXPECT_EQ(RowOf(grid, 4), "b0 a0 c0 d0 ");
  EXPECT_EQ(grid.MoveColPosition(4, 0, 1), 1);
  EXPECT_EQ(grid.MoveColPosition(0, 5, 1), 1);
  EXPECT_EQ(grid.InsertCol(2), 0);
  EXPECT_EQ(RowOf(grid, 5), "b0 a0  c0 d0 ") << grid;
  grid.QuickSetText(2, 0, L"new");
  EXPECT_EQ(RowOf(grid, 5), "b0 a0 new c0 d0 ") << "the new column shows cells of its own";
  EXPECT_EQ(grid.DeleteCol(3), 0);
  EXPECT_EQ(RowOf(grid, 4), "b0 a0 new d0 ") << grid;
  EXPECT_EQ(grid.AppendCol(), 0);
  EXPECT_EQ(grid.DeleteCol(5), 1);
  LoggingGrid other(4, 1, 400, 100);
  other.Fill();
  other.MoveColPosition(0, 3, 0);
  other.SetNumberCols(2);
  other.SetNumberCols(4);
  EXPECT_EQ(RowOf(other, 4), "b0 c0 a0 d0 ") << "columns that come back show what no other column shows";
}

TEST(CGridSizing, FitToWindowSharesEveryPixel) {
  LoggingGrid grid(3, 2, 200, 100);
  grid.SetColWidth(0, 10);
  grid.SetColWidth(1, 20);
  grid.SetColWidth(2, 33);
  EXPECT_EQ(grid.FitToWindow(0, 2), 0);
  EXPECT_EQ(grid.GetColWidth(0) + grid.GetColWidth(1) + grid.GetColWidth(2), 200);
  EXPECT_NEAR(grid.GetColWidth(1), 20 * 200 / 63.0, 1);
  EXPECT_EQ(grid.FitToWindow(1, 3), 1);
  grid.SetColWidth(2, 300);
  EXPECT_EQ(grid.FitToWindow(0, 1), 1) << "no room beside the third column";
}

TEST(CGridSizing, RefusesSizesOutOfRange) {
  LoggingGrid grid(3, 3, 200, 100);
  EXPECT_EQ(grid.SetColWidth(0, -1), 1);
  EXPECT_EQ(grid.SetColWidth(3, 10), 1);
  EXPECT_EQ(grid.SetColWidth(-2, 10), 1);
  EXPECT_EQ(grid.SetRowHeight(3, 10), 1);
  EXPECT_EQ(grid.SetTH_RowHeight(1, 10), 1);
  EXPECT_EQ(grid.SetSH_Width(-1), 1);
  EXPECT_EQ(grid.SetNumberCols(1 << 21), 1);
  EXPECT_EQ(grid.SetSH_ColWidth(0, 12), 0);
  EXPECT_EQ(grid.GetColWidth(-1), 12);
}

TEST(CGridSheets, EachSheetKeepsItsOwnCellsSizesAndPosition) {
  LoggingGrid grid(3, 5, 200, 100);
  grid.Fill();
  grid.GotoCell(2, 4);
  grid.log.clear();
  EXPECT_EQ(grid.SetNumberSheets(3), 0);
  EXPECT_EQ(grid.TakeLog(), "SheetSetup 1; SheetSetup 2");
  EXPECT_EQ(grid.GetSheetNumber(), 0);
  EXPECT_EQ(grid.SetSheetNumber(1), 0);
  EXPECT_EQ(grid.GetNumberCols(), 0);
  grid.SetNumberCols(2);
  grid.SetNumberRows(2);
  grid.QuickSetText(0, 0, L"other");
  EXPECT_EQ(grid.SetSheetNumber(0), 0);
  EXPECT_EQ(grid.Text(0, 0), "a0");
  EXPECT_EQ(grid.GetCurrentRow(), 4);
  EXPECT_EQ(grid.SetSheetNumber(3), 1);
  grid.SetSheetName(1, L"Levels");
  EXPECT_EQ(grid.GetSheetName(0), L"Sheet1");
  EXPECT_EQ(grid.GetSheetName(1), L"Levels");
  grid.SetSheetNumber(2);
  EXPECT_EQ(grid.SetNumberSheets(2), 0);
  EXPECT_EQ(grid.GetSheetNumber(), 1) << "the current sheet went: the last one is current";
  EXPECT_EQ(grid.Text(0, 0), "other");
  EXPECT_EQ(grid.SetNumberSheets(0), 1);
}
