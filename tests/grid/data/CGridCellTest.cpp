#include "grid/data/CGridCell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <type_traits>

#include "grid/data/CGridCellFormat.h"
#include "platform/System.h"

namespace {

TEST(CGridCell, StartsWithTheColoursOfTheSystemAndNoValue) {
  CGridCell cell;
  EXPECT_EQ(0x08008788, cell.GetPropertyFlags());
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(1, cell.GetAlignment());
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), cell.GetBackColor());
  EXPECT_EQ(0, cell.GetCellType());
  cell.SetReadOnly(-4);
  EXPECT_EQ(1, cell.GetReadOnly());
  cell.SetPropertyFlags(CELLPROP_CELLTYPE | CELLPROP_CELLTYPEEX | CELLPROP_PARAM);
  EXPECT_EQ(-1, cell.GetCellType());
  EXPECT_EQ(-1, cell.GetCellTypeEx());
  EXPECT_EQ(-1, cell.GetParam());
}

/// How one property is set and shown; `isSet(cell, false)`: the cell shows what it has without it.
struct Property {
  const char* name;
  long bit;
  std::function<int(CGridCell&)> set;
  std::function<bool(const CGridCell&, bool)> isSet;
};

template <class Value>
Property Of(const char* name, long bit, int (CGridCell::*set)(Value), Value (CGridCell::*get)() const,
            Value value, Value fallback) {
  return {name, bit, [=](CGridCell& cell) { return (cell.*set)(value); },
          [=](const CGridCell& cell, bool isSet) {
            const Value shown = (cell.*get)(), wanted = isSet ? value : fallback;
            if constexpr (std::is_same_v<Value, const wchar_t*>) {
              if (shown != nullptr && wanted != nullptr) return std::wcscmp(shown, wanted) == 0;
            }
            return shown == wanted;
          }};
}

TEST(CGridCell, EachPropertyIsSetKeptMergedAndFallsBackWithoutItsBit) {
  CGridCellFormat format;
  CGridCell style;
  using Cell = CGridCell;
  const Property rows[] = {
      Of<const wchar_t*>("text", CELLPROP_TEXT, &Cell::SetText, &Cell::GetText, L"ab", nullptr),
      Of<const wchar_t*>("label", CELLPROP_LABEL, &Cell::SetLabelText, &Cell::GetLabelText, L"l", nullptr),
      Of<const wchar_t*>("mask", CELLPROP_MASK, &Cell::SetMask, &Cell::GetMask, L"##", nullptr),
      Of<short>("data type", CELLPROP_DATATYPE, &Cell::SetDataType, &Cell::GetDataType, 5, 1),
      Of<long>("param", CELLPROP_PARAM, &Cell::SetParam, &Cell::GetParam, 7, 0),
      Of("cell type", CELLPROP_CELLTYPE, &Cell::SetCellType, &Cell::GetCellType, 2, 0),
      Of<long>("extended style", CELLPROP_CELLTYPEEX, &Cell::SetCellTypeEx, &Cell::GetCellTypeEx, 9, 0),
      Of("text colour", CELLPROP_TEXTCOLOR, &Cell::SetTextColor, &Cell::GetTextColor, COLORREF{0xFF},
         GetSysColor(COLOR_WINDOWTEXT)),
      Of("back colour", CELLPROP_BACKCOLOR, &Cell::SetBackColor, &Cell::GetBackColor, COLORREF{0xFE},
         GetSysColor(COLOR_WINDOW)),
      Of("highlight text", CELLPROP_HTEXTCOLOR, &Cell::SetHTextColor, &Cell::GetHTextColor, COLORREF{3},
         GetSysColor(COLOR_HIGHLIGHTTEXT)),
      Of("highlight back", CELLPROP_HBACKCOLOR, &Cell::SetHBackColor, &Cell::GetHBackColor, COLORREF{4},
         GetSysColor(COLOR_HIGHLIGHT)),
      Of<short>("border", CELLPROP_BORDER, &Cell::SetBorder, &Cell::GetBorder, 0x2000, 0),
      Of<CPen*>("pen", CELLPROP_BORDERCOLOR, &Cell::SetBorderColor, &Cell::GetBorderColor,
                reinterpret_cast<CPen*>(0x10), nullptr),
      Of<CFont*>("font", CELLPROP_FONT, &Cell::SetFont, &Cell::GetFont, reinterpret_cast<CFont*>(0x20),
                 nullptr),
      Of<CBitmap*>("bitmap", CELLPROP_BITMAP, &Cell::SetBitmap, &Cell::GetBitmap,
                   reinterpret_cast<CBitmap*>(0x30), nullptr),
      Of<short>("alignment", CELLPROP_ALIGNMENT, &Cell::SetAlignment, &Cell::GetAlignment, 36, 0),
      Of<CGridCellFormat*>("format", CELLPROP_FORMAT, &Cell::SetFormatClass, &Cell::GetFormatClass, &format,
                           nullptr),
      Of<CGridCell*>("style", CELLPROP_STYLE, &Cell::SetCellStyle, &Cell::GetCellStyle, &style, nullptr),
      Of("read-only", CELLPROP_READONLY, &Cell::SetReadOnly, &Cell::GetReadOnly, 1, 0),
      Of("decimals", CELLPROP_DECIMALS, &Cell::SetNumberDecimals, &Cell::GetNumberDecimals, 3, 0),
      {"join", CELLPROP_JOIN, [](Cell& cell) { return cell.SetJoinInfo(1, 2, 3); },
       [](const Cell& cell, bool isSet) {
         int origin = 0;
         int width = 0;
         long height = 0;
         if (cell.GetJoinInfo(&origin, &width, &height) != 0) return !isSet;
         return isSet && origin == 1 && width == 2 && height == 3;
       }}};
  for (const Property& row : rows) {
    SCOPED_TRACE(row.name);
    CGridCell cell;
    cell.SetPropertyFlags(0);
    EXPECT_TRUE(row.isSet(cell, false));
    EXPECT_EQ(0, row.set(cell));
    EXPECT_TRUE(cell.IsPropertySet(row.bit));
    EXPECT_TRUE(row.isSet(cell, true));
    CGridCell target;
    cell.AddInfoTo(&target);
    EXPECT_TRUE(row.isSet(target, true));
    CGridCell other;
    row.set(other);
    CGridCell blank;
    blank.SetPropertyFlags(0);
    other.AddInfoFrom(&blank);
    EXPECT_TRUE(row.isSet(other, true));
    cell.ClearProperty(row.bit);
    EXPECT_TRUE(row.isSet(cell, false));
  }
}

TEST(CGridCell, AnEmptyTextTakesTheValueAway) {
  CGridCell cell;
  cell.SetText(L"x");
  cell.SetText(L"");
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(0, cell.GetTextLength());
  EXPECT_EQ(0.0, cell.GetNumber());
  double number = 5.0;
  EXPECT_EQ(1, cell.GetNumber(&number));
  EXPECT_EQ(1, cell.AppendText(L"y"));
  EXPECT_TRUE(cell.IsPropertySet(CELLPROP_DATATYPE));
}

TEST(CGridCell, AppendedAndOwnTextsAreTaken) {
  CGridCell cell;
  cell.SetText(L"abc");
  cell.AppendText(L"def");
  cell.SetText(cell.GetText() + 2);
  EXPECT_STREQ(L"cdef", cell.GetText());
  cell.SetNumber(5);
  EXPECT_EQ(0, cell.AppendText(L"7"));
  EXPECT_STREQ(L"7", cell.GetText()) << "a number has a text once it was asked for";
  cell.SetNumber(5);
  cell.GetText();
  EXPECT_EQ(0, cell.AppendText(L"0"));
  EXPECT_STREQ(L"50", cell.GetText());
  EXPECT_EQ(CELLDATA_TEXT, cell.GetDataType());
  for (int i = 0; i < 5; ++i) cell.AppendText(cell.GetText());
  const CGridCell copy = cell;
  cell.SetText(cell.GetText() + 62);
  EXPECT_STREQ(L"50", cell.GetText());
  EXPECT_EQ(64, copy.GetTextLength()) << "a text that outgrew its record";
  EXPECT_STREQ(L"5050505050505050505050505050505050505050505050505050505050505050", copy.GetText());
}

TEST(CGridCell, NumbersShowAsTheFlagsAndDecimalsSay) {
  CGridCell cell;
  cell.SetNumber(0.5);
  EXPECT_EQ(0, cell.GetTextLength());
  EXPECT_STREQ(L"0.5", cell.GetText());
  EXPECT_EQ(3, cell.GetTextLength());
  cell.SetPropertyFlags(cell.GetPropertyFlags() | CELLPROP_NOLOCALEFORMAT);
  EXPECT_STREQ(L".5", cell.GetText());
  cell.SetNumber(3);
  EXPECT_STREQ(L"3", cell.GetText());
  cell.SetNumberDecimals(2);
  EXPECT_STREQ(L"3.00", cell.GetText());
  cell.SetNumber(-2.9);
  int whole = 0;
  EXPECT_EQ(0, cell.GetNumber(&whole));
  EXPECT_EQ(-2, whole);
}

TEST(CGridCell, BlackAndWhiteTextAlwaysShows) {
  const struct {
    COLORREF back;
    COLORREF text;
    COLORREF shown;
  } rows[] = {{0, 0, 0xFFFFFF},
              {0xFFFFFF, 0, 0},
              {0, 0x0000FF, 0x0000FF},
              {RGB(127, 127, 255), 0, 0xFFFFFF},
              {RGB(128, 127, 0), 0, 0}};
  for (const auto& row : rows) {
    CGridCell cell;
    cell.SetBackColor(row.back);
    cell.SetTextColor(row.text);
    EXPECT_EQ(row.shown, cell.GetTextColor()) << std::hex << row.back;
  }
}

TEST(CGridCell, ChangingTheTypeConvertsTheValue) {
  CGridCell cell;
  cell.SetText(L"12.75");
  cell.SetDataType(CELLDATA_NUMBER);
  EXPECT_EQ(12.75, cell.GetNumber());
  cell.SetDataType(CELLDATA_CURRENCY);
  EXPECT_STREQ(L"12.75", cell.GetText());
  EXPECT_EQ(12.75, cell.GetNumber());
  cell.SetText(L"soon");
  cell.SetDataType(CELLDATA_TIME);
  EXPECT_EQ(0.0, cell.GetNumber());
  EXPECT_STREQ(L"soon", cell.GetText());
  cell.SetNumber(7);
  cell.ClearDisplayText();
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(CELLDATA_NUMBER, cell.GetDataType()) << "taking the value away leaves its type";
  EXPECT_EQ(0.0, cell.GetNumber());
}

TEST(CGridCell, CurrencyFromTextDropsTheFractionIsKept) {
  CGridCell cell;
  cell.SetText(L"12.75");
  cell.SetDataType(CELLDATA_CURRENCY);
  EXPECT_EQ(12.0, cell.GetNumber());
  EXPECT_STREQ(L"12.75", cell.GetText());
}

TEST(CGridCell, TruthOfTextsAndItsConversionDifferIsKept) {
  CGridCell cell;
  CString text;
  int value = 0;
  const struct {
    const wchar_t* text;
    int truth;
    int converted;
  } rows[] = {{L"true", 1, 1}, {L"Yes", 0, 1},   {L"1", 1, 1}, {L"-1", 0, 1},
              {L"0", 0, 0},    {L"false", 0, 0}, {L"", 0, 1}};
  for (const auto& row : rows) {
    cell.SetText(row.text);
    EXPECT_EQ(row.truth, cell.GetBool()) << CString(row.text).ToUtf8();
    text = row.text;
    CGridCell::StringToBool(&text, &value);
    EXPECT_EQ(row.converted, value) << text.ToUtf8();
  }
  cell.SetBool(5);
  EXPECT_STREQ(L"1", cell.GetText());
  EXPECT_EQ(CELLDATA_BOOL, cell.GetDataType());
}

TEST(CGridCell, DatesGoInAndComeOutByTheTextOrWithALabelTheNumber) {
  CGridCell cell;
  cell.SetTime(30, 15, 8, 24, 12, 2023);
  int f[6] = {};
  const auto read = [&] { return cell.GetTime(&f[0], &f[1], &f[2], &f[3], &f[4], &f[5]); };
  EXPECT_EQ(0, read());
  EXPECT_THAT(f, testing::ElementsAre(30, 15, 8, 24, 12, 2023));
  cell.SetText(L"no date");
  EXPECT_EQ(0, read());
  EXPECT_THAT(f, testing::Each(-1));
  cell.SetLabelText(L"label");
  read();
  EXPECT_EQ(2023, f[5]);
  const CString text = L"no date";
  EXPECT_EQ(1, CGridCell::StringToTime(&text, &f[0], &f[1], &f[2], &f[3], &f[4], &f[5]));
}

TEST(CGridCell, MergingTakesExtraMemoryFromBothIsKept) {
  CGridCell source;
  CGridCell target;
  auto* const block = static_cast<char*>(target.AllocExtraMem(4));
  std::memcpy(block, "abc", 4);
  source.AddInfoTo(&target);
  EXPECT_EQ(nullptr, target.GetExtraMemPtr());
  EXPECT_EQ(4, target.GetExtraMemSize());
  EXPECT_STREQ("abc", block);
  auto* const shared = source.AllocExtraMem(2);
  source.SetPropertyFlags(source.GetPropertyFlags() & ~CELLPROP_EXTRAMEM);
  source.AddInfoTo(&target);
  source.SetPropertyFlags(source.GetPropertyFlags() | CELLPROP_EXTRAMEM);
  EXPECT_EQ(nullptr, source.GetExtraMemPtr());
  EXPECT_NE(nullptr, shared);
}

TEST(CGridCell, ExtraMemoryIsSharedByMergingAndLivesWithItsLastCell) {
  CGridCell target;
  {
    CGridCell source;
    std::memcpy(source.AllocExtraMem(4), "abc", 4);
    source.CopyInfoTo(&target);
    EXPECT_EQ(source.GetExtraMemPtr(), target.GetExtraMemPtr());
    source.ClearMemory();
    EXPECT_EQ(nullptr, source.GetExtraMemPtr());
    EXPECT_EQ(0, source.GetExtraMemSize());
  }
  EXPECT_STREQ("abc", static_cast<char*>(target.GetExtraMemPtr()));
  target.ClearAll();
  EXPECT_EQ(nullptr, target.GetExtraMemPtr());
  target.SetPropertyFlags(CELLPROP_EXTRAMEM);
  EXPECT_EQ(4, target.GetExtraMemSize());
}

TEST(CGridCell, TheSnapshotGoesAlongWithEveryMergeAndStaysIsKept) {
  CGridCell cell;
  cell.SetText(L"before");
  cell.SetInitialState();
  CGridCell other;
  cell.AddInfoTo(&other);
  for (const wchar_t* text : {L"after", L"later"}) {
    other.SetText(text);
    other.LoadInitialState();
    EXPECT_STREQ(L"before", other.GetText());
  }
  CGridCell plain;
  plain.AddInfoTo(&other);
  other.SetText(L"after");
  other.LoadInitialState();
  EXPECT_STREQ(L"after", other.GetText());
  cell.SetText(L"second");
  cell.SetInitialState();
  cell.SetInitialState();
  cell.ClearMemory();
  cell.SetText(L"third");
  cell.LoadInitialState();
  EXPECT_STREQ(L"third", cell.GetText());
}

TEST(CGridCell, CopyingReplacesTheMaskAndClearingSubtractsFromItIsKept) {
  CGridCell source;
  source.SetPropertyFlags(CELLPROP_BORDER);
  CGridCell target;
  target.CopyInfoFrom(&source);
  EXPECT_EQ(CELLPROP_BORDER, target.GetPropertyFlags());
  target.SetPropertyFlags(CELLPROP_LABEL);
  target.ClearProperty(CELLPROP_LABEL | CELLPROP_MASK);
  EXPECT_EQ(0xFFFFFFFEL, target.GetPropertyFlags());
  target.SetPropertyFlags(0);
  target.SetBitmap(nullptr);
  target.SetFormatClass(nullptr);
  EXPECT_EQ(0, target.GetPropertyFlags());
  target.SetCellStyle(nullptr);
  EXPECT_EQ(CELLPROP_STYLE, target.GetPropertyFlags());
}

}  // namespace
