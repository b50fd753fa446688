#include <gtest/gtest.h>

#include "grid/celltypes/CGridCellType.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "platform/Keys.h"
#include "platform/System.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::At;
using coregui::test::CurrentOf;
using coregui::test::LoggingGrid;
using coregui::test::SelectedIn;
using coregui::test::ViewOf;

TEST(CGridNavigator, GotoAsksWithTheCurrentCellAndTellsWhatChanged) {
  LoggingGrid grid(20, 40, 200, 100);
  EXPECT_EQ(grid.GotoCell(7, 20), 0);
  EXPECT_EQ(grid.TakeLog(),
            "CanMove 0 0 7 20; CanViewMove 0 0 7 20; ColChange 0 7; RowChange 0 20; CellChange 0 7 0 20; "
            "LeftColChange 0 4; TopRowChange 0 11");
  EXPECT_EQ(grid.GotoCell(7, 20), 0);
  EXPECT_EQ(grid.TakeLog(), "") << "already there: nobody is asked";
  LoggingGrid wide(20, 40, 1000, 400);
  wide.GotoCell(5, 6);
  wide.log.clear();
  wide.GotoCol(8);
  wide.GotoRow(9);
  EXPECT_EQ(wide.TakeLog(),
            "CanMove 5 6 8 6; CanViewMove 0 0 8 0; ColChange 5 8; CellChange 5 8 6 6; "
            "CanMove 8 6 8 9; CanViewMove 0 0 0 9; RowChange 6 9; CellChange 8 8 6 9");
  EXPECT_EQ(wide.GotoRow(9), 0);
  EXPECT_EQ(wide.TakeLog(), "");
}

TEST(CGridNavigator, AVetoLeavesEverythingAsItWas) {
  for (const char* veto : {"CanMove", "CanViewMove"}) {
    LoggingGrid grid(20, 40, 200, 100);
    grid.refused = {veto};
    EXPECT_EQ(grid.GotoCell(10, 30), 2) << veto;
    EXPECT_EQ(grid.GotoCol(10), 2) << veto;
    EXPECT_EQ(grid.GotoRow(30), 2) << veto;
    EXPECT_EQ(CurrentOf(grid) + " " + ViewOf(grid), "0,0 0,0") << veto;
  }
}

TEST(CGridNavigator, GotoRow_AsksOnlyTheControl) {
  class StubbornSource : public CGridMem {
   public:
    int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override {
      asked = At(oldCol, oldRow) + " " + At(newCol, newRow);
      return 0;
    }
    std::string asked;
  } source;
  LoggingGrid grid(20, 40, 200, 100);
  grid.SetDefDataSource(grid.AddDataSource(&source));
  grid.SetColTranslation(3, 13);
  EXPECT_EQ(grid.GotoCell(3, 5), 2);
  EXPECT_EQ(source.asked, "0,0 13,5") << "sources are asked with data columns";
  EXPECT_EQ(grid.GotoCol(3), 2);
  EXPECT_EQ(grid.GotoRow(5), 0);
  EXPECT_EQ(CurrentOf(grid), "0,5");
}

TEST(CGridNavigator, TargetsOutsideAreBroughtInAndNoTargetIsRefused) {
  LoggingGrid grid(5, 5, 1000, 400);
  EXPECT_EQ(grid.GotoRow(99), 0);
  EXPECT_EQ(grid.GotoCol(-3), 0);
  EXPECT_EQ(CurrentOf(grid), "0,4");
  LoggingGrid empty(0, 0, 100, 100);
  EXPECT_EQ(empty.GotoCell(0, 0), 1);
  EXPECT_EQ(empty.GotoRow(0), 1);
  EXPECT_EQ(empty.GotoCol(0), 1);
}

TEST(CGridNavigator, TheCurrentCellAndTheViewMoveByTheSameCodesOnBothAxes) {
  struct Row {
    const char* name;
    int code;
    int from;
    int to;
    int viewFrom;
    int viewTo;
    int height = 100;
  };
  for (const Row& r :
       {Row{"back", 0, 5, 4, 5, 4}, Row{"back at the start", 0, 0, 0, 0, 0}, Row{"forward", 1, 5, 6, 5, 6},
        Row{"forward at the end", 1, 39, 39, 30, 30}, Row{"page back", 2, 20, 11, 20, 11},
        Row{"page back near the start", 2, 3, 0, 3, 0}, Row{"page forward", 3, 20, 29, 11, 20},
        Row{"page forward near the end", 3, 35, 39, 28, 30}, Row{"first", 4, 20, 0, 9, 0},
        Row{"last", 5, 20, 39, 9, 30}, Row{"no such code", 6, 20, 20, 9, 9},
        Row{"page back in a view of less than a row", 2, 5, 5, 5, 4, 6},
        Row{"page forward in a view of less than a row", 3, 5, 5, 5, 6, 6}}) {
    LoggingGrid grid(40, 40, r.height * 5, r.height);
    grid.GotoCell(r.from, r.from);
    EXPECT_EQ(grid.MoveCurrentRow(r.code) + grid.MoveCurrentCol(r.code), 0) << r.name;
    EXPECT_EQ(CurrentOf(grid), At(r.to, r.to)) << r.name;
    grid.SetTopRow(r.viewFrom);
    grid.SetLeftCol(r.viewFrom);
    EXPECT_EQ(grid.MoveTopRow(r.code) + grid.MoveLeftCol(r.code), 0) << r.name;
    EXPECT_EQ(ViewOf(grid), At(r.viewTo, r.viewTo)) << r.name;
  }
}

TEST(CGridNavigator, SourcesAndCellTypesHearOfMovesToo) {
  class Source : public CGridMem {
   public:
    explicit Source(LoggingGrid& grid) : m_grid(grid) {}
    void OnRowChange(long from, long to) override { m_grid.log.push_back("source row " + At(from, to)); }
    void OnColChange(int from, int to) override { m_grid.log.push_back("source col " + At(from, to)); }

   private:
    LoggingGrid& m_grid;
  };
  class Type : public CGridCellType {
   public:
    void OnSetFocus(int col, long row, CGridCell*) override { grid->log.push_back("enter " + At(col, row)); }
    void OnKillFocus(int col, long row, CGridCell*) override { grid->log.push_back("leave " + At(col, row)); }
    void OnScrolled(int col, long row, CGridCell*) override {
      grid->log.push_back("scrolled " + At(col, row));
    }
    LoggingGrid* grid = nullptr;
  } type;
  LoggingGrid grid(20, 40, 1000, 100);
  type.grid = &grid;
  const int id = grid.AddCellType(&type);
  Source source(grid);
  grid.SetDefDataSource(grid.AddDataSource(&source));
  grid.SetColTranslation(3, 13);
  grid.QuickSetCellType(0, 0, id);
  grid.QuickSetCellType(3, 30, id);
  grid.log.clear();
  grid.GotoCell(3, 30);
  EXPECT_EQ(grid.TakeLog(),
            "CanMove 0 0 3 30; CanViewMove 0 0 3 30; leave 0,0; enter 3,30; scrolled 3,30; source col 0,13; "
            "ColChange 0 3; source row 0,30; RowChange 0 30; CellChange 0 3 0 30; TopRowChange 0 21");
}

TEST(CGridNavigator, StepsPassOverHiddenRows) {
  LoggingGrid grid(6, 6, 500, 100);
  for (const long row : {1, 2, 5}) grid.SetRowHeight(row, 0);
  grid.MoveCurrentRow(1);
  EXPECT_EQ(CurrentOf(grid), "0,3");
  grid.MoveCurrentRow(0);
  EXPECT_EQ(CurrentOf(grid), "0,0");
  grid.MoveCurrentRow(5);
  EXPECT_EQ(CurrentOf(grid), "0,4") << "the last row is hidden";
}

TEST(CGridNavigator, TheViewStaysBetweenTheLockedRowsAndTheLastPage) {
  LoggingGrid grid(20, 40, 200, 100);
  grid.LockRows(3);
  for (const auto& [asked, given] : {std::pair(0L, 3L), std::pair(99L, 33L)}) {
    long row = asked;
    grid.VerifyTopRow(&row);
    EXPECT_EQ(row, given) << "7 rows of 10 pixels fill what 3 locked ones leave of 100";
  }
  grid.log.clear();
  EXPECT_EQ(grid.AdjustTopRow(0), 0);
  EXPECT_EQ(grid.TakeLog(), "") << "nobody is asked";
  EXPECT_EQ(grid.AdjustTopRow(5), 0);
  EXPECT_EQ(grid.TakeLog(), "CanViewMove 0 3 0 8; TopRowChange 3 8");
  grid.refused = {"CanViewMove"};
  EXPECT_EQ(grid.AdjustTopRow(5), 2);
  EXPECT_EQ(grid.AdjustLeftCol(5), 2);
  EXPECT_EQ(CurrentOf(grid), "0,0") << "scrolling moves the view alone";
  grid.refused = {};
  grid.GotoRow(1);
  EXPECT_EQ(ViewOf(grid), "0,8") << "a locked row is always in view";
}

TEST(CGridNavigator, WhoIsAskedMayTakeRowsAndColumnsAway) {
  class Shrinking : public LoggingGrid {
   public:
    Shrinking() : LoggingGrid(30, 50, 200, 100) {}
    int OnCanViewMove(int, long, int, long) override {
      SetNumberRows(2);
      SetNumberCols(3);
      return 1;
    }
  };
  using Move = int (*)(Shrinking&);
  for (const Move move :
       {Move([](Shrinking& g) { return g.GotoRow(40); }), Move([](Shrinking& g) { return g.GotoCol(20); }),
        Move([](Shrinking& g) { return g.GotoCell(20, 40); }),
        Move([](Shrinking& g) { return g.SetTopRow(40); }),
        Move([](Shrinking& g) { return g.AdjustLeftCol(0x7FFFFFFF); })}) {
    Shrinking grid;
    EXPECT_EQ(move(grid), 0);
    EXPECT_LT(grid.GetCurrentRow(), 2) << grid;
    EXPECT_LT(grid.GetCurrentCol(), 3) << grid;
    EXPECT_EQ(ViewOf(grid), "0,0") << grid;
  }
}

TEST(CGridNavigator, AControlMayAddTheRowsThatAMoveWants) {
  class Growing : public LoggingGrid {
   public:
    Growing() : LoggingGrid(3, 20, 200, 100) {}
    int VerifyCurrentRow(long* row) override {
      SetNumberRows(std::max(GetNumberRows(), *row + 1));
      return CGridCtrl::VerifyCurrentRow(row);
    }
  } grid;
  grid.MoveCurrentRow(5);
  EXPECT_EQ(grid.GetCurrentRow(), 19) << "the last row is no new one";
  grid.MoveCurrentRow(1);
  EXPECT_EQ(grid.GetCurrentRow(), 20) << grid;
  grid.MoveCurrentRow(3);
  EXPECT_EQ(grid.GetCurrentRow(), 30) << "a page of rows that were not there";
  EXPECT_EQ(grid.GetNumberRows(), 31);
}

TEST(CGridNavigator, PlainMovesRestartTheSelectionAndShiftExtendsIt) {
  LoggingGrid grid(10, 10, 1000, 400);
  grid.SetMultiSelectMode(1);
  grid.GotoCell(2, 2);
  SetKeyState(VK_SHIFT, true);
  grid.MoveCurrentCol(1);
  grid.MoveCurrentRow(1);
  EXPECT_EQ(SelectedIn(grid), "2,2 3,2 2,3 3,3 ");
  SetKeyState(VK_SHIFT, false);
  SetKeyState(VK_CONTROL, true);
  grid.MoveCurrentRow(5);
  SetKeyState(VK_CONTROL, false);
  EXPECT_EQ(SelectedIn(grid), "2,2 3,2 2,3 3,3 3,9 ") << "Ctrl keeps what is selected";
  grid.MoveCurrentRow(0);
  EXPECT_EQ(SelectedIn(grid), "3,8 ");
  grid.SelectRange(3, 0, 3, 1);
  SetKeyState(VK_SHIFT, true);
  EXPECT_EQ(grid.GotoCell(3, 8), 0);
  SetKeyState(VK_SHIFT, false);
  EXPECT_NE(grid.IsSelected(3, 5), 0) << "extended to the current cell: " << grid;
}
