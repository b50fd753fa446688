#include <gtest/gtest.h>

#include <memory>

#include "grid/control/CGridInfo.h"
#include "grid/data/CGridMem.h"
#include "grid/display/CGrid.h"
#include "grid/display/CGridScrollBar.h"
#include "grid/display/CGridTab.h"
#include "platform/CDC.h"
#include "platform/CScrollBar.h"
#include "platform/CWinApp.h"
#include "tests/grid/GridPicture.h"
#include "tests/support/Hand.h"

namespace {

/// A grid in a window of its own, 300 × 200 pixels, 20 columns of 50 and 100 rows of 10 pixels.
class WindowedGrid : public CGridCtrl {
 public:
  explicit WindowedGrid(bool sizes = false) {
    EnableInitialSizing(sizes ? 1 : 0);
    SetDoubleBufferMode(1);
    m_frame.Create(L"", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0);
    CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_frame, 1);
  }
  ~WindowedGrid() override { m_frame.DestroyWindow(); }
  void OnSetup() override {
    log += "setup ";
    SetVS_Width(16);
    SetHS_Height(16);
    SetDefColWidth(50);
    SetDefRowHeight(10);
    SetNumberCols(20);
    SetNumberRows(100);
    for (long row = 0; row < 100; ++row) {
      QuickSetText(0, row, CString::Formatted(L"%ld", row));
    }
    QuickSetText(1, -1, L"A heading that is wider than fifty pixels");
  }
  void OnSetupFinished() override { log += "finished "; }
  void OnSheetSetup(int sheet) override { log += "sheet" + std::to_string(sheet) + " "; }
  void OnTabSelected(int sheet) override { log += "tab" + std::to_string(sheet) + " "; }
  void OnLClicked(int, long, int, RECT*, POINT*, int) override {
    if (destroyOnClick) DestroyWindow();
  }
  int OnCanViewMove(int, long, int, long) override { return refused ? 0 : 1; }
  int OnVScrollHint(long, CString*) override { return refused ? 0 : 1; }

  std::string log;
  bool destroyOnClick = false;
  bool refused = false;  ///< moves of the view and tips

 private:
  CWnd m_frame;
};

CRect PlaceOf(const CWnd& grid, const CWnd* part) {
  CRect rect;
  part->GetWindowRect(&rect);
  grid.ScreenToClient(&rect);
  return rect;
}

}  // namespace

TEST(CGridCtrl, AShownControlGoesWithoutAskingTheSourceOfItsDerivedClass) {
  struct Source : CGridMem {
    int GetCell(int col, long row, CGridCell* cell) override {
      EXPECT_FALSE(gone) << col << "," << row;
      return CGridMem::GetCell(col, row, cell);
    }
    bool gone = false;
  } source;  // outlives the control, so that it can tell
  class Derived : public CGridCtrl {
   public:
    explicit Derived(Source& cells) : m_cells(cells) { SetDefDataSource(AddDataSource(&cells)); }
    ~Derived() override { m_cells.gone = true; }

   private:
    Source& m_cells;
  };
  CWnd frame;
  frame.Create(L"", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr, 0);
  auto grid = std::make_unique<Derived>(source);
  grid->CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &frame, 1);
  grid->SetNumberCols(3);
  grid->SetNumberRows(5);
  grid->GetGridWnd()->SetFocus();
  CWinApp::PumpPending();
  grid.reset();
}

TEST(CGridCtrl, CreatingSetsUpOnceAndLaysThePartsOut) {
  WindowedGrid grid;
  ASSERT_TRUE(grid.HasWindow());
  EXPECT_EQ(static_cast<CGrid*>(grid.GetGridWnd())->GetDoubleBufferMode(), 1)
      << "asked for before there was a body";
  EXPECT_EQ(grid.log, "setup finished sheet0 ");
  EXPECT_EQ(PlaceOf(grid, grid.GetGridWnd()), CRect(40, 20, 284, 184));
  EXPECT_EQ(PlaceOf(grid, grid.GetTopHdgWnd()), CRect(40, 0, 284, 20));
  EXPECT_EQ(PlaceOf(grid, grid.GetSideHdgWnd()), CRect(0, 20, 40, 184));
  EXPECT_EQ(PlaceOf(grid, grid.GetCornerWnd()), CRect(0, 0, 40, 20));
  EXPECT_EQ(PlaceOf(grid, grid.GetScrollBarCtrl(SB_VERT)), CRect(284, 0, 300, 184));
  grid.MoveWindow(0, 0, 1200, 1200);
  EXPECT_FALSE(grid.GetScrollBarCtrl(SB_VERT)->IsWindowVisible()) << "everything is in view";
  EXPECT_EQ(PlaceOf(grid, grid.GetGridWnd()), CRect(40, 20, 1200, 1200));
  grid.SetNumberRows(200);
  EXPECT_TRUE(grid.GetScrollBarCtrl(SB_VERT)->IsWindowVisible());
}

TEST(CGridCtrl, ScrollBarsStepPageAndFollowThePosition) {
  WindowedGrid grid;
  CScrollBar& bar = *grid.GetScrollBarCtrl(SB_VERT);
  const auto scroll = [&](int code) {
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(bar.GetSafeHwnd()));
    return grid.GetTopRow();
  };
  EXPECT_EQ(scroll(SB_LINEDOWN), 1);
  EXPECT_EQ(scroll(SB_PAGEDOWN), 16) << "the last whole row of a page starts the next one";
  EXPECT_EQ(scroll(SB_PAGEUP), 1);
  EXPECT_EQ(scroll(SB_BOTTOM), 84);
  EXPECT_EQ(scroll(SB_LINEDOWN), 84);
  EXPECT_EQ(bar.GetScrollPos(), 84);
  EXPECT_EQ(scroll(SB_TOP), 0);
  grid.GotoRow(50);
  EXPECT_EQ(bar.GetScrollPos(), grid.GetTopRow()) << "keys move the thumb";
  grid.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINERIGHT, 0));
  EXPECT_EQ(grid.GetLeftCol(), 1);
}

TEST(CGridCtrl, DraggingTheThumbNamesTheRowThatTheViewWouldStartWith) {
  for (const int follows : {1, 0}) {
    WindowedGrid grid;
    grid.SetVScrollMode(follows);
    auto& bar = static_cast<coregui::CGridScrollBar&>(*grid.GetScrollBarCtrl(SB_VERT));
    long named = 0;
    coregui::test::Drag(bar, {8, 25}, {8, 90}, [&] {
      EXPECT_TRUE(bar.GetTip().IsWindowVisible());
      named = std::stol(bar.GetTip().GetText().ToUtf8());
      EXPECT_GT(named, 20);
      EXPECT_LT(named, 80);
      EXPECT_EQ(grid.GetTopRow(), follows != 0 ? named - 1 : 0);
    });
    EXPECT_EQ(grid.GetTopRow(), named - 1);
    EXPECT_EQ(bar.GetScrollPos(), named - 1);
    EXPECT_FALSE(bar.GetTip().IsWindowVisible());
    grid.refused = true;
    coregui::test::Drag(bar, {8, 90}, {8, 30},
                        [&] { EXPECT_FALSE(bar.GetTip().IsWindowVisible()) << "the control wants no tip"; });
    EXPECT_EQ(grid.GetTopRow(), named - 1);
    EXPECT_EQ(bar.GetScrollPos(), named - 1) << "a refused move puts the thumb back";
  }
}

TEST(CGridCtrl, ClicksAndDragsSelectByTheirKeys) {
  struct Gesture {
    const char* name;
    UINT message;
    UINT flags;
    int col;
    long row;
    const char* selected;
  };
  const Gesture gestures[] = {
      {"a click", WM_LBUTTONDOWN, MK_LBUTTON, 1, 2, "1,2 "},
      {"a drag", WM_MOUSEMOVE, MK_LBUTTON, 2, 3, "1,2 2,2 1,3 2,3 "},
      {"its end", WM_LBUTTONUP, 0, 2, 3, "1,2 2,2 1,3 2,3 "},
      {"a right click inside", WM_RBUTTONDOWN, MK_RBUTTON, 1, 3, "1,2 2,2 1,3 2,3 "},
      {"with Ctrl", WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, 0, 5, "1,2 2,2 1,3 2,3 0,5 "},
      {"with Shift", WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 0, 6, "1,2 2,2 1,3 2,3 0,5 0,6 "},
      {"Shift on the current cell", WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 0, 6, "1,2 2,2 1,3 2,3 0,5 0,6 "},
      {"a click on the current cell", WM_LBUTTONDOWN, MK_LBUTTON, 0, 6, "0,6 "},
      {"a right click outside", WM_RBUTTONDOWN, MK_RBUTTON, 3, 1, "3,1 "},
  };
  for (const int locked : {0, 1}) {
    WindowedGrid grid;
    grid.SetMultiSelectMode(1);
    grid.LockColumns(locked);
    for (const Gesture& g : gestures) {
      grid.GetGridWnd()->SendMessage(g.message, g.flags, MAKELPARAM(g.col * 50 + 5, g.row * 10 + 5));
      EXPECT_EQ(coregui::test::SelectedIn(grid), g.selected)
          << g.name << ", locked columns: " << locked << grid;
    }
  }
}

TEST(CGridCtrl, TabsAreChosenByTheMouseAndTheKeysOnEverySheet) {
  WindowedGrid grid;
  grid.SetTabWidth(120);
  grid.SetNumberSheets(9);
  auto& tabs = *static_cast<CGridTab*>(grid.GetDlgItem(5));
  const auto click = [&](const CRect& at) { coregui::test::ClickAt(tabs, {at.left + 2, at.top + 5}); };
  grid.log.clear();
  click(tabs.GetStrip().TabRect(1));
  EXPECT_EQ(grid.log, "tab1 ");
  EXPECT_EQ(grid.GetNumberRows(), 0);
  EXPECT_EQ(CWnd::GetFocus(), grid.GetGridWnd()) << "a person goes on in the cells";
  EXPECT_TRUE(tabs.IsWindowVisible()) << "there are tabs on the other sheets too";
  for (int i = 0; i < 8; ++i) {
    click(tabs.GetStrip().ArrowRect(1));
  }
  click(tabs.GetStrip().TabRect(8));
  EXPECT_EQ(grid.GetSheetNumber(), 8);
  click(tabs.GetStrip().TabRect(8));
  EXPECT_EQ(CWnd::GetFocus(), &tabs) << "the current tab takes the keys";
  coregui::test::PressKey(tabs, VK_LEFT);
  EXPECT_EQ(grid.GetSheetNumber(), 7);
  coregui::test::PressKey(tabs, VK_HOME);
  EXPECT_FALSE(tabs.GetStrip().TabRect(0).IsRectEmpty());
  EXPECT_EQ(grid.GetNumberRows(), 100);
  grid.log.clear();
  coregui::test::PressKey(tabs, VK_LEFT);
  EXPECT_EQ(grid.log, "");
}

TEST(CGridCtrl, AClickMayDestroyTheGrid) {
  WindowedGrid grid;
  grid.destroyOnClick = true;
  grid.GetGridWnd()->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
  EXPECT_FALSE(grid.HasWindow());
  EXPECT_EQ(grid.GotoRow(9), 0) << "and goes on working without a window";
}

TEST(CGridCtrl, BestFitMakesRoomForHeadingsAndContents) {
  WindowedGrid grid;
  EXPECT_EQ(grid.BestFit(0, 1), 0);
  EXPECT_LT(grid.GetColWidth(0), 50);
  EXPECT_GT(grid.GetColWidth(0), 5);
  EXPECT_GT(grid.GetColWidth(1), 100);
  EXPECT_EQ(grid.BestFit(0, 20), 1);
  grid.QuickSetText(2, 0, L"a locked cell that is wider than fifty pixels");
  grid.LockRows(1);
  grid.SetTopRow(60);
  grid.SetColWidth(3, 0);
  EXPECT_EQ(grid.BestFit(2, 4), 0);
  EXPECT_GT(grid.GetColWidth(2), 100) << "locked rows are always in view";
  EXPECT_EQ(grid.GetColWidth(3), 0) << "a hidden column stays hidden among others";
  EXPECT_EQ(grid.BestFit(3, 3), 0);
  EXPECT_GT(grid.GetColWidth(3), 0) << "and is shown when it alone is meant";
  grid.JoinCells(0, 70, 3, 70);
  grid.QuickSetText(0, 70, L"a text that has the room of four columns");
  EXPECT_EQ(grid.BestFit(0, 0), 0);
  EXPECT_LT(grid.GetColWidth(0), 50) << "joined cells count for nothing";
  WindowedGrid sized(true);
  EXPECT_GT(sized.GetColWidth(1), 100) << "the initial sizes are asked for before the grid is shown";
  CGridCtrl never;
  never.SetNumberCols(2);
  EXPECT_EQ(never.BestFit(0, 1), 1) << "nothing can be measured without a window";
}
