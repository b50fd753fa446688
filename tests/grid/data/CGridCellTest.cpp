#include "grid/data/CGridCell.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "grid/data/CGridCellFormat.h"
#include "platform/Locale.h"
#include "platform/System.h"

namespace {

class CGridCellTest : public testing::Test {
 protected:
  CGridCellTest() : m_before(coregui::GetUserLocale()) { coregui::SetUserLocale(coregui::UserLocale()); }
  ~CGridCellTest() override { coregui::SetUserLocale(m_before); }

 private:
  coregui::UserLocale m_before;
};

TEST_F(CGridCellTest, StartsWithTheColoursOfTheSystemAndNoValue) {
  CGridCell cell;
  EXPECT_EQ(0x08008788, cell.GetPropertyFlags());
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(1, cell.GetAlignment());
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), cell.GetBackColor());
  EXPECT_EQ(0, cell.GetCellType());
  cell.SetPropertyFlags(CELLPROP_CELLTYPE | CELLPROP_CELLTYPEEX | CELLPROP_PARAM);
  EXPECT_EQ(-1, cell.GetCellType());
  EXPECT_EQ(-1, cell.GetCellTypeEx());
  EXPECT_EQ(-1, cell.GetParam());
}

TEST_F(CGridCellTest, EachPropertyIsSetKeptMergedAndFallsBackWithoutItsBit) {
  auto* const pen = reinterpret_cast<CPen*>(0x10);
  auto* const font = reinterpret_cast<CFont*>(0x20);
  auto* const bitmap = reinterpret_cast<CBitmap*>(0x30);
  CGridCellFormat format;
  CGridCell style;
  const struct {
    const char* name;
    long bit;
    std::function<int(CGridCell&)> set;
    std::function<bool(const CGridCell&)> isSet;
    std::function<bool(const CGridCell&)> isFallback;
  } rows[] = {
      {"text", CELLPROP_TEXT, [](auto& c) { return c.SetText(L"ab"); },
       [](auto& c) { return std::wcscmp(c.GetText(), L"ab") == 0; },
       [](auto& c) { return c.GetText() == nullptr && c.GetTextLength() == 0; }},
      {"label", CELLPROP_LABEL, [](auto& c) { return c.SetLabelText(L"l"); },
       [](auto& c) { return std::wcscmp(c.GetLabelText(), L"l") == 0; },
       [](auto& c) { return c.GetLabelText() == nullptr; }},
      {"mask", CELLPROP_MASK, [](auto& c) { return c.SetMask(L"##"); },
       [](auto& c) { return std::wcscmp(c.GetMask(), L"##") == 0; },
       [](auto& c) { return c.GetMask() == nullptr; }},
      {"data type", CELLPROP_DATATYPE, [](auto& c) { return c.SetDataType(5); },
       [](auto& c) { return c.GetDataType() == 5; }, [](auto& c) { return c.GetDataType() == 1; }},
      {"param", CELLPROP_PARAM, [](auto& c) { return c.SetParam(7); },
       [](auto& c) { return c.GetParam() == 7; }, [](auto& c) { return c.GetParam() == 0; }},
      {"cell type", CELLPROP_CELLTYPE, [](auto& c) { return c.SetCellType(2); },
       [](auto& c) { return c.GetCellType() == 2; }, [](auto& c) { return c.GetCellType() == 0; }},
      {"extended style", CELLPROP_CELLTYPEEX, [](auto& c) { return c.SetCellTypeEx(9); },
       [](auto& c) { return c.GetCellTypeEx() == 9; }, [](auto& c) { return c.GetCellTypeEx() == 0; }},
      {"text colour", CELLPROP_TEXTCOLOR, [](auto& c) { return c.SetTextColor(0xFF); },
       [](auto& c) { return c.GetTextColor() == 0xFF; },
       [](auto& c) { return c.GetTextColor() == GetSysColor(COLOR_WINDOWTEXT); }},
      {"back colour", CELLPROP_BACKCOLOR, [](auto& c) { return c.SetBackColor(0xFE); },
       [](auto& c) { return c.GetBackColor() == 0xFE; },
       [](auto& c) { return c.GetBackColor() == GetSysColor(COLOR_WINDOW); }},
      {"highlight text", CELLPROP_HTEXTCOLOR, [](auto& c) { return c.SetHTextColor(3); },
       [](auto& c) { return c.GetHTextColor() == 3; },
       [](auto& c) { return c.GetHTextColor() == GetSysColor(COLOR_HIGHLIGHTTEXT); }},
      {"highlight back", CELLPROP_HBACKCOLOR, [](auto& c) { return c.SetHBackColor(4); },
       [](auto& c) { return c.GetHBackColor() == 4; },
       [](auto& c) { return c.GetHBackColor() == GetSysColor(COLOR_HIGHLIGHT); }},
      {"border", CELLPROP_BORDER, [](auto& c) { return c.SetBorder(0x2000); },
       [](auto& c) { return c.GetBorder() == 0x2000; }, [](auto& c) { return c.GetBorder() == 0; }},
      {"pen", CELLPROP_BORDERCOLOR, [=](auto& c) { return c.SetBorderColor(pen); },
       [=](auto& c) { return c.GetBorderColor() == pen; },
       [](auto& c) { return c.GetBorderColor() == nullptr; }},
      {"font", CELLPROP_FONT, [=](auto& c) { return c.SetFont(font); },
       [=](auto& c) { return c.GetFont() == font; }, [](auto& c) { return c.GetFont() == nullptr; }},
      {"bitmap", CELLPROP_BITMAP, [=](auto& c) { return c.SetBitmap(bitmap); },
       [=](auto& c) { return c.GetBitmap() == bitmap; }, [](auto& c) { return c.GetBitmap() == nullptr; }},
      {"alignment", CELLPROP_ALIGNMENT, [](auto& c) { return c.SetAlignment(36); },
       [](auto& c) { return c.GetAlignment() == 36; }, [](auto& c) { return c.GetAlignment() == 0; }},
      {"format", CELLPROP_FORMAT, [&](auto& c) { return c.SetFormatClass(&format); },
       [&](auto& c) { return c.GetFormatClass() == &format; },
       [](auto& c) { return c.GetFormatClass() == nullptr; }},
      {"style", CELLPROP_STYLE, [&](auto& c) { return c.SetCellStyle(&style); },
       [&](auto& c) { return c.GetCellStyle() == &style; },
       [](auto& c) { return c.GetCellStyle() == nullptr; }},
      {"read-only", CELLPROP_READONLY, [](auto& c) { return c.SetReadOnly(-4); },
       [](auto& c) { return c.GetReadOnly() == 1; }, [](auto& c) { return c.GetReadOnly() == 0; }},
      {"decimals", CELLPROP_DECIMALS, [](auto& c) { return c.SetNumberDecimals(3); },
       [](auto& c) { return c.GetNumberDecimals() == 3; },
       [](auto& c) { return c.GetNumberDecimals() == 0; }},
      {"join", CELLPROP_JOIN, [](auto& c) { return c.SetJoinInfo(1, 2, 3); },
       [](auto& c) {
         int o = 0;
         int w = 0;
         long h = 0;
         return c.GetJoinInfo(&o, &w, &h) == 0 && o == 1 && w == 2 && h == 3;
       },
       [](auto& c) {
         int o = 0;
         int w = 0;
         long h = 0;
         return c.GetJoinInfo(&o, &w, &h) == 1;
       }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    CGridCell cell;
    cell.SetPropertyFlags(0);
    EXPECT_TRUE(row.isFallback(cell));
    EXPECT_EQ(0, row.set(cell));
    EXPECT_TRUE(cell.IsPropertySet(row.bit));
    EXPECT_TRUE(row.isSet(cell));
    CGridCell target;
    cell.AddInfoTo(&target);
    EXPECT_TRUE(row.isSet(target));
    CGridCell other;
    row.set(other);
    CGridCell blank;
    blank.SetPropertyFlags(0);
    other.AddInfoFrom(&blank);
    EXPECT_TRUE(row.isSet(other));
    cell.ClearProperty(row.bit);
    EXPECT_TRUE(row.isFallback(cell));
  }
}

TEST_F(CGridCellTest, AnEmptyTextTakesTheValueAway) {
  CGridCell cell;
  cell.SetText(L"x");
  cell.SetText(L"");
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(0.0, cell.GetNumber());
  double number = 5.0;
  EXPECT_EQ(1, cell.GetNumber(&number));
  EXPECT_EQ(1, cell.AppendText(L"y"));
  EXPECT_TRUE(cell.IsPropertySet(CELLPROP_DATATYPE));
}

TEST_F(CGridCellTest, AppendedAndOwnTextsAreTaken) {
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
}

TEST_F(CGridCellTest, NumbersShowAsTheFlagsAndDecimalsSay) {
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

TEST_F(CGridCellTest, BlackAndWhiteTextAlwaysShows) {
  CGridCell cell;
  cell.SetBackColor(0x000000);
  cell.SetTextColor(0);
  EXPECT_EQ(0xFFFFFFU, cell.GetTextColor());
  cell.SetBackColor(0xFFFFFF);
  EXPECT_EQ(0U, cell.GetTextColor());
  cell.SetTextColor(0x0000FF);
  cell.SetBackColor(0x000000);
  EXPECT_EQ(0x0000FFU, cell.GetTextColor());
  cell.SetBackColor(RGB(127, 127, 255));
  cell.SetTextColor(0);
  EXPECT_EQ(0xFFFFFFU, cell.GetTextColor());
  cell.SetBackColor(RGB(128, 127, 0));
  EXPECT_EQ(0U, cell.GetTextColor());
}

TEST_F(CGridCellTest, ChangingTheTypeConvertsTheValue) {
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
}

TEST_F(CGridCellTest, CurrencyFromTextDropsTheFractionIsKept) {
  CGridCell cell;
  cell.SetText(L"12.75");
  cell.SetDataType(CELLDATA_CURRENCY);
  EXPECT_EQ(12.0, cell.GetNumber());
  EXPECT_STREQ(L"12.75", cell.GetText());
}

TEST_F(CGridCellTest, TruthOfTextsAndItsConversionDifferIsKept) {
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

TEST_F(CGridCellTest, DatesGoInAndComeOutByTheTextOrWithALabelTheNumber) {
  CGridCell cell;
  cell.SetTime(30, 15, 8, 24, 12, 2023);
  int f[6] = {};
  EXPECT_EQ(0, cell.GetTime(&f[0], &f[1], &f[2], &f[3], &f[4], &f[5]));
  EXPECT_EQ(24, f[3]);
  EXPECT_EQ(12, f[4]);
  EXPECT_EQ(2023, f[5]);
  EXPECT_EQ(8, f[2]);
  cell.SetText(L"no date");
  EXPECT_EQ(0, cell.GetTime(&f[0], &f[1], &f[2], &f[3], &f[4], &f[5]));
  EXPECT_EQ(-1, f[0]);
  EXPECT_EQ(-1, f[5]);
  cell.SetLabelText(L"label");
  cell.GetTime(&f[0], &f[1], &f[2], &f[3], &f[4], &f[5]);
  EXPECT_EQ(2023, f[5]);
  const CString text = L"no date";
  EXPECT_EQ(1, CGridCell::StringToTime(&text, &f[0], &f[1], &f[2], &f[3], &f[4], &f[5]));
}

TEST_F(CGridCellTest, RemovingTheValueKeepsItsType) {
  CGridCell cell;
  cell.SetNumber(7);
  cell.ClearDisplayText();
  EXPECT_EQ(nullptr, cell.GetText());
  EXPECT_EQ(CELLDATA_NUMBER, cell.GetDataType());
  EXPECT_EQ(0.0, cell.GetNumber());
}

TEST_F(CGridCellTest, MergingTakesExtraMemoryFromBothIsKept) {
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

TEST_F(CGridCellTest, ExtraMemoryIsSharedByMergingAndLivesWithItsLastCell) {
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

TEST_F(CGridCellTest, TheSnapshotGoesAlongWithEveryMergeAndStaysIsKept) {
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

TEST_F(CGridCellTest, CopyingReplacesTheMaskAndClearingSubtractsFromItIsKept) {
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
