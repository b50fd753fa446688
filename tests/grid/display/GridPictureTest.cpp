// The grid in a real window, from its pixels.

#include <array>
#include <functional>
#include <random>

#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "grid/control/CGridMultiSelect.h"
#include "grid/data/CGridCell.h"
#include "grid/display/CGridHeading.h"
#include "platform/CScrollBar.h"
#include "platform/Keys.h"
#include "tests/grid/GridOperations.h"
#include "tests/grid/display/ShowcaseGrid.h"
#include "tests/support/LogWatch.h"

namespace coregui::test {
namespace {

struct GridPictureTest : ShowcaseTest {
  /// Sends mouse messages to the body; the headless display cannot confine the pointer and says so.
  void Click(UINT down, CPoint point) {
    CWnd& body = *grid.GetGridWnd();
    body.SendMessage(down, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    body.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_THAT(TakeLog(), testing::Each(testing::HasSubstr(L"grabbing the mouse")));
  }
};

TEST_F(GridPictureTest, ASelectionShowsAtOnceAndIsTakenBackAtOnce) {
  Open();
  Save("light");
  grid.SetHighlightRow(0);
  grid.SetMultiSelectMode(1);
  grid.GotoCell(7, 12);
  const auto corner = [this](int col, long row) {
    return BodyPixel(Cell(col, row).left + 2, Cell(col, row).top + 2);
  };
  grid.SelectRange(1, 9, 2, 10);
  EXPECT_EQ(corner(1, 9), GetSysColor(COLOR_HIGHLIGHT));
  EXPECT_EQ(corner(2, 10), GetSysColor(COLOR_HIGHLIGHT));
  EXPECT_EQ(corner(3, 10), GetSysColor(COLOR_WINDOW));
  grid.SelectRange(5, 2, 7, 2);
  EXPECT_EQ(corner(6, 2), GetSysColor(COLOR_WINDOW)) << "a greyed cell keeps its colour";
  EXPECT_EQ(corner(7, 2), GetSysColor(COLOR_HIGHLIGHT));
  Save("selected");
  grid.ClearSelections();
  EXPECT_EQ(corner(1, 9), GetSysColor(COLOR_WINDOW));
  EXPECT_EQ(corner(2, 10), GetSysColor(COLOR_WINDOW));
  EXPECT_EQ(corner(7, 2), RGB(255, 240, 180)) << "the cell's own colour";
}

TEST_F(GridPictureTest, NoDotBetweenCellsOrInWideBordersIsLeftOut) {
  Open();
  grid.SetHighlightRow(0);
  grid.SelectRange(0, 11, 3, 13);
  CWnd& body = *grid.GetGridWnd();
  constexpr COLORREF kPink = RGB(255, 0, 255);
  CClientDC dc(&body);
  dc.FillSolidRect(body.GetClientRectangle(), kPink);
  body.RedrawWindow();
  const std::vector<DWORD> dots = Dots();
  EXPECT_EQ(std::count(dots.begin(), dots.end(), kPink), 0);
  const double scale = dc.GetScaleFactor();
  const CRect cell = Cell(3, 1);  // three pixels wide all around
  const long row =
      std::lround((cell.top + 10) * scale) * std::lround(body.GetClientRectangle().Width() * scale);
  for (long x = std::lround(cell.left * scale); x < std::lround((cell.left + 3) * scale); ++x) {
    EXPECT_EQ(dots[static_cast<std::size_t>(row + x)], 0xC81E1EU) << x;
  }
}

TEST_F(GridPictureTest, PrintingTakesNothingFromTheScreen) {
  Open();
  const std::vector<DWORD> before = Dots();
  grid.QuickSetBackColor(3, 11, RGB(1, 200, 3));
  grid.GetDrawHints()->AddHint(3, 11);
  CBitmap picture;
  const CClientDC like(&grid);
  ASSERT_TRUE(picture.CreateCompatibleBitmap(&like, 700, 420));
  CMemoryDC paper(&like, &picture);
  grid.PrintTo(&paper);
  const CPoint place = Cell(3, 11).TopLeft() + CSize(2, 2);
  EXPECT_EQ(paper.GetPixel(place.x + grid.GetSH_Width(), place.y + grid.GetTH_Height()), RGB(1, 200, 3));
  EXPECT_EQ(Dots() == before, true) << "the screen waits";
  grid.Moved();
  EXPECT_EQ(BodyPixel(place.x, place.y), RGB(1, 200, 3)) << "and is not forgotten";
  const std::vector<DWORD> shown = Dots();
  grid.SetPaintMode(0);
  grid.QuickSetBackColor(3, 9, RGB(1, 200, 3));
  grid.RedrawCell(3, 9);
  grid.GetGridWnd()->Invalidate();
  CWinApp::PumpPending();
  EXPECT_EQ(Dots() == shown, true) << "painting is disabled";
  grid.SetTopRow(3);
  grid.GotoCell(2, 12);
  grid.PrintTo(&paper);
  grid.SetPaintMode(1);
  grid.Moved();
  EXPECT_EQ(DifferenceToFresh(), "") << "the screen is scrolled from where it was";
}

/// One cell after the other gets any text and look, some out of view or hidden, and is redrawn alone.
TEST_F(GridPictureTest, ACellRedrawnAloneTakesItsOverlapAlong) {
  Open();
  grid.SetHighlightRow(0);
  grid.GotoCell(7, 12);
  grid.LockColumns(1);
  for (int col = 0; col < 8; ++col) grid.SetColWidth(col, col == 4 ? 0 : 130);
  CWinApp::PumpPending();
  std::mt19937 random(11);
  const auto any = [&random](auto... choices) {
    const std::array all{choices...};
    return all[random() % all.size()];
  };
  const wchar_t* const kLong = L"A text that spills over two or three neighbours";
  for (int step = 0; step < 240; ++step) {
    grid.SetLeftCol(step / 80 + 1);
    const int col = any(0, 1, 2, 3, 4, 5, 6, 7);
    CGridCell cell;
    cell.SetPropertyFlags(0);
    cell.SetText(any(L"", L"", L"a", L"short", kLong));
    cell.SetAlignment(any(1, 1, 1, 2, 1 | 0x20));
    cell.SetBackColor(any(0xFFFFFFU, 0xDDFFDDU));
    if (any(0, 0, 1) != 0) cell.SetBorder(any(0x1, 0x100, 0x2000));
    if (any(0, 0, 0, 1) != 0) cell.SetCellType(2);
    if (any(0, 0, 0, 1) != 0) cell.SetCellTypeEx(2);
    grid.SetCell(col, 11, &cell);
    grid.RedrawCell(col, 11);
    ASSERT_EQ(DifferenceToFresh(), "") << "step " << step << ", column " << col;
  }
}

/// The theme is chosen before the grid is made.
struct DarkFirst {
  DarkFirst() { SetDarkTheme(true); }
};
struct DarkGridPictureTest : DarkFirst, GridPictureTest {};

TEST_F(DarkGridPictureTest, FollowsTheDarkTheme) {
  Open();
  grid.GotoCell(0, 9);
  Save("dark");
  EXPECT_EQ(BodyPixel(Cell(6, 9).left + 2, Cell(6, 9).top + 2), GetSysColor(COLOR_WINDOW));
  const CRect box = Cell(0, 7);
  EXPECT_EQ(BodyPixel(box.left + 3, box.top + 8), GetSysColor(COLOR_WINDOWTEXT)) << "the check box's frame";
  EXPECT_LT(BodyPixel(Cell(6, 9).right - 1, Cell(6, 9).top + 2) & 0xFF, 100U) << "the grid line";
  grid.LockColumns(1);
  CWinApp::PumpPending();
  EXPECT_EQ(BodyPixel(Cell(0, 9).right - 1, Cell(0, 9).top + 2), GetSysColor(COLOR_WINDOWTEXT))
      << "the separator";
}

TEST_F(GridPictureTest, GridLinesFollowTheThemeUntilTheirColourIsChosen) {
  Open();
  CPen& pen = *grid.GetGridLinePen();
  EXPECT_EQ(pen.GetColor(), 0xDCDCDCU);
  SetDarkTheme(true);
  CWinApp::PumpPending();
  EXPECT_LT(pen.GetColor() & 0xFF, 100U);
  SetDarkTheme(false);
  CWinApp::PumpPending();
  EXPECT_EQ(pen.GetColor(), 0xDCDCDCU);
  pen.CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
  SetDarkTheme(true);
  CWinApp::PumpPending();
  EXPECT_EQ(pen.GetColor(), RGB(255, 0, 0));
}

TEST_F(GridPictureTest, TheSquareBetweenTheScrollBarsLooksLikeAPartOfThem) {
  Open();
  grid.MoveWindow(CRect(0, 0, 300, 200));
  for (const bool dark : {false, true, false}) {
    SetDarkTheme(dark);
    CWinApp::PumpPending();
    const CRect bar = grid.GetScrollBarCtrl(SB_VERT)->GetClientRectangle();
    const int middle = (bar.Width() - 1) / 2;
    const COLORREF ground =
        ShownPixel(*grid.GetScrollBarCtrl(SB_VERT), CPoint(middle, bar.bottom - bar.Width() - 3));
    const CRect client = grid.GetClientRectangle();
    EXPECT_NEAR(ShownPixel(grid, CPoint(client.right - 2, client.bottom - 2)) & 0xFF, ground & 0xFF, 2)
        << dark;
    EXPECT_NEAR(ground & 0xFF, dark ? 45 : 220, 30) << "of the theme";
  }
}

TEST_F(GridPictureTest, ADoubleBufferHasTheDotsOfTheScreenWhereverTheGridIsMoved) {
  Open();
  for (const int at : {1, 2, 3, 4}) {
    grid.SetDoubleBufferMode(1);
    CWinApp::PumpPending();
    grid.MoveWindow(CRect(CPoint(at, at), CSize(500, 300)));
    grid.GotoRow(at);
    CWinApp::PumpPending();
    const std::vector<DWORD> buffered = Dots();
    grid.SetDoubleBufferMode(0);
    EXPECT_EQ(DifferenceToFresh(), "") << at;
    EXPECT_TRUE(Dots() == buffered) << at;
  }
}

// --- Any row of operations ends in the picture of painting anew

/// A grid of two sheets under a person's hand.
struct HandledGrid : ShowcaseTest {
  HandledGrid() {
    Open();
    grid.MoveWindow(CRect(0, 0, 500, 300));
    grid.SetMultiSelectMode(1);
    grid.SetNumberSheets(2);
    grid.SetTabWidth(100);
    grid.SetFocus();
    CWinApp::PumpPending();
  }
  void TestBody() override {}
  std::string Difference() {
    CWinApp::PumpPending();
    return DifferenceToFresh();
  }
};

void Press(CGridCtrl& grid, UINT key, bool shift, bool control) {
  SetKeyState(VK_SHIFT, shift);
  SetKeyState(VK_CONTROL, control);
  grid.GetGridWnd()->SendMessage(WM_KEYDOWN, key);
  grid.GetGridWnd()->SendMessage(WM_KEYUP, key);
  SetKeyState(VK_SHIFT, false);
  SetKeyState(VK_CONTROL, false);
}

void DragMouse(CGridCtrl& grid, const GridStep& s) {
  CWnd& body = *grid.GetGridWnd();
  const UINT keys[] = {0, MK_CONTROL, MK_SHIFT};
  const LPARAM from = MAKELPARAM(s.a * 40, s.b * 25);
  body.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | keys[std::abs(s.c) % 3], from);
  body.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(s.c * 50, s.a * 30));
  body.SendMessage(WM_LBUTTONUP, 0, from);
}

void Rewrite(CGridCtrl& grid, int col, long row, int kind) {
  const wchar_t* const texts[] = {L"", L"short", L"A long text that spills over two or three neighbours"};
  grid.QuickSetText(col, row, texts[std::abs(kind) % 3]);
  grid.RedrawCell(col, row);
}

/// Any stored cell, which tears the joined block that it belonged to.
void Overwrite(CGridCtrl& grid, int col, long row, int kind) {
  CGridCell cell;
  if (kind % 2 != 0) cell.SetBackColor(RGB(220, 240, 220));
  if (kind % 3 != 0) cell.SetAlignment(static_cast<short>(kind % 3));
  if (kind % 5 == 0) cell.SetBorder(0x422);
  grid.SetCell(col, row, &cell);
  grid.RedrawCell(col, row);
}

void ChangeType(CGridCtrl& grid, int col, long row, int kind) {
  const long extended[] = {0, 2, 4, 8, 0x4000};
  if (kind % 2 == 0) {
    grid.QuickSetCellType(col, row, kind / 2 % 4);
  } else {
    grid.QuickSetCellTypeEx(col, row, extended[(kind + 2) / 2 % 5]);
  }
  grid.RedrawCell(col, row);
}

void Switch(CGridCtrl& grid, int option, int mode) {
  int (CGridCtrl::*const options[])(int) = {&CGridCtrl::EnableJoins, &CGridCtrl::EnableCellOverLap,
                                            &CGridCtrl::EnableExcelBorders, &CGridCtrl::SetCurrentCellMode};
  (grid.*options[option % 4])(mode);
  grid.RedrawAll();
}

const GridOperation kWindowOperations[] = {
    {"Key",
     [](CGridCtrl& g, const GridStep& s) { Press(g, VK_PRIOR + (s.a + 2) % 8, s.b % 3 == 0, s.c % 4 == 0); }},
    {"Drag", DragMouse},
    {"Wheel", [](CGridCtrl& g, const GridStep& s) { g.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, s.a * 40)); }},
    {"Select", [](CGridCtrl& g, const GridStep& s) { g.SelectRange(s.a, s.b, s.a + s.c, s.b + s.c); }},
    {"Toggle",
     [](CGridCtrl& g, const GridStep& s) {
       g.GetMultiSelect()->ToggleCell(s.a, s.b);
       g.Moved();
     }},
    {"Mode", [](CGridCtrl& g, const GridStep& s) { g.SetMultiSelectMode(s.a & 3); }},
    {"Buffer", [](CGridCtrl& g, const GridStep& s) { g.SetDoubleBufferMode(s.a & 1); }},
    {"Move",
     [](CGridCtrl& g, const GridStep& s) {
       g.MoveWindow(CRect(CPoint(std::abs(s.a % 4), std::abs(s.b % 4)), CSize(500, 300)));
     }},
    {"Focus", [](CGridCtrl& g, const GridStep& s) { (s.a % 2 != 0 ? &g : g.GetParent())->SetFocus(); }},
    {"Text", [](CGridCtrl& g, const GridStep& s) { Rewrite(g, s.a, s.b, s.c); }},
    {"TextInView", [](CGridCtrl& g, const GridStep& s) { Rewrite(g, s.a, g.GetTopRow() + s.b, s.c); }},
    {"Heading", [](CGridCtrl& g, const GridStep& s) { Rewrite(g, s.a % 2 - 1, s.b % 2 - 1, s.c); }},
    {"Overwrite", [](CGridCtrl& g, const GridStep& s) { Overwrite(g, s.a, s.b, s.c + 2); }},
    {"Delete",
     [](CGridCtrl& g, const GridStep& s) {
       g.DeleteCell(s.a, s.b);
       g.RedrawCell(s.a, s.b);
     }},
    {"Type", [](CGridCtrl& g, const GridStep& s) { ChangeType(g, s.a, s.b, s.c + 2); }},
    {"Switch", [](CGridCtrl& g, const GridStep& s) { Switch(g, s.a + 2, s.b & 3); }},
    {"HeadingLines",
     [](CGridCtrl& g, const GridStep& s) {
       g.SetTH_NumberRows(s.a % 3);
       g.SetSH_NumberCols(s.b % 3);
     }},
    {"Highlight",
     [](CGridCtrl& g, const GridStep& s) {
       g.SetHighlightRow(s.a & 1, s.b & 1);
       g.RedrawAll();
     }},
};

const GridOperation& OperationAt(int number) {
  const int first = static_cast<int>(std::size(kGridOperations));
  return number < first ? kGridOperations[number] : kWindowOperations[number - first];
}

std::string PictureFaultAfter(const std::vector<GridStep>& steps) {
  HandledGrid handled;
  for (const GridStep& step : steps) {
    const GridOperation& operation = OperationAt(step.operation);
    operation.run(handled.grid, step);
    if (operation.redraws == Redraws::nothing) handled.grid.RedrawAll();
    if (std::string fault = handled.Difference(); !fault.empty()) return fault;
  }
  return {};
}

TEST(GridPicture, AnyRowOfOperationsLeavesThePictureOfPaintingAnew) {
  for (unsigned seed = 0; seed < 12; ++seed) {
    const std::vector<GridStep> steps =
        RandomSteps(seed, std::size(kGridOperations) + std::size(kWindowOperations), 40);
    ASSERT_EQ(PictureFaultAfter(steps), "")
        << "seed " << seed << ": "
        << ExplainSteps(steps, PictureFaultAfter, [](int i) { return OperationAt(i).name; });
  }
  EXPECT_THAT(TakeLog(), testing::Each(testing::HasSubstr(L"grabbing the mouse")));
}

TEST(GridPicture, WhatCrossesTheEdgeOfTheLockedCellsIsDrawnAnewWhenTheyScroll) {
  using Call = std::function<void(CGridCtrl & g)>;
  const auto lock = [](int cols, int rows) -> Call {
    return [=](CGridCtrl& g) {
      g.LockColumns(cols);
      g.LockRows(rows);
    };
  };
  const auto view = [](int left, long top) -> Call {
    return [=](CGridCtrl& g) {
      g.SetLeftCol(left);
      g.SetTopRow(top);
    };
  };
  const struct {
    const char* name;
    std::vector<Call> calls;
  } rows[] = {
      {"a block and a text that leave the locked columns", {lock(3, 0), view(4, 0), view(3, 0), view(5, 7)}},
      {"a block cut off at the locked columns",
       {lock(2, 0), [](CGridCtrl& g) { g.RedrawCell(1, 3); }, view(5, 0),
        [](CGridCtrl& g) { g.GotoRow(4); }}},
      {"a text that comes back out of view",
       {view(3, 0), [](CGridCtrl& g) { Rewrite(g, 2, 3, 0); }, [](CGridCtrl& g) { Rewrite(g, 2, 3, 2); }}},
      {"a block that leaves the locked rows", {lock(0, 5), view(0, 8), view(2, 8), view(0, 5)}},
      {"the separators beside and below a block", {lock(4, 7), [](CGridCtrl& g) { g.RedrawCell(1, 4); }}},
      {"a frame around a block below the locked rows",
       {lock(0, 3),
        [](CGridCtrl& g) {
          g.SetHighlightRow(0);
          g.GotoCell(5, 8);
          g.JoinCells(5, 6, 6, 9);
        },
        view(0, 7), [](CGridCtrl& g) { g.RedrawCell(6, 9); }, view(0, 8)}},
      {"locked cells above a block", {lock(0, 3), view(0, 5), [](CGridCtrl& g) { g.RedrawRow(2); }}},
      {"a block whose first cell is out of view",
       {view(2, 6),
        [](CGridCtrl& g) {
          g.QuickSetBackColor(1, 4, RGB(1, 200, 3));
          g.RedrawCell(1, 4);
        }}},
      {"a block whose first cell is hidden",
       {[](CGridCtrl& g) { g.SetRowHeight(4, 0); },
        [](CGridCtrl& g) {
          g.QuickSetBackColor(1, 4, RGB(1, 200, 3));
          g.RedrawCell(1, 4);
        }}},
      {"a block torn where it is out of view", {view(2, 5), [](CGridCtrl& g) { Overwrite(g, 1, 4, 0); }}},
      {"a block that begins in a heading",
       {[](CGridCtrl& g) { g.JoinCells(-1, 10, 1, 11); }, [](CGridCtrl& g) { Rewrite(g, -1, 10, 1); },
        [](CGridCtrl& g) { Overwrite(g, 1, 11, 0); }}},
      {"a block that begins in the corner",
       {[](CGridCtrl& g) { g.SetSH_NumberCols(2); }, [](CGridCtrl& g) { g.JoinCells(-2, -1, 1, -1); },
        [](CGridCtrl& g) { Overwrite(g, 1, -1, 0); }}},
      {"a text beside a block with a gap",
       {[](CGridCtrl& g) { Overwrite(g, 3, 5, 0); }, [](CGridCtrl& g) { Rewrite(g, 0, 5, 2); }}},
      {"a torn block",
       {[](CGridCtrl& g) { g.MoveColPosition(2, 5, 1); }, [](CGridCtrl& g) { g.RedrawCell(1, 4); }}},
      {"blocks that overlap",
       {[](CGridCtrl& g) { g.JoinCells(2, 5, 4, 8); }, [](CGridCtrl& g) { g.RedrawCell(1, 4); }}},
      {"a selection that starts again where nothing moves",
       {[](CGridCtrl& g) { g.SelectRange(1, 1, 3, 3); }, [](CGridCtrl& g) { g.GotoRow(0); }}},
  };
  for (const auto& row : rows) {
    HandledGrid handled;
    for (const Call& call : row.calls) {
      call(handled.grid);
      EXPECT_EQ(handled.Difference(), "") << row.name << ", step " << &call - row.calls.data() + 1;
    }
  }
}

TEST_F(GridPictureTest, AHeadingWithoutRoomGathersNothingAndIsWholeOnceItHasRoom) {
  Open();
  CWnd& side = *grid.GetSideHdgWnd();
  const int width = side.GetClientRectangle().Width();
  grid.SetTopRow(3);
  const std::vector<DWORD> shown = ShownDots(side);
  grid.SetSH_Width(0);
  grid.AdjustComponentSizes();
  for (const long top : {0, 2, 1, 3}) {
    grid.SetTopRow(top);
    EXPECT_TRUE(dynamic_cast<CGridHeading&>(side).GetDrawHints().GetRanges().empty());
  }
  grid.SetSH_Width(width);
  grid.AdjustComponentSizes();
  CWinApp::PumpPending();
  EXPECT_TRUE(ShownDots(side) == shown);
}

TEST_F(GridPictureTest, ACheckBoxTogglesWithAClickInItsBox) {
  Open();
  CWnd& body = *grid.GetGridWnd();
  const CPoint box = Cell(0, 7).TopLeft() + CSize(6, 8);
  double state = 0;
  Click(WM_LBUTTONDOWN, box);
  grid.QuickGetNumber(0, 7, &state);
  EXPECT_EQ(state, 0);
  Click(WM_LBUTTONDBLCLK, box);
  grid.QuickGetNumber(0, 7, &state);
  EXPECT_EQ(state, 1);
  Click(WM_LBUTTONDOWN, box + CSize(34, 0));
  body.SendMessage(WM_CHAR, ' ', 0);
  grid.QuickGetNumber(0, 7, &state);
  EXPECT_EQ(state, 0) << "the label is no box; the space character toggles";
}

TEST_F(GridPictureTest, TheCurrentCellOfAHighlightedRowIsPaintedAloneUnderTheRowsFrame) {
  Open();
  CWnd& body = *grid.GetGridWnd();
  body.SetFocus();
  grid.GotoCell(3, 9);
  CWinApp::PumpPending();
  const std::vector<DWORD> framed = Dots();
  const auto paintCell = [&](bool withFrame) {
    if (!withFrame) grid.TempDisableFocusRect();
    const CRect cell = Cell(3, 9);
    body.InvalidateRect(&cell, FALSE);
    body.UpdateWindow();
    return Dots();
  };
  grid.QuickSetText(5, 9, L"not yet");
  EXPECT_EQ(paintCell(true) == framed, true) << "neither the neighbours nor the frame change";
  grid.QuickSetText(5, 9, L"");
  grid.QuickSetText(3, 9, L"changed");
  EXPECT_EQ(paintCell(true) == framed, false);
  EXPECT_EQ(DifferenceToFresh(), "");
  const std::vector<DWORD> changed = Dots();
  const std::vector<DWORD> bare = paintCell(false);
  grid.TempDisableFocusRect();
  body.RedrawWindow();
  EXPECT_EQ(Dots() == bare, true) << "the whole frame had gone";
  CBitmap picture;
  const CClientDC like(&grid);
  ASSERT_TRUE(picture.CreateCompatibleBitmap(&like, 700, 420));
  CMemoryDC paper(&like, &picture);
  grid.PrintTo(&paper);  // has a frame of its own
  EXPECT_EQ(paintCell(true) == changed, true) << "the whole frame comes back";
}

}  // namespace
}  // namespace coregui::test
