#include "grid/display/CGridScroller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "grid/display/CGridPainter.h"
#include "tests/grid/display/FakeGrid.h"

namespace coregui::test {
namespace {

using Range = CGridDrawHint::Range;
using testing::ElementsAre;

constexpr CRect kClient(0, 0, 210, 110);

/// Rows 30.. and columns 5.. were painted; each test moves from there.
struct CGridScrollerTest : testing::Test {
  FakeGrid grid;
  CGridPainter painter{grid, grid};
  CGridScroller scroller{grid, painter};
  CRecordingDC screen;

  CGridScrollerTest() { Show(5, 30); }
  void Show(int left, long top) {
    grid.GetInfo().columns.SetFirst(left);
    grid.GetInfo().rows.SetFirst(top);
    painter.Paint({&screen, nullptr, kClient});
    painter.Hints().ClearHints();
  }
  CGridScroller::Shift MoveTo(int left, long top) {
    grid.GetInfo().columns.SetFirst(left);
    grid.GetInfo().rows.SetFirst(top);
    const CGridScroller::Shift shift = scroller.Plan(kClient, 1.0);
    scroller.HintUncovered(shift);
    return shift;
  }
};

TEST_F(CGridScrollerTest, AMoveHintsWhatItUncovers) {
  struct Row {
    const char* name;
    int left;
    long top;
    int dx;
    int dy;
    Range hinted;
  };
  for (const Row& row :
       {Row{"down: from the last row on", 5, 32, 0, 40, {0, 35, 20, 100}},
        Row{"up: to the top row before", 5, 29, 0, -20, {0, 0, 20, 30}},
        Row{"right", 6, 30, 50, 0, {9, 0, 20, 100}}, Row{"left", 3, 30, -100, 0, {0, 0, 5, 100}},
        Row{"just within the window", 5, 35, 0, 100, {0, 35, 20, 100}},
        Row{"further: everything anew", 5, 36, 0, 0, {0, 0, 20, 100}}}) {
    SCOPED_TRACE(row.name);
    Show(5, 30);
    const CGridScroller::Shift shift = MoveTo(row.left, row.top);
    EXPECT_EQ(CSize(shift.dx, shift.dy), CSize(row.dx, row.dy));
    EXPECT_THAT(painter.Hints().GetRanges(), ElementsAre(row.hinted));
  }
}

TEST_F(CGridScrollerTest, FractionalDotsAreNotMoved) {
  grid.GetInfo().rows.SetFirst(31);
  EXPECT_EQ(scroller.Plan(kClient, 1.5).dy, 20);
  grid.GetInfo().rows.SetSize(30, 21);
  EXPECT_TRUE(scroller.Plan(kClient, 1.5).IsNone());
}

TEST_F(CGridScrollerTest, LockedCellsStayOutOfAMoveAlongOneAxisAndArePutBackAfterOneAlongBoth) {
  grid.GetInfo().columns.SetLocked(1);
  grid.GetInfo().rows.SetLocked(2);
  EXPECT_EQ(MoveTo(5, 31).area, CRect(0, 40, 210, 110));
  EXPECT_EQ(MoveTo(6, 30).area, CRect(50, 0, 210, 110));
  painter.Hints().ClearHints();
  EXPECT_EQ(MoveTo(6, 31).area, kClient);
  EXPECT_EQ(painter.Hints().IsInvalid(0, 31), 1);
  EXPECT_EQ(painter.Hints().IsInvalid(7, 0), 1);
  EXPECT_EQ(painter.Hints().IsInvalid(7, 32), 0);
}

}  // namespace
}  // namespace coregui::test
