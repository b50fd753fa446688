#include <gtest/gtest.h>

#include <cstring>

#include "grid/data/CGridCell.h"
#include "grid/data/CGridCellFormat.h"
#include "grid/data/CGridMem.h"
#include "platform/System.h"
#include "tests/grid/control/LoggingGrid.h"

using coregui::test::LoggingGrid;

namespace {

constexpr COLORREF red = 0x0000FF;
constexpr COLORREF green = 0x00FF00;
constexpr COLORREF blue = 0xFF0000;

/// Writes what it finds when it is asked, so that the order of the layers shows.
class OrderFormat : public CGridCellFormat {
 public:
  void ApplyDisplayFormat(CGridCell* cell) override {
    cell->AppendText(L">format");
    cell->SetTextColor(blue);
  }
};

class LayeredGrid : public LoggingGrid {
 public:
  LayeredGrid() : LoggingGrid(3, 3, 300, 100) {}
  void OnGetCell(int col, long row, CGridCell* cell) override {
    asked.emplace_back(col, row);
    if (!change) return;
    cell->AppendText(L">notify");
    cell->SetFormatClass(&format);
  }
  void OnSetCell(int col, long row, CGridCell*) override {
    if (intrude && (col != 2 || row != 2)) QuickSetText(2, 2, L"intruder");
  }

  OrderFormat format;
  bool change = false;
  bool intrude = false;
  std::vector<std::pair<int, long>> asked;
};

}  // namespace

TEST(CGridCells, LayersDefaultsStoreNotificationFormatAndStyleInThisOrder) {
  LayeredGrid grid;
  CGridCell defaults;
  defaults.SetPropertyFlags(0);
  defaults.SetTextColor(red);
  defaults.SetBackColor(green);
  grid.SetColDefault(1, &defaults);
  grid.QuickSetText(1, 1, L"stored");

  CGridCell cell;
  grid.GetCellIndirect(1, 1, &cell);
  EXPECT_EQ(cell.GetTextColor(), red) << "the column's colour shows through an unset one";
  EXPECT_EQ(cell.GetBackColor(), green);

  CGridCell style;
  style.SetPropertyFlags(0);
  style.SetTextColor(green);
  grid.change = true;
  grid.QuickSetTextColor(1, 1, red);
  grid.QuickSetCellStyle(1, 1, &style);
  grid.GetCellIndirect(1, 1, &cell);
  EXPECT_EQ(CString(cell.GetText()), L"stored>notify>format");
  EXPECT_EQ(cell.GetTextColor(), green) << "the style wins over the stored colour and the format's";
  EXPECT_EQ(cell.GetBackColor(), green);
}

TEST(CGridCells, BehindTheLastRowOnlyDefaultsAreShown) {
  LayeredGrid grid;
  CGridCell defaults;
  defaults.SetAlignment(2);
  grid.SetColDefault(0, &defaults);
  CGridCell stray;
  stray.SetText(L"one past the end");
  ASSERT_EQ(grid.SetCell(0, 3, &stray), 0);
  ASSERT_EQ(grid.SetCell(3, 0, &stray), 0);
  grid.asked.clear();

  CGridCell cell;
  EXPECT_EQ(grid.GetCellIndirect(0, 3, &cell), 0);
  EXPECT_EQ(cell.GetText(), nullptr);
  EXPECT_EQ(cell.GetAlignment(), 2);
  EXPECT_EQ(grid.GetCellIndirect(3, 3, &cell), 0);
  EXPECT_EQ(cell.GetAlignment(), 36) << "outside the columns the heading default";
  EXPECT_TRUE(grid.asked.empty());
  EXPECT_EQ(grid.GetCellIndirect(3, 0, &cell), 0);
  EXPECT_EQ(CString(cell.GetText()), L"one past the end");
}

TEST(CGridCells, ACellOnePastTheEndIsAcceptedAndReadOnlyAsDisplayed) {
  LayeredGrid grid;
  CGridCell cell;
  cell.SetText(L"x");
  struct Row {
    const char* name;
    int col;
    long row;
    int set;
    int get;
  };
  for (const Row& r : {Row{"inside", 2, 2, 0, 0}, Row{"one column past", 3, 0, 0, 1},
                       Row{"one row past", 0, 3, 0, 0}, Row{"two columns past", 4, 0, 1, 1},
                       Row{"two rows past", 0, 4, 1, 1}, Row{"top heading", 1, -1, 0, 0},
                       Row{"above the top heading", 1, -2, 1, 1}, Row{"side heading", -1, 1, 0, 0},
                       Row{"beside the side heading", -2, 1, 1, 1}, Row{"corner", -1, -1, 0, 0}}) {
    CGridCell read;
    EXPECT_EQ(grid.SetCell(r.col, r.row, &cell), r.set) << r.name;
    EXPECT_EQ(grid.GetCell(r.col, r.row, &read), r.get) << r.name;
  }
  EXPECT_EQ(grid.GetCell(0, 0, nullptr), 1);
}

TEST(CGridCells, QuickOperationsKeepTheOtherPropertiesAndStoreNoDefaults) {
  LayeredGrid grid;
  char data[4] = {1, 2, 3, 4};
  EXPECT_EQ(grid.QuickSetCellExtraMem(0, 0, 4, data), 1) << "extra memory needs a stored cell";
  grid.QuickSetText(0, 0, L"text");
  grid.QuickSetTextColor(0, 0, red);
  grid.QuickSetReadOnly(0, 0, 7);
  CGridCell cell;
  ASSERT_EQ(grid.GetCell(0, 0, &cell), 0);
  EXPECT_EQ(cell.GetPropertyFlags(),
            CELLPROP_TEXT | CELLPROP_DATATYPE | CELLPROP_TEXTCOLOR | CELLPROP_READONLY);
  EXPECT_EQ(cell.GetReadOnly(), 1);
  EXPECT_EQ(grid.QuickSetCellExtraMem(0, 0, 0, data), 1);
  EXPECT_EQ(grid.QuickSetCellExtraMem(0, 0, 4, nullptr), 1);
  EXPECT_EQ(grid.QuickSetCellExtraMem(0, 0, 4, data), 0);
  grid.GetCell(0, 0, &cell);
  ASSERT_EQ(cell.GetExtraMemSize(), 4);
  EXPECT_EQ(std::memcmp(cell.GetExtraMemPtr(), data, 4), 0);
  EXPECT_EQ(CString(cell.GetText()), L"text");
  grid.intrude = true;
  grid.QuickSetText(0, 0, L"outer");
  EXPECT_EQ(grid.Text(0, 0), "outer") << "a quick operation inside a notification does not spoil it";
  EXPECT_EQ(grid.Text(2, 2), "intruder") << grid;
}

TEST(CGridSourceTable, GivesOutTheLowestFreeIndexFrom1To63) {
  LoggingGrid grid(2, 2, 100, 100);
  std::vector<std::unique_ptr<CGridMem>> sources;
  for (int i = 1; i <= 63; ++i) {
    sources.push_back(std::make_unique<CGridMem>());
    ASSERT_EQ(grid.AddDataSource(sources.back().get()), i);
    ASSERT_EQ(sources.back()->GetOwner(), &grid);
  }
  CGridMem more;
  EXPECT_EQ(grid.AddDataSource(&more), -1);
  EXPECT_EQ(grid.AddDataSource(nullptr), -1);
  EXPECT_EQ(grid.RemoveDataSource(5), 0);
  EXPECT_EQ(grid.RemoveDataSource(5), 1);
  EXPECT_EQ(grid.AddDataSource(&more), 5);
}

TEST(CGridSourceTable, TheDefaultSourceTakesEveryColumnBack) {
  LoggingGrid grid(3, 2, 100, 100);
  CGridMem first;
  CGridMem second;
  const int one = grid.AddDataSource(&first);
  const int two = grid.AddDataSource(&second);
  EXPECT_EQ(grid.SetColDataSource(1, two), 0);
  grid.SetColTranslation(1, 7);
  grid.QuickSetText(1, 0, L"routed");
  CGridCell cell;
  EXPECT_EQ(second.GetCell(7, 0, &cell), 0) << "stored in the column's source, at its data column";
  EXPECT_EQ(grid.Text(1, 0), "routed");
  EXPECT_EQ(grid.InsertCol(1), 0);
  grid.QuickSetText(1, 0, L"new");
  EXPECT_EQ(grid.Text(1, 0) + grid.Text(2, 0), "newrouted") << grid;
  EXPECT_EQ(second.GetCell(grid.GetColTranslation(1), 0, &cell), 0)
      << "a new column goes beside its neighbour";

  EXPECT_EQ(grid.SetDefDataSource(9), 1);
  EXPECT_EQ(grid.SetDefDataSource(-1), 1);
  EXPECT_EQ(grid.SetDefDataSource(one), 0);
  EXPECT_EQ(grid.Text(1, 0), "") << grid;
  grid.QuickSetText(-1, 0, L"heading");
  EXPECT_EQ(first.GetCell(-1, 0, &cell), 0) << "heading columns go to the default source untranslated";
  EXPECT_EQ(grid.RemoveDataSource(one), 0);
  EXPECT_EQ(grid.GetDefDataSource(), 0);
  EXPECT_EQ(grid.Text(-1, 0), "") << "the sheet's own memory again";
  EXPECT_EQ(grid.SetDefDataSource(0), 0);
  EXPECT_EQ(grid.GetDataSource(0), grid.GetDataSource(grid.GetDefDataSource()));
}

TEST(CGridSheets, DefaultCellsFollowTheSystemsColoursAndKeepTheirOwn) {
  LoggingGrid grid(3, 2, 100, 100);
  const COLORREF paper = GetSysColor(COLOR_WINDOW);
  const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
  CGridCell own;
  own.SetBackColor(red);
  grid.SetColDefault(1, &own);
  SetSysColor(COLOR_WINDOW, ink);
  SetSysColor(COLOR_WINDOWTEXT, paper);
  SetSysColor(COLOR_BTNFACE, 0x404040);
  grid.SendMessage(WM_SYSCOLORCHANGE);
  CGridCell cell;
  for (const int col : {0, 2}) {
    grid.GetCellIndirect(col, 0, &cell);
    EXPECT_EQ(cell.GetBackColor(), ink) << "exchanged once, in columns with one default cell too";
    EXPECT_EQ(cell.GetTextColor(), paper);
  }
  grid.GetCellIndirect(1, 0, &cell);
  EXPECT_EQ(cell.GetBackColor(), red);
  grid.GetCellIndirect(0, -1, &cell);
  EXPECT_EQ(cell.GetBackColor(), 0x404040U);
  ResetSysColors();
}
