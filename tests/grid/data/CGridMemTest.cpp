#include "grid/data/CGridMem.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <random>
#include <utility>

#include "grid/data/CGridCell.h"
#include "tests/grid/data/TestOwner.h"

namespace {

void Put(CGridMem& store, int col, long row, const wchar_t* text) {
  CGridCell cell;
  cell.SetText(text);
  store.SetCell(col, row, &cell);
}

std::string Text(CGridMem& store, int col, long row) {
  CGridCell cell;
  cell.SetPropertyFlags(0);
  CString text;
  if (store.GetCell(col, row, &cell) != 0) return "none";
  cell.GetText(&text);
  return text.ToUtf8();
}

TEST(CGridMem, WritingReplacesTheMaskAndReadingChangesOnlyWhatIsStored) {
  CGridMem store;
  CGridCell written;
  written.SetPropertyFlags(0);
  written.SetText(L"stored");
  written.SetBorder(7);
  ASSERT_EQ(0, store.SetCell(1, 1, &written));
  CGridCell read;
  read.SetAlignment(9);
  EXPECT_EQ(1, store.GetCell(2, 1, &read));
  EXPECT_EQ(nullptr, read.GetText()) << "nothing is stored there";
  ASSERT_EQ(0, store.GetCell(1, 1, &read));
  EXPECT_STREQ(L"stored", read.GetText());
  EXPECT_EQ(7, read.GetBorder());
  EXPECT_EQ(9, read.GetAlignment()) << "a property that is not stored does not change";
  written.ClearProperty(CELLPROP_BORDER);
  ASSERT_EQ(0, store.SetCell(1, 1, &written));
  read.SetPropertyFlags(0);
  ASSERT_EQ(0, store.GetCell(1, 1, &read));
  EXPECT_EQ(0, read.IsPropertySet(CELLPROP_BORDER));
  int column = 0;
  long row = 0;
  EXPECT_EQ(1, store.OnCanMove(0, 0, 1, 1));
  EXPECT_EQ(1, store.OnEditContinue(0, 0, &column, &row));
  CGridCell* cells[1] = {};
  EXPECT_EQ(0, store.AppendRow());
  EXPECT_EQ(-1, store.AppendRow(cells, 1));
  EXPECT_EQ(-1, store.GetNumCols());
  EXPECT_EQ(0, store.IsOpen());
  EXPECT_EQ(1, store.SetCell(0, std::numeric_limits<long>::max(), &written)) << "rows have 32 bits";
  EXPECT_EQ(1, store.GetNumRows());
}

TEST(CGridMem, ACellWithNoPropertyIsStoredAndAllPropertiesComeBack) {
  CGridMem store;
  CGridCell cell;
  cell.SetPropertyFlags(0);
  store.SetCell(-1, -1, &cell);
  EXPECT_EQ(0, store.GetCell(-1, -1, &cell));
  CGridCell full;
  full.SetNumber(-0.0);
  full.GetText();
  full.SetLabelText(L"label");
  full.SetMask(L"mask");
  full.SetParam(4);
  full.SetJoinInfo(0, -2, -3);
  full.SetReadOnly(1);
  full.SetInitialState();
  std::memcpy(full.AllocExtraMem(3), "ab", 3);
  store.SetCell(0, 0, &full);
  CGridCell read;
  store.GetCell(0, 0, &read);
  EXPECT_EQ(full.GetPropertyFlags(), read.GetPropertyFlags());
  EXPECT_TRUE(std::signbit(read.GetNumber()));
  EXPECT_EQ(full.GetTextLength(), read.GetTextLength());
  EXPECT_STREQ(L"label", read.GetLabelText());
  EXPECT_STREQ(L"mask", read.GetMask());
  EXPECT_EQ(4, read.GetParam());
  EXPECT_EQ(full.GetExtraMemPtr(), read.GetExtraMemPtr());
  store.DeleteCell(0, 0);
  EXPECT_STREQ("ab", static_cast<char*>(read.GetExtraMemPtr()));
  read.SetText(L"changed");
  read.LoadInitialState();
  EXPECT_EQ(CELLDATA_NUMBER, read.GetDataType());
  EXPECT_TRUE(store.Check());
}

/// Texts of each length that is kept in another way, numbers, and cells that change from one to the other.
TEST(CGridMem, AManySidedTableComesBackWholeAndItsMemoryIsUsedAgain) {
  constexpr long ROWS = 30'000;
  constexpr int COLS = 6;
  const auto fill = [](CGridCell& cell, int col, long row) {
    const long kind = row % 1000 == 7 ? col : col % 2;
    if (kind == 0) return cell.SetNumber(static_cast<double>(row) / 4);
    CString text;
    text.Format(L"%ld", row);
    if (kind > 1) text += CString(kind == 2 ? L'\x20AC' : L'x', kind == 3 ? 600 : 9);
    return cell.SetText(text);
  };
  CGridMem store;
  for (int round = 0; round < 2; ++round) {
    for (const bool again : {false, true}) {  // every five hundredth row is written over
      for (long row = again ? 3 : 0; row < ROWS; row += again ? 500 : 1) {
        for (int col = 0; col < COLS; ++col) {
          CGridCell cell;
          fill(cell, !again && row % 500 == 3 ? col + 1 : col, row);
          store.SetCell(col, row, &cell);
        }
      }
    }
    ASSERT_TRUE(store.Check());
    for (long row = 0; row < ROWS; ++row) {
      for (int col = 0; col < COLS; ++col) {
        CGridCell wanted;
        fill(wanted, col, row);
        ASSERT_EQ(CString(wanted.GetText()).ToUtf8(), Text(store, col, row)) << col << ", " << row;
      }
    }
    store.Empty();
    ASSERT_TRUE(store.Check());
  }
}

TEST(CGridMem, ATextKeepsTheNumberThatAReusedCellStillHolds) {
  CGridMem store;
  CGridCell cell;
  cell.SetNumber(45000.0);
  cell.SetText(L"text");
  store.SetCell(0, 0, &cell);
  CGridCell read;
  store.GetCell(0, 0, &read);
  EXPECT_STREQ(L"text", read.GetText());
  read.SetLabelText(L"dates come from the number now");
  int f[6] = {};
  read.GetTime(&f[0], &f[1], &f[2], &f[3], &f[4], &f[5]);
  EXPECT_EQ(2023, f[5]);
}

TEST(CGridMem, InsertedColumnsFollowTheTranslationIsKept) {
  CGridMem store;
  TestOwner owner(3, 10);
  owner.translations = {2, 0, 1};
  store.SetOwner(&owner);
  Put(store, 0, 0, L"a");
  Put(store, 1, 0, L"b");
  Put(store, 2, 0, L"c");
  Put(store, 0, 1, L"short");
  // Data column 0 is shown by grid column 1, and that is where the position goes in.
  EXPECT_EQ(0, store.InsertCol(0));
  EXPECT_EQ("a", Text(store, 0, 0));
  EXPECT_EQ("none", Text(store, 1, 0));
  EXPECT_EQ("b", Text(store, 2, 0));
  EXPECT_EQ((std::vector<int>{3, 0, 2}), owner.translations);
  EXPECT_EQ(1, store.DeleteCell(1, 1));
  EXPECT_EQ(0, store.DeleteCol(2));
  EXPECT_EQ((std::vector<int>{2, 0, 1}), owner.translations);
  EXPECT_EQ("c", Text(store, 2, 0));
  CGridMem empty;
  EXPECT_EQ(1, empty.InsertCol(0));
  EXPECT_EQ(1, empty.DeleteCol(0));
}

/// The search as it is worded, one cell at a time.
int NaiveFind(CGridMem& store, const TestOwner& owner, const CString& wanted, int* col, long* row,
              int flags) {
  const long rows = owner.numberRows;
  const int cols = owner.GetNumberCols();
  const int step = (flags & FIND_UP) != 0 ? -1 : 1;
  int c = *col;
  long r = *row;
  long moves = 0;
  const auto moveRow = [&] {
    r += step;
    if (step > 0 && r > rows - 1) r = 0;
    if (step < 0 && r < 0) r = rows - 1;
    ++moves;
  };
  for (;;) {
    if ((flags & FIND_ALLCOLS) == 0) {
      moveRow();
    } else {
      c += step;
      if (c > cols - 1 || c < 0) {
        c = step > 0 ? 0 : cols - 1;
        moveRow();
      }
    }
    if (moves > rows + 1) return 1;
    CGridCell cell;
    cell.SetPropertyFlags(0);
    if (store.GetCell(c, r, &cell) != 0) continue;
    CString text;
    cell.GetText(&text);
    if ((flags & FIND_NOCASE) != 0) text.MakeUpper();
    const bool matches =
        (flags & FIND_PARTIAL) != 0 ? text.Find(wanted) >= 0 : !text.IsEmpty() && text == wanted;
    if (!matches) continue;
    *col = c;
    *row = r;
    return 0;
  }
}

TEST(CGridMem, FindsWhatTheWordedSearchFindsInRandomTables) {
  std::mt19937 random(11);
  const auto pick = [&random](int high) { return static_cast<int>(random() % static_cast<unsigned>(high)); };
  const wchar_t* const texts[] = {
      L"a", L"A", L"ab", L"xaB", L"1", L"1.5", L"\x00E9t\x00C9", L"a longer text with \x20AC and B", L""};
  for (int round = 0; round < 300; ++round) {
    const int height = round % 2 == 0 ? 160 : 8;  // few in many rows, and many in few
    TestOwner owner(1 + pick(4), 1 + pick(height - 2));
    CGridMem store;
    store.SetOwner(&owner);
    for (int i = pick(height == 8 ? 40 : 12); i > 0; --i) {
      CGridCell cell;
      if (pick(3) == 0)
        cell.SetNumber(pick(30) / 2.0);
      else
        cell.SetText(texts[pick(9)]);
      store.SetCell(pick(6) - 1, pick(height) - 2, &cell);
    }
    for (int search = 0; search < 20; ++search) {
      CString text = texts[pick(9)];
      const int flags = pick(16);
      int col = pick(owner.GetNumberCols());
      long row = pick(static_cast<int>(owner.numberRows));
      CString upper = text;
      if ((flags & FIND_NOCASE) != 0) upper.MakeUpper();
      const bool first = search % 4 == 0;  // from before the first cell, or the column's first
      const bool all = (flags & FIND_ALLCOLS) != 0;
      int wantedCol = first && all ? -1 : col;
      long wantedRow = !first ? row : all ? 0 : -1;
      const int wanted = NaiveFind(store, owner, upper, &wantedCol, &wantedRow, flags);
      const int colBefore = col;
      const long rowBefore = row;
      ASSERT_EQ(wanted,
                first ? store.FindFirst(&text, &col, &row, flags) : store.FindNext(&text, &col, &row, flags))
          << "round " << round << " flags " << flags << " " << text.ToUtf8();
      ASSERT_EQ(wanted == 0 ? wantedCol : colBefore, col);
      ASSERT_EQ(wanted == 0 ? wantedRow : rowBefore, row);
      ASSERT_EQ(upper, text);
    }
  }
}

TEST(CGridMem, ASearchEndsWhenWhoeverWatchesItGivesUp) {
  CGridMem store;
  CGridCell cell;
  for (long row = 0; row < 60000; ++row) {
    cell.SetNumber(static_cast<double>(row));
    store.SetCell(0, row, &cell);
  }
  for (const int flags : {0, FIND_UP, FIND_ALLCOLS | FIND_PARTIAL | FIND_NOCASE}) {
    CString text = L"30,123";
    int patience = 0;
    for (int result = 1; result != 0; ++patience) {
      ASSERT_LT(patience, 10);
      int asked = 0;
      double reached = 0.0;
      store.SetWatch([&](double part) {
        EXPECT_GT(part, std::exchange(reached, part));
        return asked++ < patience;
      });
      int col = 0;
      long row = 7;
      result = store.FindNext(&text, &col, &row, flags);
      EXPECT_EQ(result, asked > patience ? 1 : 0);
      EXPECT_EQ(row, result == 0 ? 30123 : 7);
      EXPECT_LT(reached, 0.7);
    }
    EXPECT_GT(patience, 1) << flags;
  }
}

}  // namespace
