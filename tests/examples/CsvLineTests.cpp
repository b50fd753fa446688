#include "CsvLine.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::wstring> Fields(std::wstring_view record, wchar_t separator = L',') {
  desk::CsvLine line;
  line.Split(record, separator);
  return {line.Fields().begin(), line.Fields().end()};
}

TEST(CsvLine, SplitsAsSpreadsheetsWrite) {
  using Texts = std::vector<std::wstring>;
  EXPECT_EQ(Fields(L""), Texts({L""}));
  EXPECT_EQ(Fields(L"a,,b,"), Texts({L"a", L"", L"b", L""}));
  EXPECT_EQ(Fields(L"\"a,b\",c"), Texts({L"a,b", L"c"}));
  EXPECT_EQ(Fields(L"\"say \"\"yes\"\"\",\"\",x"), Texts({L"say \"yes\"", L"", L"x"}));
  EXPECT_EQ(Fields(L"5\" pipe,6"), Texts({L"5\" pipe", L"6"}));
  EXPECT_EQ(Fields(L"\"a\"b,c"), Texts({L"ab", L"c"}));
  EXPECT_EQ(Fields(L"1,5;2,5", L';'), Texts({L"1,5", L"2,5"}));
}

TEST(CsvLine, ARecordThatEndsInsideQuotesIsIncomplete) {
  desk::CsvLine line;
  EXPECT_FALSE(line.Split(L"1,\"two", L','));
  EXPECT_TRUE(line.Split(L"1,\"two\nlines\"", L','));
  EXPECT_EQ(line.Fields()[1], L"two\nlines");
}

TEST(CsvLine, OnlyWholeNumbersAreNumbers) {
  double value = 0.0;
  for (const wchar_t* text : {L"12", L" 12 ", L"+12", L"12.0", L"1.2e1"}) {
    ASSERT_TRUE(desk::ParseNumber(text, L'.', value)) << testing::PrintToString(text);
    EXPECT_EQ(value, 12.0);
  }
  ASSERT_TRUE(desk::ParseNumber(L"\u22123,25", L',', value));
  EXPECT_EQ(value, -3.25);
  for (const wchar_t* text :
       {L"", L" ", L"12 m", L"A12", L"1,5", L"1.2.3", L"--1", L"nan", L"inf", L"1e999", L"-"}) {
    EXPECT_FALSE(desk::ParseNumber(text, L'.', value)) << testing::PrintToString(text);
  }
}

TEST(CsvDialect, FindsSeparatorDecimalHeadingsAndNumbers) {
  const auto german =
      desk::DetectDialect({L"Station;H\u00F6he;Text", L"0,5;101,25;Anfang, Nagel", L"1,0;;", L"1,5;101;x"});
  EXPECT_EQ(german.separator, L';');
  EXPECT_EQ(german.decimal, L',');
  EXPECT_TRUE(german.hasHeadings);
  EXPECT_EQ(german.headings[1], L"H\u00F6he");
  EXPECT_EQ(german.numeric, std::vector<bool>({true, true, false}));
  EXPECT_EQ(german.decimals, std::vector<int>({1, 2, 0}));

  const auto bare = desk::DetectDialect({L"0.0\t1.5", L"1.0\t1.6"});
  EXPECT_EQ(bare.separator, L'\t');
  EXPECT_FALSE(bare.hasHeadings);
  EXPECT_EQ(bare.headings, std::vector<std::wstring>({L"Column 1", L"Column 2"}));

  const auto ragged = desk::DetectDialect({L"a,b", L"1,2", L"1,2,3", L"x,4"});
  EXPECT_EQ(ragged.numeric, std::vector<bool>({false, true, true}));
  EXPECT_EQ(ragged.headings[2], L"Column 3");
}

}  // namespace
