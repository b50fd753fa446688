#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "grid/display/CGridKeys.h"
#include "grid/display/CGridMouse.h"
#include "grid/display/CGridTips.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"
#include "tests/grid/display/FakeGrid.h"

namespace coregui::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<UINT>& Waits() {
  static std::vector<UINT> waits;
  return waits;
}

/// Rooms of the body over a fake grid without a window; waiting is written down instead.
struct CGridInputTest : testing::Test {
  FakeGrid grid;
  CGridMouse mouse{grid, grid};
  CGridKeys keys{grid, grid};

  CGridInputTest() {
    Waits().clear();
    SetSleepHook([](UINT milliseconds) { Waits().push_back(milliseconds); });
    grid.GetInfo().columns.last = 4;
    grid.GetInfo().rows.last = 5;
    grid.GotoCell(1, 1);
    grid.log.clear();
    grid.type.log.clear();
  }
  void Press(CPoint point) { mouse.LeftDown(MK_LBUTTON, point, true); }
};

// --- Clicks

TEST_F(CGridInputTest, AClickGoesToTheCellThenTellsTypeThenControl) {
  grid.onClick = [this] { EXPECT_THAT(grid.type.log, ElementsAre("type down 1,2")) << "before the control"; };
  Press({60, 45});
  EXPECT_EQ(grid.Current(), "1,2");
  grid.onClick = nullptr;
  mouse.LeftUp(0, {60, 45});
  mouse.LeftUp(0, {60, 45});
  mouse.RightUp(0, {60, 45});
  EXPECT_THAT(grid.log, ElementsAre("down 1,2", "up 1,2")) << "then nothing was pressed";
  grid.SetNumberCols(2);
  grid.type.log.clear();
  Press({150, 45});
  EXPECT_EQ(grid.log.back(), "down -1,-1") << "beside the cells";
  EXPECT_THAT(grid.type.log, IsEmpty());
}

TEST_F(CGridInputTest, ATypeThatTakesTheButtonGetsTheMovesAndTheRelease) {
  grid.type.takesClicks = 1;
  Press({60, 45});
  EXPECT_THAT(grid.log, ElementsAre("down 1,2 processed"));
  mouse.Move(MK_LBUTTON, {10, 5});
  mouse.LeftUp(0, {10, 5});
  EXPECT_THAT(grid.type.log, ElementsAre("type down 1,2", "type move 1,2", "type up 1,2"));
  EXPECT_EQ(grid.Current(), "1,2") << "no drag selection";
  mouse.Move(0, {10, 5});
  EXPECT_EQ(grid.type.log.back(), "type move 0,0") << "free again";
}

TEST(CGridMouse, AGridMayBeDestroyedByItsClick) {
  auto grid = std::make_unique<FakeGrid>();
  auto window = std::make_unique<CWnd>();
  CGridMouse mouse(*grid, *window);
  grid->onClick = [&window] { window.reset(); };
  mouse.LeftDown(MK_LBUTTON, {10, 5}, true);
  EXPECT_EQ(grid->GetInfo().view.mouseEvent, MouseEvent::leftDown)
      << "what follows the notification is left out";
}

// --- Dragging

TEST_F(CGridInputTest, OverAPartlyShownRowADragWaitsWhenThatIsOff) {
  grid.EnableScrollOnPartialCells(0);
  Press({10, 5});
  mouse.Move(MK_LBUTTON, {60, 105});
  EXPECT_EQ(grid.Current(), "0,0");
}

TEST_F(CGridInputTest, LockedColumnsScrollBackStepByStep) {
  grid.LockColumns(1);
  grid.GetInfo().columns.SetFirst(6);
  grid.GotoCell(6, 1);
  Press({60, 25});
  EXPECT_EQ(grid.Current(), "6,1");
  mouse.Move(MK_LBUTTON, {10, 25});
  EXPECT_EQ(grid.Current(), "5,1") << "one column back, not to the locked column under the pointer";
}

TEST_F(CGridInputTest, OutsideTheGridADragStepsOneLine) {
  Press({60, 25});
  mouse.Move(MK_LBUTTON, {60, 300});
  EXPECT_EQ(grid.Current(), "1,2");
  mouse.Move(MK_LBUTTON, {60, -300});
  EXPECT_EQ(grid.Current(), "1,1");
  mouse.Move(MK_LBUTTON, {900, 25});
  EXPECT_EQ(grid.Current(), "2,1");
}

TEST_F(CGridInputTest, BallisticDragsGrowWithTheDistanceAndSingleStepsWait) {
  grid.SetBallisticMode(2);
  grid.SetBallisticDelay(70);
  Press({60, 25});
  mouse.Move(MK_LBUTTON, {60, 112});
  EXPECT_EQ(grid.Current(), "1,2");
  EXPECT_THAT(Waits(), ElementsAre(70));
  mouse.Move(MK_LBUTTON, {60, 155});  // 45 below: 3 lines, squared
  EXPECT_EQ(grid.Current(), "1,11");
  EXPECT_EQ(Waits().size(), 1U);
  mouse.Move(MK_LBUTTON, {60, -1000});
  EXPECT_EQ(grid.Current(), "1,0") << "never before the first row";
}

// --- Keys

TEST_F(CGridInputTest, HeldKeysAccelerateUntilTheyAreReleased) {
  grid.SetBallisticKeyMode(4);
  grid.SetBallisticKeyDelay(30);
  grid.GotoCell(0, 0);
  std::vector<long> rows;
  for (int i = 0; i < 9; ++i) {
    keys.KeyDown(VK_DOWN);
    rows.push_back(grid.GetCurrentRow());
  }
  EXPECT_THAT(rows, ElementsAre(1, 2, 3, 5, 7, 9, 11, 20, 29));
  EXPECT_THAT(Waits(), ElementsAre(30, 30));
  keys.KeyUp(VK_DOWN);
  keys.KeyDown(VK_DOWN);
  EXPECT_EQ(grid.GetCurrentRow(), 30);
}

TEST_F(CGridInputTest, StepsEnterAJoinedBlockAtItsStartAndLeaveItBehindItsEnd) {
  grid.JoinCells(3, 2, 5, 4);
  grid.GotoCell(2, 3);
  keys.KeyDown(VK_RIGHT);
  EXPECT_EQ(grid.Current(), "3,2");
  keys.KeyDown(VK_RIGHT);
  EXPECT_EQ(grid.Current(), "6,2");
  keys.KeyDown(VK_LEFT);
  EXPECT_EQ(grid.Current(), "3,2");
  keys.KeyDown(VK_DOWN);
  EXPECT_EQ(grid.Current(), "3,5");
}

TEST_F(CGridInputTest, ATypeMayReplaceTheKey) {
  grid.type.replacesKeyBy = VK_DOWN;
  keys.KeyDown(VK_RIGHT);
  EXPECT_EQ(grid.Current(), "1,2");
}

// --- Tips

TEST_F(CGridInputTest, ATipNeedsASecondHitOnTheSameCellAndTheAnswerOne) {
  CGridTips tips(grid, grid, GRIDSECTION_GRID);
  EXPECT_FALSE(tips.HitTest(1, 1));
  EXPECT_TRUE(tips.HitTest(1, 1));
  EXPECT_TRUE(tips.AskText(1, 1));
  EXPECT_EQ(tips.Text(), L"tip");
  EXPECT_FALSE(tips.HitTest(1, 2));
  EXPECT_FALSE(tips.IsShown()) << "another cell cancels the tip";
  grid.hintAnswer = 2;
  EXPECT_TRUE(tips.HitTest(1, 2));
  EXPECT_FALSE(tips.AskText(1, 2)) << "only exactly 1 shows it";
}

}  // namespace
}  // namespace coregui::test
