#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "grid/celltypes/CGridCellType.h"
#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridDrawHint.h"
#include "grid/control/CGridInfo.h"
#include "platform/CDC.h"
#include "platform/CWinApp.h"

namespace coregui::test {
namespace {

using testing::ElementsAre;

constexpr const wchar_t* kLong = L"A text over two neighbours";

/// A type of the application's that draws like the normal one and writes the columns down.
class WatchedType : public CGridCellType {
 public:
  void OnDraw(CDC* dc, RECT* rect, int col, long row, CGridCell* cell, int selected, int current) override {
    drawn.push_back(col);
    CGridCellType::OnDraw(dc, rect, col, row, cell, selected, current);
  }
  int GetCellOverlapInfo(CDC* dc, int col, long row, int* startCol, CGridCell* startCell) override {
    const int offset = CGridCellType::GetCellOverlapInfo(dc, col, row, startCol, startCell);
    if (col >= 0 && row >= 0) spills[{col, row}] = offset;
    return offset;
  }
  std::vector<int> drawn;
  std::map<std::pair<int, long>, int> spills;  ///< what each cell was told last
};

/// Eight columns of 60 pixels in a window.
struct CellOverlapTest : testing::Test {
  WatchedType watched;  // outlives the grid
  CWnd frame;
  CGridCtrl grid;
  int watchedId = 0;

  CellOverlapTest() {
    watchedId = grid.AddCellType(&watched);
    grid.SetDefColWidth(60);
    grid.SetNumberCols(8);
    grid.SetNumberRows(5);
    grid.SetHighlightRow(0);
    frame.Create(L"", L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 700, 200), nullptr, 0);
    grid.CreateGrid(WS_CHILD | WS_VISIBLE, CRect(0, 0, 700, 200), &frame, 1);
    grid.GotoCell(7, 4);
    CWinApp::PumpPending();
  }
  ~CellOverlapTest() override { frame.DestroyWindow(); }

  /// The columns that drawing a cell of row 0 hints, as text.
  std::string HintedBy(int col) {
    CGridDrawHint& hints = *grid.GetDrawHints();
    hints.ClearHints();
    CRecordingDC dc;
    CGridCell cell;
    grid.GetCellIndirect(col, 0, &cell);
    CRect rect;
    grid.GetCellRect(col, 0, &rect);
    grid.GetCellType(col, 0)->OnDraw(&dc, &rect, col, 0, &cell, 0, 0);
    std::string hinted;
    for (int i = 0; i < 8; ++i) hinted += hints.IsInvalid(i, 0) != 0 ? std::to_string(i) : "";
    hints.ClearHints();
    return hinted;
  }
  /// The offset of the text that spills into a cell.
  int SpillInto(int col, long row = 0) {
    CClientDC screen(&grid);
    int start = 0;
    CGridCell from;
    return grid.GetCellType(0)->GetCellOverlapInfo(&screen, col, row, &start, &from);
  }
};

TEST_F(CellOverlapTest, OnlyATextAndAnEmptyCellThatShowsOneHintTheirNeighbour) {
  grid.QuickSetText(0, 0, kLong);
  grid.QuickSetText(5, 0, L"b");
  grid.QuickSetText(6, 0, L"c");
  EXPECT_EQ(HintedBy(0), "1");
  EXPECT_EQ(HintedBy(1), "2") << "shows the text";
  EXPECT_EQ(HintedBy(4), "") << "shows nothing";
  EXPECT_EQ(HintedBy(5), "6") << "whatever the neighbour holds";
  EXPECT_EQ(HintedBy(7), "") << "the last column has none";
  grid.SetColWidth(1, 0);
  EXPECT_THAT(HintedBy(0), testing::AnyOf("2", "12")) << "the next one in view";
}

TEST_F(CellOverlapTest, ATextPassesOverCellsThatCanShowItOnly) {
  grid.QuickSetText(0, 0, kLong);
  EXPECT_EQ(SpillInto(1), -60);
  EXPECT_EQ(SpillInto(2), -120);
  EXPECT_EQ(SpillInto(4), 0) << "it is not as long as that";
  grid.QuickSetBorder(0, 0, 0x100);
  EXPECT_EQ(SpillInto(2), -117) << "it begins behind its cell's border";
  grid.QuickSetAlignment(1, 0, 2);
  EXPECT_EQ(SpillInto(2), 0) << "a right-aligned cell between would leave a hole in it";
  grid.QuickSetAlignment(1, 0, 1);
  EXPECT_EQ(SpillInto(2), -117);
  grid.QuickSetText(1, 0, L"b");
  EXPECT_EQ(SpillInto(2), 0);
}

TEST_F(CellOverlapTest, APassFindsWhatEachCellWouldFindAlone) {
  std::mt19937 random(5);
  const auto any = [&random](auto... choices) {
    return std::array{choices...}[random() % sizeof...(choices)];
  };
  grid.LockColumns(1);
  std::size_t asked = 0;
  std::size_t reached = 0;
  for (int step = 0; step < 60; ++step) {
    for (int col = 0; col < 8; ++col) {
      grid.SetColWidth(col, any(60, 60, 25, 3, 0));
      for (long row = 0; row < 5; ++row) {
        grid.QuickSetCellType(col, row, any(watchedId, watchedId, watchedId, watchedId, 2));
        grid.QuickSetText(col, row, any(L"", L"", L"", L"a", kLong));
        grid.QuickSetAlignment(col, row, static_cast<short>(any(1, 1, 1, 1, 2)));
        grid.QuickSetBorder(col, row, static_cast<short>(any(0, 0, 0x100)));
      }
    }
    grid.SetLeftCol(any(1, 1, 2, 4));
    CWinApp::PumpPending();
    watched.spills.clear();
    grid.GetGridWnd()->RedrawWindow();
    for (const auto& [cell, offset] : std::map(watched.spills)) {
      EXPECT_EQ(offset, SpillInto(cell.first, cell.second))
          << step << ": " << cell.first << ',' << cell.second;
      ++asked;
      reached += offset != 0 ? 1 : 0;
    }
  }
  EXPECT_GT(reached, 50U);
  EXPECT_GT(asked - reached, 50U);
}

TEST_F(CellOverlapTest, AHintGoesOnThroughTextsToTheNextType) {
  grid.QuickSetCellType(4, 0, watchedId);
  grid.QuickSetCellType(6, 0, watchedId);
  for (int col = 0; col < 7; ++col) grid.QuickSetText(col, 0, L"a");
  grid.QuickSetText(5, 0, L"");
  grid.RedrawAll();
  CWinApp::PumpPending();
  watched.drawn.clear();
  grid.RedrawCell(1, 0);
  EXPECT_THAT(watched.drawn, ElementsAre(4)) << "an empty cell ends it";
}

TEST_F(CellOverlapTest, ATextThatCameUnseenCoversTheSpillWithItsNeighbour) {
  grid.QuickSetText(0, 0, kLong);
  grid.RedrawAll();
  CWinApp::PumpPending();
  EXPECT_TRUE(grid.GetDrawHints()->IsDrawnAsOne({1, 0, 1, 0}));
  grid.QuickSetText(1, 0, L"b");
  grid.RedrawCell(0, 0);
  EXPECT_FALSE(grid.GetDrawHints()->IsDrawnAsOne({1, 0, 2, 0})) << "what lay behind it is gone too";
}

}  // namespace
}  // namespace coregui::test
