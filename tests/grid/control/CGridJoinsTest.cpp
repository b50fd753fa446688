#include <gtest/gtest.h>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridMem.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::LoggingGrid;

namespace {

struct Block {
  int startCol;
  long startRow;
  int endCol;
  long endRow;
  bool operator==(const Block&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Block& b) {
  return out << b.startCol << "," << b.startRow << " to " << b.endCol << "," << b.endRow;
}

Block BlockOf(CGridCtrl& grid, int col, long row) {
  Block block{col, row, 0, 0};
  grid.GetJoinRange(&block.startCol, &block.startRow, &block.endCol, &block.endRow);
  return block;
}

}  // namespace

TEST(CGridJoins, EveryCellOfABlockKnowsItsStartAndExtent) {
  LoggingGrid grid(6, 6, 300, 60);
  grid.Fill();
  ASSERT_EQ(grid.JoinCells(1, 2, 3, 4), 0);
  for (long row = 2; row <= 4; ++row) {
    for (int col = 1; col <= 3; ++col) {
      EXPECT_EQ(BlockOf(grid, col, row), (Block{1, 2, 3, 4})) << grid;
    }
  }
  EXPECT_EQ(BlockOf(grid, 4, 4), (Block{4, 4, 4, 4}));
  CGridCell start;
  grid.GetCell(1, 2, &start);
  int origin = 0;
  int across = 0;
  long down = 0;
  start.GetJoinInfo(&origin, &across, &down);
  EXPECT_EQ(origin, 1);
  EXPECT_EQ(across, 2);
  EXPECT_EQ(down, 2);
  EXPECT_EQ(grid.Text(1, 2), "b2") << "joining keeps what the cells hold";
}

TEST(CGridJoins, RefusesBlocksThatReachOutOrAreTurnedRound) {
  LoggingGrid grid(4, 4, 300, 60);
  EXPECT_EQ(grid.JoinCells(2, 0, 1, 0), 1);
  EXPECT_EQ(grid.JoinCells(0, 2, 0, 1), 1);
  EXPECT_EQ(grid.JoinCells(0, 0, 4, 0), 1);
  EXPECT_EQ(grid.JoinCells(0, 0, 0, 4), 1);
  EXPECT_EQ(grid.JoinCells(-2, 0, 0, 0), 1);
  EXPECT_EQ(grid.JoinCells(0, -2, 0, 0), 1);
  EXPECT_EQ(grid.JoinCells(0, -1, 3, -1), 0) << "heading cells join like others";
  EXPECT_EQ(BlockOf(grid, 2, -1), (Block{0, -1, 3, -1}));
}

TEST(CGridJoins, UnjoiningLeavesNoTraceWhereNothingWasStored) {
  LoggingGrid grid(4, 4, 300, 60);
  grid.QuickSetText(1, 1, L"kept");
  grid.JoinCells(0, 0, 1, 1);
  EXPECT_EQ(grid.UnJoinCells(1, 1, 2, 2), 0);
  EXPECT_EQ(BlockOf(grid, 0, 0), (Block{0, 0, 0, 0}));
  EXPECT_EQ(grid.Text(1, 1), "kept");
  CGridCell cell;
  EXPECT_EQ(grid.GetCell(0, 0, &cell), 1);
  EXPECT_EQ(grid.UnJoinCells(1, 1, 2, 2), 1);
}

TEST(CGridJoins, UnjoiningFindsEveryBlockInTheHeadingsInAnySourceAndFarDown) {
  constexpr long kRows = 5000;
  LoggingGrid grid(4, kRows, 300, 60);
  CGridMem other;
  grid.SetColDataSource(3, grid.AddDataSource(&other));
  grid.MoveColPosition(0, 2, 0);
  const Block blocks[] = {{-1, -1, 0, -1}, {-1, 3, -1, 200}, {0, 0, 1, 0},          {2, 1, 2, 64},
                          {2, 65, 3, 66},  {3, 90, 3, 95},   {0, 130, 1, kRows - 1}};
  for (long row = 60; row < 70; ++row) grid.QuickSetText(2, row, L"kept");
  for (const Block& b : blocks) ASSERT_EQ(grid.JoinCells(b.startCol, b.startRow, b.endCol, b.endRow), 0) << b;
  EXPECT_EQ(grid.UnJoinCells(0, 1, 1, 129), 1) << "between the blocks";
  EXPECT_EQ(grid.UnJoinCells(1, 70, 1, 130), 0);
  EXPECT_EQ(grid.UnJoinCells(2, 64, 2, 64), 0);
  EXPECT_EQ(BlockOf(grid, 2, 1), (Block{2, 1, 2, 1}));
  EXPECT_EQ(BlockOf(grid, 3, 66), blocks[4]) << "the next one stays";
  grid.EnableJoins(0);
  EXPECT_EQ(grid.UnJoinCells(-1, -1, 3, kRows - 1), 0);
  grid.EnableJoins(1);
  for (const Block& b : blocks) {
    EXPECT_EQ(BlockOf(grid, b.startCol, b.startRow), (Block{b.startCol, b.startRow, b.startCol, b.startRow}));
  }
  EXPECT_EQ(grid.Text(2, 65), "kept");
}

TEST(CGridJoins, ATornBlockCountsAsNotJoined) {
  LoggingGrid grid(4, 6, 300, 60);
  grid.Fill();
  grid.JoinCells(1, 1, 2, 3);
  grid.DeleteRow(1);
  EXPECT_EQ(BlockOf(grid, 1, 1), (Block{1, 1, 1, 1})) << "its first cell is gone: " << grid;
  EXPECT_EQ(BlockOf(grid, 2, 2), (Block{2, 2, 2, 2}));
  grid.JoinCells(0, 0, 1, 1);
  grid.JoinCells(1, 1, 2, 2);
  EXPECT_EQ(BlockOf(grid, 1, 1), (Block{1, 1, 2, 2})) << "the later block took the cell over";
  CGridCell cell;
  grid.GetCell(0, 0, &cell);
  EXPECT_EQ(cell.IsPropertySet(CELLPROP_JOIN), 0) << "nothing is left of the block before";
  grid.SetNumberRows(2);
  EXPECT_EQ(BlockOf(grid, 1, 1), (Block{1, 1, 1, 1})) << "the block reaches out of the sheet now";
}

TEST(CGridJoins, OneCellThatGoesTearsABlock) {
  const struct {
    Block block;
    int col;
    long row;
    Block left;                                     ///< what the cell 1,2 belongs to then
  } rows[] = {{{1, 1, 3, 3}, 2, 1, {1, 2, 1, 2}},   // of the first row
              {{1, 1, 3, 3}, 3, 3, {1, 2, 1, 2}},   // the last one
              {{0, -1, 1, 3}, 0, 0, {1, 2, 1, 2}},  // the first one in the body of a block from a heading
              {{1, 1, 3, 3}, 0, 0, {1, 1, 3, 3}}};  // another one
  for (const auto& [block, col, row, left] : rows) {
    LoggingGrid grid(4, 6, 300, 60);
    grid.JoinCells(block.startCol, block.startRow, block.endCol, block.endRow);
    grid.DeleteCell(col, row);
    EXPECT_EQ(BlockOf(grid, 1, 2), left) << col << "," << row;
    EXPECT_EQ(grid.UnJoinCells(1, 2, 1, 2), 0) << "what is left can be cleared";
  }
}

/// The upper heading, as "Levels:BCD" where one stands over the columns B to D, "_:A" where there is none,
/// and "E:E'" where one reaches down to the grid.
std::string HeadingOf(CGridCtrl& grid) {
  std::string all;
  for (int col = 0; col < grid.GetNumberCols(); ++col) {
    const Block block = BlockOf(grid, col, -2);
    CString text;
    grid.QuickGetText(block.startCol, -2, &text);
    if (col == block.startCol) all += all.empty() ? "" : " ";
    if (col == block.startCol) all += text.IsEmpty() ? "_" : text.ToUtf8();
    grid.QuickGetText(col, -1, &text);
    all += (col == block.startCol ? ":" : "") + text.ToUtf8();
    if (block.endRow > -2) all += "'";
  }
  return all;
}

TEST(CGridJoins, AGroupsHeadingFollowsItsColumns) {
  struct Row {
    const char* what;
    int from;
    int to;
    const char* heading;
    int backFrom;
    int backTo;
    const char* back;
  };
  // A is free, B, C and D are the levels, E has a heading of both rows, F and G are the areas.
  const char* const whole = "_:A Levels:BCD E:E' Areas:FG";
  const Row rows[] = {
      {"the first to the end of the group", 1, 3, "_:A Levels:CDB E:E' Areas:FG", 3, 1, whole},
      {"the last to its front", 3, 1, "_:A Levels:DBC E:E' Areas:FG", 1, 3, whole},
      {"out to the left", 2, 0, "_:C _:A Levels:BD E:E' Areas:FG", 0, 2, whole},
      {"the first out to the right", 1, 4, "_:A Levels:CD E:E' _:B Areas:FG", 4, 2,
       "_:A Levels:CBD E:E' Areas:FG"},
      {"one of two", 6, 4, "_:A Levels:BCD _:G E:E' Areas:F", 4, 6, "_:A Levels:BCD E:E' Areas:F _:G"},
      {"from group to group", 5, 2, "_:A Levels:BFCD E:E' Areas:G", 2, 6, "_:A Levels:BCD E:E' Areas:G _:F"},
      {"a free one into a group, whose edges are its own", 0, 2, "Levels:BCAD E:E' Areas:FG", 2, 0,
       "Levels:ABCD E:E' Areas:FG"},
      {"beside a group", 0, 3, "Levels:BCD _:A E:E' Areas:FG", 3, 0, whole},
      {"one with a heading of its own into a group", 4, 2, "_:A Levels:B E:E' _:C _:D Areas:FG", 2, 4, whole},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    LoggingGrid grid(7, 4, 700, 100);
    grid.SetTH_NumberRows(2);
    for (int col = 0; col < 7; ++col) {
      grid.QuickSetText(col, -1, CString(std::wstring(1, static_cast<wchar_t>(L'A' + col)).c_str()));
    }
    grid.QuickSetText(1, -2, L"Levels");
    grid.QuickSetText(5, -2, L"Areas");
    grid.QuickSetText(4, -2, L"E");
    grid.JoinCells(1, -2, 3, -2);
    grid.JoinCells(4, -2, 4, -1);
    grid.JoinCells(5, -2, 6, -2);
    EXPECT_EQ(HeadingOf(grid), whole);
    EXPECT_EQ(grid.MoveColPosition(row.from, row.to, row.to > row.from ? 0 : 1), 0);
    EXPECT_EQ(HeadingOf(grid), row.heading);
    EXPECT_EQ(grid.MoveColPosition(row.backFrom, row.backTo, row.backTo > row.backFrom ? 0 : 1), 0);
    EXPECT_EQ(HeadingOf(grid), row.back);
  }
}

TEST(CGridJoins, SwitchedOffTheyAreNotSeen) {
  LoggingGrid grid(4, 4, 300, 60);
  grid.JoinCells(0, 0, 1, 1);
  grid.EnableJoins(0);
  EXPECT_EQ(BlockOf(grid, 1, 1), (Block{1, 1, 1, 1}));
  grid.EnableJoins(5);
  EXPECT_EQ(BlockOf(grid, 1, 1), (Block{0, 0, 1, 1}));
}
