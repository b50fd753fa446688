#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "platform/CBitmap.h"
#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/System.h"
#include "tests/support/Hand.h"

namespace coregui::test {

inline constexpr CRect kWindow(0, 0, 700, 420);

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
    std::vector<DWORD> dots(256, 0xFFCC4422U);  // 16 × 16, the lower half in another colour
    std::fill(dots.begin() + 128, dots.end(), 0xFF2244CCU);
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

/// The showcase in a window of its own, seen from its pixels. With COREGUI_PICTURES set to a folder the
/// pictures are written there.
struct ShowcaseTest : testing::Test {
  CWnd frame;
  ShowcaseGrid grid;

  void Open() {
    ASSERT_TRUE(frame.CreateEx(0, L"Frame", L"Grid", WS_OVERLAPPEDWINDOW | WS_VISIBLE, kWindow, nullptr, 0));
    ASSERT_TRUE(grid.CreateGrid(WS_CHILD | WS_VISIBLE, frame.GetClientRectangle(), &frame, 1));
    CWinApp::PumpPending();
  }
  ~ShowcaseTest() override { frame.DestroyWindow(); }
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
  COLORREF BodyPixel(int x, int y) {
    CClientDC dc(grid.GetGridWnd());
    return dc.GetPixel(x, y);
  }
  CRect Cell(int col, long row) {
    CRect rect;
    grid.GetCellRect(col, row, &rect);
    return rect;
  }
  /// The dots of the body as they are now.
  std::vector<DWORD> Dots() { return ShownDots(*grid.GetGridWnd()); }
  /// How the body and the headings differ from what they look like when everything is painted anew; empty
  /// when they do not.
  std::string DifferenceToFresh() {
    const std::pair<const char*, CWnd*> windows[] = {{"the body", grid.GetGridWnd()},
                                                     {"the top heading", grid.GetTopHdgWnd()},
                                                     {"the side heading", grid.GetSideHdgWnd()},
                                                     {"the corner", grid.GetCornerWnd()}};
    for (const auto& [name, window] : windows) {
      const std::vector<DWORD> before = ShownDots(*window);
      window->RedrawWindow();
      const std::vector<DWORD> fresh = ShownDots(*window);
      const auto at = std::mismatch(before.begin(), before.end(), fresh.begin(), fresh.end()).first;
      if (at == before.end() && before.size() == fresh.size()) continue;
      const auto place = at - before.begin();
      const CClientDC dc(window);
      const auto width = std::lround(window->GetClientRectangle().Width() * dc.GetScaleFactor());
      return std::string(name) + " differs first at dot " + std::to_string(place % width) + "," +
             std::to_string(place / width);
    }
    return "";
  }
};

}  // namespace coregui::test
