#include <gtest/gtest.h>

#include "grid/control/TabText.h"
#include "grid/data/CGridCell.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::LoggingGrid;

TEST(TabText, CutsAtTabsAndLineEnds) {
  struct Row {
    const char* name;
    const wchar_t* text;
    const char* fields;
  };
  for (const Row& r :
       {Row{"nothing", L"", ""}, Row{"one field", L"a", "0,0=a "},
        Row{"empty field", L"a\t\tb", "0,0=a 1,0= 2,0=b "},
        Row{"CR LF is one line end", L"a\r\nb\r\n", "0,0=a 0,1=b "},
        Row{"LF CR is two", L"a\n\rb", "0,0=a 0,1= 0,2=b "}, Row{"CR alone", L"a\rb", "0,0=a 0,1=b "},
        Row{"separator at the start", L"\tb\n\nc", "0,0= 1,0=b 0,1= 0,2=c "},
        Row{"separator at the end", L"a\t", "0,0=a "}}) {
    std::string fields;
    coregui::SplitTabText(r.text, [&](int col, long row, const CString& field) {
      fields += std::to_string(col) + "," + std::to_string(row) + "=" + field.ToUtf8() + " ";
    });
    EXPECT_EQ(fields, r.fields) << r.name;
  }
}

TEST(CGridClipboard, CopiesTabsBetweenCellsAndLineFeedsBetweenRows) {
  LoggingGrid grid(4, 4, 300, 100);
  grid.Fill();
  grid.SetMultiSelectMode(1);
  grid.SelectRange(0, 0, 1, 1);
  CString text;
  EXPECT_EQ(grid.CreateSelectedString(text, 0), 0);
  EXPECT_EQ(text, L"a0\tb0\na1\tb1");
  EXPECT_EQ(grid.CopySelected(), 0);
  grid.ClearSelections();
  grid.GotoCell(2, 2);
  EXPECT_EQ(grid.Paste(), 0);
  EXPECT_EQ(grid.Text(3, 3), "b1") << grid;
}

TEST(CGridClipboard, CuttingLeavesReadOnlyCellsAndHidesColumnDefaultsIsKept) {
  LoggingGrid grid(2, 1, 300, 100);
  grid.Fill();
  CGridCell defaults;
  defaults.SetAlignment(2);
  grid.SetColDefault(0, &defaults);
  grid.QuickSetReadOnly(1, 0, 1);
  grid.SelectRange(0, 0, 1, 0);
  EXPECT_EQ(grid.CutSelected(), 0);
  EXPECT_EQ(grid.Text(0, 0), "");
  EXPECT_EQ(grid.Text(1, 0), "b0");
  CGridCell shown;
  grid.GetCellIndirect(0, 0, &shown);
  EXPECT_EQ(shown.GetAlignment(), 1) << "the cell that cutting wrote has an alignment of its own";
  LoggingGrid empty(0, 0, 300, 100);
  empty.QuickSetText(-1, -1, L"corner");
  CString text = L"old";
  EXPECT_EQ(empty.CreateSelectedString(text, 1), 0);
  EXPECT_EQ(text, L"");
  EXPECT_EQ(empty.Text(-1, -1), "corner") << "without a current cell the headings stay";
}

TEST(CGridClipboard, PastingStaysInsideAndLeavesStoredReadOnlyCells) {
  LoggingGrid grid(3, 3, 300, 100);
  grid.Fill();
  grid.QuickSetReadOnly(1, 1, 1);
  CGridCell defaults;
  defaults.SetReadOnly(1);
  grid.SetColDefault(2, &defaults);
  grid.GotoCell(1, 1);
  grid.log.clear();
  CString text = L"A\tB\tC\r\n\tE\r\nF\r\nG";
  EXPECT_EQ(grid.Paste(text), 0);
  EXPECT_EQ(grid.Text(1, 1), "b1") << "read-only";
  EXPECT_EQ(grid.Text(2, 1), "B") << "the column's default does not protect";
  EXPECT_EQ(grid.Text(1, 2), "") << "an empty field clears";
  EXPECT_EQ(grid.Text(2, 2), "E");
  EXPECT_EQ(grid.GetNumberRows(), 3);
  EXPECT_NE(grid.IsSelected(2, 2), 0) << grid;
  EXPECT_EQ(grid.TakeLog(), "Paste 2 1; Paste 1 2; Paste 2 2; Selection 1 1 1 1 1; Selection 2 1 1 2 1");
}

TEST(CGridSorting, SortsTheDefaultSourceByDataColumns) {
  LoggingGrid grid(2, 3, 300, 100);
  const wchar_t* const words[] = {L"pear", L"apple", L"fig"};
  for (long row = 0; row < 3; ++row) {
    grid.QuickSetText(0, row, words[row]);
    grid.QuickSetNumber(1, row, static_cast<double>(row));
  }
  grid.MoveColPosition(0, 2, 1);
  EXPECT_EQ(grid.SortBy(1, 0), 0);
  EXPECT_EQ(grid.Text(1, 0) + grid.Text(1, 1) + grid.Text(1, 2), "applefigpear") << grid;
  int keys[] = {1};
  EXPECT_EQ(grid.SortBy(keys, 1, 2), 0);
  EXPECT_EQ(keys[0], 0) << "the caller's columns become data columns";
  EXPECT_EQ(grid.Text(1, 0), "pear") << grid;
}

TEST(CGridFinder, AnswersInGridColumns) {
  LoggingGrid grid(3, 3, 300, 100);
  grid.Fill();
  grid.MoveColPosition(0, 3, 1);
  CString text = L"A2";
  int col = 0;
  long row = 0;
  EXPECT_EQ(grid.FindFirst(&text, &col, &row, 2 | 8), 0);
  EXPECT_EQ(col, 2) << grid;
  EXPECT_EQ(row, 2);
  col = 0;
  text = L"nowhere";
  EXPECT_EQ(grid.FindNext(&text, &col, &row, 8), 1);
  EXPECT_EQ(col, 0);
}
