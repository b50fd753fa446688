// The grid in a real window, from its pixels. With COREGUI_PICTURES set to a folder the pictures are written
// there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "grid/celltypes/CGridCheckBoxType.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "platform/CBitmap.h"
#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/System.h"
#include "tests/support/LogWatch.h"

namespace coregui::test {
namespace {

constexpr CRect kWindow(0, 0, 700, 420);

/// One cell of every look, under headings.
class ShowcaseGrid : public CGridCtrl {
 public:
  void OnSheetSetup(int) override {
    SetNumberCols(8);
    SetNumberRows(40);
    for (int col = 0; col < 8; ++col) QuickSetText(col, -1, CString::Formatted(L"Heading %d", col + 1));
    for (long row = 0; row < 40; ++row) QuickSetText(-1, row, CString::Formatted(L"%ld", row + 1));
    Alignments();
    Styles();
    Types();
    QuickSetText(2, 3, L"A long text that spills over its empty neighbours");
    for (int col = 0; col < 8; ++col) QuickSetText(col, 10, L"row ten");
  }

 private:
  void Alignments() {
    const short alignments[] = {1 | 8, 4 | 8, 2 | 8, 1 | 0x20, 4 | 0x20, 2 | 0x20, 1 | 0x10, 2 | 0x10};
    for (int col = 0; col < 8; ++col) {
      QuickSetText(col, 0, L"12.50");
      QuickSetAlignment(col, 0, alignments[col]);
    }
    SetRowHeight(0, 32);
  }
  void Styles() {
    const short borders[] = {0x1, 0xF, 0xF0, 0xF00, 0x1000, 0x2000, 0x48, 0x402};
    for (int col = 0; col < 8; ++col) {
      QuickSetText(col, 1, L"border");
      QuickSetBorder(col, 1, borders[col]);
      QuickSetBorderColor(col, 1, &m_pen);
    }
    SetRowHeight(2, 52);
    const short wrapped[] = {1, 4 | 0x20, 2 | 0x10};
    for (int col = 0; col < 3; ++col) {
      QuickSetText(col, 2, L"several words that wrap");
      QuickSetCellTypeEx(col, 2, 2);
      QuickSetAlignment(col, 2, wrapped[col]);
    }
    QuickSetText(3, 2, L"too long for its cell by far");
    QuickSetCellTypeEx(3, 2, 4);
    QuickSetText(4, 2, L"text");
    QuickSetLabelText(4, 2, L"label");
    QuickSetCellTypeEx(4, 2, 8);
    m_picture.CreateFromPixels(2, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFF00});
    std::vector<DWORD> dots;
    for (int i = 0; i < 16 * 16; ++i) dots.push_back(i / 16 < 8 ? 0xFFCC4422U : 0xFF2244CCU);
    m_picture.CreateFromPixels(16, 16, dots);
    QuickSetText(5, 2, L"bitmap");
    QuickSetBitmap(5, 2, &m_picture);
    QuickSetText(6, 2, L"greyed");
    QuickSetCellTypeEx(6, 2, 0x4000);
    QuickSetText(7, 2, L"coloured");
    QuickSetBackColor(7, 2, RGB(255, 240, 180));
    QuickSetTextColor(7, 2, RGB(160, 0, 60));
    JoinCells(1, 4, 3, 6);
    QuickSetText(1, 4, L"joined block");
    QuickSetAlignment(1, 4, 36);
    QuickSetBackColor(1, 4, RGB(220, 240, 220));
  }
  void Types() {
    const long styles[] = {0, 0x100, 0x200, 0x400, 0x1000, 0x2000, 0x4000, 0x804};
    for (int col = 0; col < 8; ++col) {
      QuickSetCellType(col, 7, 2);
      QuickSetCellTypeEx(col, 7, styles[col]);
      QuickSetNumber(col, 7, styles[col] == 0x2000 ? 2 : 1);
      QuickSetLabelText(col, 7, L"check");
      QuickSetCellType(col, 8, col < 4 ? 1 : 3);
      QuickSetText(col, 8, col < 4 ? L"choice" : L"");
      if (col >= 4) QuickSetCellTypeEx(col, 8, 16L << (col - 4));
    }
  }

  CPen m_pen{PS_SOLID, 1, RGB(200, 30, 30)};
  CBitmap m_picture;
};

struct GridPictureTest : testing::Test {
  CWnd frame;
  ShowcaseGrid grid;

  void Open() {
    ASSERT_TRUE(frame.CreateEx(0, L"Frame", L"Grid", WS_OVERLAPPEDWINDOW | WS_VISIBLE, kWindow, nullptr, 0));
    ASSERT_TRUE(grid.CreateGrid(WS_CHILD | WS_VISIBLE, frame.GetClientRectangle(), &frame, 1));
    CWinApp::PumpPending();
  }
  ~GridPictureTest() override {
    frame.DestroyWindow();
    SetDarkTheme(false);
  }
  void Save(const char* name) {
    const char* const folder = std::getenv("COREGUI_PICTURES");
    if (folder == nullptr) return;
    CWinApp::PumpPending();
    CBitmap picture;
    const CClientDC like(&grid);
    const CRect area = grid.GetClientRectangle();
    ASSERT_TRUE(picture.CreateCompatibleBitmap(&like, area.Width(), area.Height()));
    CMemoryDC dc(&like, &picture);
    grid.PrintTo(&dc);
    ASSERT_TRUE(picture.SaveFile(CString::FromUtf8(std::string(folder) + "/" + name + ".png")));
  }
  /// Sends mouse messages to the body; the headless display cannot confine the pointer and says so.
  void Click(UINT down, CPoint point) {
    CWnd& body = *grid.GetGridWnd();
    body.SendMessage(down, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    body.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_THAT(TakeLog(), testing::Each(testing::HasSubstr(L"grabbing the mouse")));
  }
  COLORREF BodyPixel(int x, int y) {
    CClientDC dc(grid.GetGridWnd());
    return dc.GetPixel(x, y);
  }
  CRect Cell(int col, long row) {
    CRect rect;
    grid.GetCellRect(col, row, &rect);
    return rect;
  }
  /// The body's pixels as they are now.
  std::vector<COLORREF> Pixels() {
    CClientDC dc(grid.GetGridWnd());
    const CRect area = grid.GetGridWnd()->GetClientRectangle();
    std::vector<COLORREF> pixels;
    for (int y = 0; y < area.Height(); y += 3) {
      for (int x = 0; x < area.Width(); ++x) pixels.push_back(dc.GetPixel(x, y));
    }
    return pixels;
  }
  /// What the body looks like when everything is painted anew.
  std::vector<COLORREF> FreshPixels() {
    grid.GetGridWnd()->RedrawWindow();
    return Pixels();
  }
};

TEST_F(GridPictureTest, ShowsEveryLook) {
  Open();
  grid.GetGridWnd()->SetFocus();
  grid.GotoCell(0, 9);
  Save("light");
  grid.SetCurrentCellMode(3);
  grid.GotoCell(0, 10);
  grid.SetMultiSelectMode(1);
  grid.SelectRange(4, 4, 6, 6);
  CWinApp::PumpPending();
  Save("selected");
  EXPECT_EQ(BodyPixel(Cell(7, 2).left + 1, Cell(7, 2).top + 1), RGB(255, 240, 180));
  EXPECT_EQ(BodyPixel(Cell(5, 5).left + 1, Cell(5, 5).top + 1), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(GridPictureTest, ASelectionShowsAtOnceAndIsTakenBackAtOnce) {
  Open();
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
  grid.ClearSelections();
  EXPECT_EQ(corner(1, 9), GetSysColor(COLOR_WINDOW));
  EXPECT_EQ(corner(2, 10), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridPictureTest, PrintingTakesNothingFromTheScreen) {
  Open();
  const std::vector<COLORREF> before = Pixels();
  grid.QuickSetBackColor(3, 11, RGB(1, 200, 3));
  grid.GetDrawHints()->AddHint(3, 11);
  CBitmap picture;
  const CClientDC like(&grid);
  ASSERT_TRUE(picture.CreateCompatibleBitmap(&like, 700, 420));
  CMemoryDC paper(&like, &picture);
  grid.PrintTo(&paper);
  const CPoint place = Cell(3, 11).TopLeft() + CSize(2, 2);
  EXPECT_EQ(paper.GetPixel(place.x + grid.GetSH_Width(), place.y + grid.GetTH_Height()), RGB(1, 200, 3));
  EXPECT_EQ(Pixels() == before, true) << "the screen waits";
  CWinApp::PumpPending();
  EXPECT_EQ(BodyPixel(place.x, place.y), RGB(1, 200, 3)) << "and is not forgotten";
}

TEST_F(GridPictureTest, ATextThatGrowsAndVanishesPaintsItsNeighboursAlone) {
  Open();
  grid.SetHighlightRow(0);
  grid.GotoCell(7, 12);
  const auto check = [this](const char* what) {
    const std::vector<COLORREF> changed = Pixels();
    EXPECT_EQ(changed == FreshPixels(), true) << what;
  };
  grid.QuickSetText(2, 9, L"A long text that reaches over its neighbours");
  grid.RedrawCell(2, 9);
  check("grows");
  grid.SetColWidth(3, 0);
  grid.RedrawAll();
  CWinApp::PumpPending();
  grid.QuickSetText(2, 9, L"A text that is shorter");
  grid.RedrawCell(2, 9);
  check("shrinks, beside a hidden column");
  grid.QuickSetText(2, 9, L"");
  grid.RedrawCell(2, 9);
  check("vanishes");
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

TEST_F(GridPictureTest, AnyWayOfScrollingEndsInTheSamePictureAsPaintingAnew) {
  Open();
  grid.GetGridWnd()->SetFocus();
  const auto check = [this](const char* what) {
    CWinApp::PumpPending();
    const std::vector<COLORREF> moved = Pixels();
    EXPECT_EQ(moved == FreshPixels(), true) << what;
  };
  grid.SetTopRow(1);
  check("down by one");
  grid.SetTopRow(6);
  check("down by five, into a joined block");
  grid.SetTopRow(3);
  check("up by three");
  grid.SetTopRow(30);
  check("to the end");
  grid.SetTopRow(0);
  grid.SetLeftCol(1);
  check("right");
  grid.LockColumns(1);
  grid.LockRows(2);
  check("locked");
  grid.SetTopRow(5);
  check("locked, down");
  grid.GotoCell(7, 39);
  check("both ways");
  grid.GotoCell(1, 2);
  check("back");
  Save("locked");
  grid.SetDoubleBufferMode(1);
  grid.SetTopRow(8);
  check("double buffered");
  grid.QuickSetText(3, 9, L"changed");
  grid.RedrawCell(3, 9);
  check("one cell");
}

TEST_F(GridPictureTest, MessagesReachTheRooms) {
  Open();
  CWnd& body = *grid.GetGridWnd();
  Click(WM_LBUTTONDOWN, Cell(3, 9).TopLeft() + CSize(5, 5));
  EXPECT_EQ(grid.GetCurrentCol(), 3);
  EXPECT_EQ(grid.GetCurrentRow(), 9);
  body.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -240), 0);
  EXPECT_EQ(grid.GetTopRow(), 6);
  body.SendMessage(WM_KEYDOWN, VK_DOWN, 0);
  EXPECT_EQ(grid.GetCurrentRow(), 10);
  EXPECT_EQ(body.SendMessage(WM_GETDLGCODE), static_cast<LRESULT>(DLGC_WANTARROWS | DLGC_WANTALLKEYS));
  EXPECT_EQ(body.SendMessage(WM_MOUSEACTIVATE), MA_ACTIVATE);
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

TEST_F(GridPictureTest, PaintsNothingWhilePaintingIsDisabled) {
  Open();
  const std::vector<COLORREF> before = Pixels();
  grid.SetPaintMode(0);
  grid.QuickSetBackColor(3, 9, RGB(1, 200, 3));
  grid.RedrawCell(3, 9);
  grid.GetGridWnd()->Invalidate();
  CWinApp::PumpPending();
  EXPECT_EQ(Pixels() == before, true);
}

}  // namespace
}  // namespace coregui::test
