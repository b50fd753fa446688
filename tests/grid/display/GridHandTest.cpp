// The grid under a person's hand: the toolkit's events go in, notifications and pictures come out.

#include "grid/display/CGridMouse.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"
#include "tests/grid/display/HandGrid.h"

namespace coregui::test {
namespace {

// --- Clicks

TEST_F(GridHandTest, EveryPartReportsEveryClickWithItsCell) {
  grid.EnableMenu(1);
  struct Row {
    CWnd& part;
    CPoint at;
    const char* name;
    const char* cell;
    const char* section;
  };
  for (const Row& row :
       {Row{Body(), {60, 30}, "", "1,1", "1"}, Row{Body(), {60, 30}, "", "1,1", "1"},
        Row{Top(), {75, 10}, "TH", "1,-2", "2"}, Row{Top(), {75, 30}, "TH", "1,-1", "2"},
        Row{Side(), {10, 30}, "SH", "-1,1", "3"}, Row{Corner(), {10, 10}, "CB", "-1,-1", "4"}}) {
    const auto note = [&row](const char* button, const char* step) {
      return std::string(row.name) + button + " " + row.cell + step + "; ";
    };
    StepMouse(row.part, MouseStep::press, row.at);
    StepMouse(row.part, MouseStep::release, row.at);
    EXPECT_EQ(grid.TakeNotes(), note("L", " down") + note("L", " up"));
    StepMouse(row.part, MouseStep::press, row.at, true);
    StepMouse(row.part, MouseStep::release, row.at, true);
    const std::string menu = std::string("menu ") + row.cell + " in " + row.section + "; ";
    EXPECT_EQ(grid.TakeNotes(), note("R", " down") + menu + note("R", " up"));
    StepMouse(row.part, MouseStep::doubleClick, row.at);
    StepMouse(row.part, MouseStep::release, row.at);
    EXPECT_EQ(grid.TakeNotes(), note("D", ""));
    EXPECT_EQ(CWnd::GetFocus(), &Body());
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
  }
}

// --- Sizing

TEST_F(GridHandTest, AnEdgeIsDraggedInOutlineAndLive) {
  for (const int mode : {1, 2}) {
    SCOPED_TRACE(mode);
    grid.SetUserSizingMode(mode);
    const std::vector<DWORD> before = ShownDots(Body());
    StepMouse(Top(), MouseStep::move, {101, 30});
    StepMouse(Top(), MouseStep::press, {101, 30});
    StepMouse(Top(), MouseStep::move, {121, 30});
    EXPECT_EQ(grid.TakeNotes(), "col 1 sizing 70; ");
    EXPECT_EQ(grid.GetColWidth(1), 70);
    EXPECT_FALSE(ShownDots(Body()) == before) << "the outline, or the new width";
    StepMouse(Top(), MouseStep::move, {-500, 30});
    EXPECT_EQ(grid.TakeNotes(), "col 1 sizing 0; ");
    StepMouse(Top(), MouseStep::move, {101, 30});
    EXPECT_EQ(ShownDots(Body()) == before, mode == 2) << "the outline alone, or as it was";
    grid.TakeNotes();
    StepMouse(Top(), MouseStep::release, {101, 30});
    EXPECT_EQ(grid.TakeNotes(), "col 1 sized 50; ");
    CWinApp::PumpPending();
    EXPECT_EQ(ShownDots(Body()) == before, true) << "as it was";
  }
}

TEST_F(GridHandTest, EdgesOfEveryKindAreSized) {
  Drag(Side(), {10, 41}, {10, 61});
  EXPECT_EQ(grid.TakeNotes(), "row 1 sizing 40; row 1 sized 40; ");
  grid.sizedTo = 33;
  Drag(Side(), {10, 20}, {10, 60});
  EXPECT_EQ(grid.GetRowHeight(0), 33) << "the notification has the last word";
  grid.sizedTo = -1;
  grid.TakeNotes();
  Drag(Top(), {25, 20}, {25, 26});
  EXPECT_EQ(grid.TakeNotes(), "top 0 sizing 46; top 0 sized 46; ");
  EXPECT_EQ(grid.GetTH_Height(), 46);
  Drag(Corner(), {38, 10}, {58, 10});
  EXPECT_EQ(grid.TakeNotes(), "side 0 sized 58; ");
  EXPECT_EQ(grid.GetSH_Width(), 58) << "the edge jumps to the pointer";
  grid.refuses = "OnTopHdgSizing";
  Drag(Corner(), {10, 44}, {10, 54});
  EXPECT_EQ(grid.GetTH_Height(), 54) << "the corner does not ask";
  CWinApp::PumpPending();
  EXPECT_EQ(DifferenceToFresh(), "");
}

TEST_F(GridHandTest, AHiddenColumnIsDraggedOpenAndARefusedOneIsClicked) {
  grid.SetColWidth(2, 0);
  Drag(Top(), {100, 30}, {130, 30});
  EXPECT_EQ(grid.GetColWidth(1), 50);
  EXPECT_EQ(grid.GetColWidth(2), 30);
  grid.TakeNotes();
  grid.refuses = "OnCanSizeCol";
  Drag(Top(), {49, 30}, {80, 30});
  EXPECT_EQ(grid.TakeNotes(), "THL 0,-1 down; THL 1,-1 up; ");
  grid.refuses = "";
  grid.SetUserSizingMode(0);
  Drag(Top(), {49, 30}, {80, 30});
  EXPECT_EQ(grid.GetColWidth(0), 50);
}

TEST_F(GridHandTest, ADialogThatOpensInADragEndsIt) {
  grid.takesMouse = true;
  struct Row {
    CWnd& part;
    CPoint edge;
    CPoint to;
    const char* notes;
  };
  for (const Row& row : {Row{Top(), {50, 30}, {80, 30}, "col 0 sizing 80; col 0 sized 50; "},
                         Row{Side(), {10, 20}, {10, 60}, "row 0 sizing 60; row 0 sized 20; "},
                         Row{Top(), {25, 20}, {25, 26}, "top 0 sizing 46; top 0 sized 40; "},
                         Row{Corner(), {10, 39}, {10, 54}, "top 0 sizing 54; top 0 sized 40; "}}) {
    StepMouse(row.part, MouseStep::move, row.edge);
    StepMouse(row.part, MouseStep::press, row.edge);
    StepMouse(row.part, MouseStep::move, row.to);
    StepMouse(row.part, MouseStep::move, row.to + CSize(5, 5));
    StepMouse(row.part, MouseStep::release, row.to);
    EXPECT_EQ(grid.TakeNotes(), row.notes);
  }
  EXPECT_EQ(CSize(grid.GetColWidth(0), grid.GetRowHeight(0)), CSize(50, 20));
  EXPECT_EQ(CSize(grid.GetSH_Width(), grid.GetTH_Height()), CSize(40, 40));
  grid.EnableColSwapping(1);
  StepMouse(Top(), MouseStep::press, {75, 30});
  StepMouse(Top(), MouseStep::move, {400, 30});
  CWnd::ReleaseCapture();
  EXPECT_FALSE(Top().KillTimer(0x710A)) << "the view scrolls no more";
  StepMouse(Top(), MouseStep::release, {190, 30});
  EXPECT_EQ(RowOf(grid, 5), "c0 c1 c2 c3 c4 ");
  EXPECT_EQ(DifferenceToFresh(), "");
}

TEST_F(GridHandTest, ADoubleClickOnAnEdgeFitsTheColumn) {
  grid.QuickSetText(1, 90, L"A text out of view that needs far more than fifty pixels");
  StepMouse(Top(), MouseStep::doubleClick, {99, 30});
  EXPECT_GT(grid.GetColWidth(1), 150);
  EXPECT_EQ(grid.TakeNotes(), "col 1 sized " + std::to_string(grid.GetColWidth(1)) + "; ");
}

// --- Swapping columns

TEST_F(GridHandTest, AColumnIsDraggedToAnotherPlace) {
  grid.EnableColSwapping(1);
  Drag(Top(), {75, 30}, {190, 30});  // right half of column 3
  EXPECT_THAT(grid.TakeNotes(), testing::HasSubstr("swap 1 to 3?; swapped 1 to 3; "));
  EXPECT_EQ(RowOf(grid, 5), "c0 c2 c3 c1 c4 ");
  Drag(Top(), {175, 30}, {10, 30}, [this] {
    CWinApp::PumpPending();
    EXPECT_EQ(ShownPixel(Top(), {0, 30}), GetSysColor(COLOR_HIGHLIGHT)) << "where it would stand";
  });
  EXPECT_THAT(grid.TakeNotes(), testing::HasSubstr("swapped 3 to 0; "));
  EXPECT_EQ(RowOf(grid, 5), "c1 c0 c2 c3 c4 ");
  for (const char* refused : {"OnCanColSwap", "OnColSwapStart"}) {
    grid.refuses = refused;
    Drag(Top(), {75, 30}, {190, 30});
    EXPECT_EQ(RowOf(grid, 5), "c1 c0 c2 c3 c4 ") << refused;
  }
  EXPECT_EQ(DifferenceToFresh(), "");
}

TEST_F(GridHandTest, ADraggedColumnScrollsTheViewWhileThePointerRestsBesideIt) {
  grid.EnableColSwapping(1);
  StepMouse(Top(), MouseStep::press, {75, 30});
  StepMouse(Top(), MouseStep::move, {400, 30});
  PumpUntil([this] { return grid.GetLeftCol() >= 3; });
  StepMouse(Top(), MouseStep::move, {25, 30});
  const int left = grid.GetLeftCol();
  StepMouse(Top(), MouseStep::release, {20, 30});
  EXPECT_THAT(grid.TakeNotes(), testing::HasSubstr("swapped 1 to " + std::to_string(left - 1)));
}

// --- Selecting

TEST_F(GridHandTest, ADragSelectsAndGoesOnWhileThePointerRestsOutside) {
  grid.SetMultiSelectMode(1);
  StepMouse(Body(), MouseStep::press, {60, 30});
  StepMouse(Body(), MouseStep::move, {110, 70});
  EXPECT_TRUE(grid.IsSelected(1, 1) != 0 && grid.IsSelected(2, 3) != 0 && grid.IsSelected(3, 3) == 0) << grid;
  StepMouse(Body(), MouseStep::move, {110, 500});
  PumpUntil([this] { return grid.GetTopRow() >= 3; });
  EXPECT_NE(grid.IsSelected(2, grid.GetTopRow() + 2), 0) << grid;
  StepMouse(Body(), MouseStep::move, {110, 70});
  EXPECT_FALSE(Body().KillTimer(CGridMouse::kDragTimer)) << "back inside it rests";
  StepMouse(Body(), MouseStep::move, {110, 500});
  StepMouse(Body(), MouseStep::release, {110, 500});
  EXPECT_FALSE(Body().KillTimer(CGridMouse::kDragTimer));
  EXPECT_NE(grid.IsSelected(1, 1), 0);
  EXPECT_EQ(DifferenceToFresh(), "");
}

// --- Wheel and keys

TEST_F(GridHandTest, WheelAndKeysLeaveThePictureOfPaintingAnew) {
  Body().SetFocus();
  grid.GotoCell(1, 1);
  struct Row {
    const char* name;
    int wheel;  // 0: the key is pressed
    UINT key;
    bool control;
    std::string current;
    std::string first;
  };
  const Row rows[] = {{"notch", -120, 0, false, "1,1", "0,3"},
                      {"half", -60, 0, false, "1,1", "0,3"},
                      {"the other half", -60, 0, false, "1,1", "0,6"},
                      {"down", 0, VK_DOWN, false, "1,2", "0,2"},
                      {"right", 0, VK_RIGHT, false, "2,2", "0,2"},
                      {"end", 0, VK_END, false, "19,2", "15,2"},
                      {"ctrl end", 0, VK_END, true, "19,99", "15,92"},
                      {"up", 0, VK_UP, false, "19,98", "15,92"},
                      {"left", 0, VK_LEFT, false, "18,98", "15,92"},
                      {"page up", 0, VK_PRIOR, false, "18,91", "15,91"},
                      {"page down", 0, VK_NEXT, false, "18,98", "15,91"},
                      {"no key of the grid", 0, VK_F2, false, "18,98", "15,91"},
                      {"home", 0, VK_HOME, false, "0,98", "0,91"},
                      {"ctrl home", 0, VK_HOME, true, "0,0", "0,0"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    if (row.wheel != 0)
      TurnWheel(Body(), {5, 5}, row.wheel);
    else
      PressKey(Body(), row.key, row.control);
    CWinApp::PumpPending();
    EXPECT_EQ(CurrentOf(grid), row.current);
    EXPECT_EQ(ViewOf(grid), row.first);
    EXPECT_EQ(DifferenceToFresh(), "");
  }
}

TEST_F(GridHandTest, TheWheelTurnsTheCellsOverTheHeadingsTooAndMovesAcross) {
  for (CWnd* part : {&Side(), &Top(), &Corner()}) TurnWheel(*part, {5, 5}, -120);
  EXPECT_EQ(grid.GetTopRow(), 9);
  grid.SetColWidth(1, 0);
  const auto tilt = [this](CWnd& part, int delta) {
    part.SendMessage(WM_MOUSEHWHEEL, MAKEWPARAM(0, delta));
    return grid.GetLeftCol();
  };
  EXPECT_EQ(tilt(Body(), 120), 2) << "a hidden column is none";
  EXPECT_EQ(tilt(Top(), 240), 4);
  EXPECT_EQ(tilt(Body(), -60), 4);
  EXPECT_EQ(tilt(Body(), -120), 3);
}

TEST_F(GridHandTest, TheBodyWantsAllKeysAndIsActivatedByAClick) {
  EXPECT_EQ(Body().SendMessage(WM_GETDLGCODE), static_cast<LRESULT>(DLGC_WANTARROWS | DLGC_WANTALLKEYS));
  EXPECT_EQ(Body().SendMessage(WM_MOUSEACTIVATE), MA_ACTIVATE);
}

/// A dialog around a grid.
class HelpFrame : public CWnd {
 public:
  DWORD shown = 0;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_HELP) return CWnd::WindowProc(message, wParam, lParam);
    shown = reinterpret_cast<const HELPINFO*>(lParam)->dwContextId;
    return 1;
  }
};

TEST(GridHelp, ComesForTheCurrentCellWithF1AndForEveryPlaceByItsPoint) {
  HelpFrame frame;
  CWnd pane;
  HandGrid grid;
  frame.Create(L"", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0);
  pane.Create(L"", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 300), &frame, 1);
  grid.CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 316, 216), &pane, 1);
  grid.GotoCell(3, 2);
  PressKey(*grid.GetGridWnd(), VK_F1);
  EXPECT_EQ(frame.shown, 0U) << "the cell has no help";
  grid.helps = true;
  PressKey(*grid.GetGridWnd(), VK_F1);
  EXPECT_EQ(frame.shown, 1032U);
  const auto at = [](CWnd* part, int x, int y) {
    return part->SendMessage(WM_HELPHITTEST, 0, MAKELPARAM(x, y));
  };
  EXPECT_EQ(at(grid.GetGridWnd(), 60, 30), 1011);
  EXPECT_EQ(at(grid.GetTopHdgWnd(), 75, 10), 2008);
  EXPECT_EQ(at(grid.GetSideHdgWnd(), 10, 30), 2991);
  EXPECT_EQ(at(grid.GetCornerWnd(), 10, 30), 3989);
  grid.SetNumberCols(2);
  EXPECT_EQ(at(grid.GetGridWnd(), 200, 30), 989) << "beside the cells";
  frame.DestroyWindow();
}

// --- Tips

TEST_F(GridHandTest, ATipShowsWhereThePointerRestsInEveryPart) {
  grid.UseHints(1);
  StepMouse(Body(), MouseStep::move, {60, 30});
  PumpUntil([] { return !ShownTip().IsEmpty(); });
  EXPECT_EQ(ShownTip(), L"1,1 in 1");
  StepMouse(Body(), MouseStep::move, {60, 35});
  EXPECT_EQ(ShownTip(), L"1,1 in 1") << "it stays over its cell";
  StepMouse(Body(), MouseStep::move, {60, 50});
  EXPECT_EQ(ShownTip(), L"") << "and goes with it";
  PumpUntil([] { return !ShownTip().IsEmpty(); });
  EXPECT_EQ(ShownTip(), L"1,2 in 1");
  PressKey(Body(), VK_DOWN);
  EXPECT_EQ(ShownTip(), L"");
  StepMouse(Top(), MouseStep::move, {75, 30});
  PumpUntil([] { return !ShownTip().IsEmpty(); });
  EXPECT_EQ(ShownTip(), L"1,-1 in 2");
}

}  // namespace
}  // namespace coregui::test
