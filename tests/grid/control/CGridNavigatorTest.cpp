#include <gtest/gtest.h>

#include "grid/celltypes/CGridCellType.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "platform/Keys.h"
#include "platform/System.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::LoggingGrid;

namespace {

/// A source that refuses moves.
class StubbornSource : public CGridMem {
 public:
  int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override {
    asked = std::to_string(oldCol) + "," + std::to_string(oldRow) + " " + std::to_string(newCol) + "," +
            std::to_string(newRow);
    return 0;
  }
  std::string asked;
};

}  // namespace

TEST(CGridNavigator, GotoCell_AsksWithTheCurrentCellAndTellsWhatChanged) {
  LoggingGrid grid(20, 40, 200, 100);
  EXPECT_EQ(grid.GotoCell(7, 20), 0);
  EXPECT_EQ(grid.TakeLog(),
            "CanMove 0 0 7 20; CanViewMove 0 0 7 20; ColChange 0 7; RowChange 0 20; CellChange 0 7 0 20; "
            "LeftColChange 0 4; TopRowChange 0 11");
  EXPECT_EQ(grid.GotoCell(7, 20), 0);
  EXPECT_EQ(grid.TakeLog(), "") << "already there: nobody is asked";
}

TEST(CGridNavigator, AVetoLeavesEverythingAsItWas) {
  for (const char* veto : {"CanMove", "CanViewMove"}) {
    LoggingGrid grid(20, 40, 200, 100);
    grid.refused = {veto};
    EXPECT_EQ(grid.GotoCell(10, 30), 2) << veto;
    EXPECT_EQ(grid.GotoCol(10), 2) << veto;
    EXPECT_EQ(grid.GotoRow(30), 2) << veto;
    EXPECT_EQ(grid.GetCurrentCol(), 0) << veto;
    EXPECT_EQ(grid.GetCurrentRow(), 0) << veto;
    EXPECT_EQ(grid.GetTopRow(), 0) << veto;
  }
}

TEST(CGridNavigator, GotoRow_AsksOnlyTheControl) {
  LoggingGrid grid(20, 40, 200, 100);
  StubbornSource source;
  grid.SetDefDataSource(grid.AddDataSource(&source));
  grid.SetColTranslation(3, 13);
  EXPECT_EQ(grid.GotoCell(3, 5), 2);
  EXPECT_EQ(source.asked, "0,0 13,5") << "sources are asked with data columns";
  EXPECT_EQ(grid.GotoCol(3), 2);
  EXPECT_EQ(grid.GotoRow(5), 0);
  EXPECT_EQ(grid.GetCurrentRow(), 5);
}

TEST(CGridNavigator, GotoColAndGotoRowStartAtTheDragCell) {
  LoggingGrid grid(20, 40, 1000, 400);
  grid.GotoCell(5, 6);
  grid.log.clear();
  grid.GotoCol(8);
  grid.GotoRow(9);
  EXPECT_EQ(grid.TakeLog(),
            "CanMove 5 6 8 6; CanViewMove 0 0 8 0; ColChange 5 8; CellChange 5 8 6 6; "
            "CanMove 8 6 8 9; CanViewMove 0 0 0 9; RowChange 6 9; CellChange 8 8 6 9");
  EXPECT_EQ(grid.GotoRow(9), 0);
  EXPECT_EQ(grid.TakeLog(), "");
}

TEST(CGridNavigator, TargetsOutsideAreBroughtInAndNoTargetIsRefused) {
  LoggingGrid grid(5, 5, 1000, 400);
  EXPECT_EQ(grid.GotoRow(99), 0);
  EXPECT_EQ(grid.GetCurrentRow(), 4);
  EXPECT_EQ(grid.GotoCol(-3), 0);
  EXPECT_EQ(grid.GetCurrentCol(), 0);
  LoggingGrid empty(0, 0, 100, 100);
  EXPECT_EQ(empty.GotoCell(0, 0), 1);
  EXPECT_EQ(empty.GotoRow(0), 1);
  EXPECT_EQ(empty.GotoCol(0), 1);
}

TEST(CGridNavigator, AMoveIntoAJoinedBlockGoesToItsStart) {
  LoggingGrid grid(10, 10, 1000, 400);
  grid.JoinCells(2, 3, 4, 5);
  EXPECT_EQ(grid.GotoCell(4, 4), 0);
  EXPECT_EQ(grid.GetCurrentCol(), 2);
  EXPECT_EQ(grid.GetCurrentRow(), 3);
}

TEST(CGridNavigator, MoveCodesStepPageAndEndAlikeOnBothAxes) {
  struct Row {
    const char* name;
    int code;
    long from;
    long to;
  };
  for (const Row& r : {Row{"back", 0, 5, 4}, Row{"back at the start", 0, 0, 0}, Row{"forward", 1, 5, 6},
                       Row{"forward at the end", 1, 39, 39}, Row{"page back", 2, 20, 11},
                       Row{"page back near the start", 2, 3, 0}, Row{"page forward", 3, 20, 29},
                       Row{"page forward near the end", 3, 35, 39}, Row{"first", 4, 20, 0},
                       Row{"last", 5, 20, 39}, Row{"no such code", 6, 20, 20}}) {
    LoggingGrid grid(40, 40, 500, 100);
    grid.GotoCell(static_cast<int>(r.from), r.from);
    EXPECT_EQ(grid.MoveCurrentRow(r.code), 0) << r.name;
    EXPECT_EQ(grid.GetCurrentRow(), r.to) << r.name;
    EXPECT_EQ(grid.MoveCurrentCol(r.code), 0) << r.name;
    EXPECT_EQ(grid.GetCurrentCol(), r.to) << r.name;
  }
}

TEST(CGridNavigator, TheViewMovesByTheSameCodes) {
  struct Row {
    const char* name;
    int height;
    int code;
    long from;
    long to;
  };
  for (const Row& r :
       {Row{"back", 100, 0, 5, 4}, Row{"forward", 100, 1, 5, 6}, Row{"forward at the end", 100, 1, 30, 30},
        Row{"page back", 100, 2, 20, 11}, Row{"page forward", 100, 3, 11, 20}, Row{"first", 100, 4, 9, 0},
        Row{"last", 100, 5, 9, 30}, Row{"page back in a view of less than a row", 6, 2, 5, 4},
        Row{"page forward in a view of less than a row", 6, 3, 5, 6}}) {
    LoggingGrid grid(40, 40, r.height * 5, r.height);
    grid.SetTopRow(r.from);
    grid.SetLeftCol(static_cast<int>(r.from));
    EXPECT_EQ(grid.MoveTopRow(r.code), 0) << r.name;
    EXPECT_EQ(grid.MoveLeftCol(r.code), 0) << r.name;
    EXPECT_EQ(grid.GetTopRow(), r.to) << r.name;
    EXPECT_EQ(grid.GetLeftCol(), r.to) << r.name;
  }
}

TEST(CGridNavigator, SourcesAndCellTypesHearOfMovesToo) {
  class Source : public CGridMem {
   public:
    explicit Source(LoggingGrid& grid) : m_grid(grid) {}
    void OnRowChange(long oldRow, long newRow) override { Note("row", oldRow, newRow); }
    void OnColChange(int oldCol, int newCol) override { Note("col", oldCol, newCol); }

   private:
    void Note(const char* what, long from, long to) {
      m_grid.log.push_back(std::string("source ") + what + " " + std::to_string(from) + " " +
                           std::to_string(to));
    }
    LoggingGrid& m_grid;
  };
  class Type : public CGridCellType {
   public:
    void OnSetFocus(int col, long row, CGridCell*) override { Note("enter", col, row); }
    void OnKillFocus(int col, long row, CGridCell*) override { Note("leave", col, row); }
    void OnScrolled(int col, long row, CGridCell*) override { Note("scrolled", col, row); }
    LoggingGrid* grid = nullptr;

   private:
    void Note(const char* what, int col, long row) {
      grid->log.push_back(std::string(what) + " " + std::to_string(col) + "," + std::to_string(row));
    }
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
            "CanMove 0 0 3 30; CanViewMove 0 0 3 30; leave 0,0; enter 3,30; scrolled 3,30; source col 0 13; "
            "ColChange 0 3; source row 0 30; RowChange 0 30; CellChange 0 3 0 30; TopRowChange 0 21");
}

TEST(CGridNavigator, StepsPassOverHiddenRowsAndColumns) {
  LoggingGrid grid(6, 6, 500, 100);
  grid.SetRowHeight(1, 0);
  grid.SetRowHeight(2, 0);
  grid.SetRowHeight(5, 0);
  grid.MoveCurrentRow(1);
  EXPECT_EQ(grid.GetCurrentRow(), 3);
  grid.MoveCurrentRow(0);
  EXPECT_EQ(grid.GetCurrentRow(), 0);
  grid.MoveCurrentRow(5);
  EXPECT_EQ(grid.GetCurrentRow(), 4) << "the last row is hidden";
}

TEST(CGridNavigator, TheViewStaysBetweenTheLockedRowsAndTheLastPage) {
  LoggingGrid grid(20, 40, 200, 100);
  grid.LockRows(3);
  long row = 0;
  grid.VerifyTopRow(&row);
  EXPECT_EQ(row, 3);
  row = 99;
  grid.VerifyTopRow(&row);
  EXPECT_EQ(row, 33) << "7 rows of 10 pixels fill what 3 locked ones leave of 100";
  grid.log.clear();
  EXPECT_EQ(grid.AdjustTopRow(0), 0);
  EXPECT_EQ(grid.TakeLog(), "") << "nobody is asked";
  EXPECT_EQ(grid.AdjustTopRow(5), 0);
  EXPECT_EQ(grid.TakeLog(), "CanViewMove 0 3 0 8; TopRowChange 3 8");
  grid.refused = {"CanViewMove"};
  EXPECT_EQ(grid.AdjustTopRow(5), 2);
  EXPECT_EQ(grid.AdjustLeftCol(5), 2);
  EXPECT_EQ(grid.GetTopRow(), 8);
  EXPECT_EQ(grid.GetCurrentRow(), 0) << "scrolling moves the view alone";
  grid.refused = {};
  grid.GotoRow(1);
  EXPECT_EQ(grid.GetTopRow(), 8) << "a locked row is always in view";
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
    EXPECT_EQ(grid.GetTopRow(), 0) << grid;
    EXPECT_EQ(grid.GetLeftCol(), 0) << grid;
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
  grid.log.clear();
  SetKeyState(VK_SHIFT, true);
  grid.MoveCurrentCol(1);
  grid.MoveCurrentRow(1);
  EXPECT_NE(grid.IsSelected(2, 2), 0) << grid;
  EXPECT_NE(grid.IsSelected(3, 3), 0) << grid;
  SetKeyState(VK_SHIFT, false);
  SetKeyState(VK_CONTROL, true);
  grid.MoveCurrentRow(5);
  SetKeyState(VK_CONTROL, false);
  EXPECT_NE(grid.IsSelected(2, 2), 0) << "Ctrl keeps what is selected: " << grid;
  EXPECT_NE(grid.IsSelected(3, 9), 0) << grid;
  grid.MoveCurrentRow(0);
  EXPECT_EQ(grid.IsSelected(2, 2), 0) << grid;
  EXPECT_NE(grid.IsSelected(3, 8), 0) << grid;
  grid.SelectRange(3, 0, 3, 1);
  SetKeyState(VK_SHIFT, true);
  EXPECT_EQ(grid.GotoCell(3, 8), 0);
  SetKeyState(VK_SHIFT, false);
  EXPECT_NE(grid.IsSelected(3, 5), 0) << "extended to the current cell: " << grid;
}
