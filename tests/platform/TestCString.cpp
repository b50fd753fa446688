#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <limits>

#include "platform/CString.h"
#include "platform/CStringList.h"
#include "platform/Types.h"

namespace {

std::string Utf8(const CString& text) {
  return text.ToUtf8();
}

TEST(CString, MalformedUtf8IsReadByteByByteAsWindows1252) {
  EXPECT_EQ(Utf8(CString::FromUtf8("\xC3\xA4 \xF0\x9F\x98\x80")), "\xC3\xA4 \xF0\x9F\x98\x80");
  EXPECT_EQ(CString::FromUtf8("\xE4\x80"), L"\u00E4\u20AC");        // sequence cut short
  EXPECT_EQ(CString::FromUtf8("\xC0\xAF"), L"\u00C0\u00AF");        // overlong '/'
  EXPECT_EQ(CString::FromUtf8("\xED\xA0\x80").GetLength(), 3);      // surrogate
  EXPECT_EQ(CString::FromUtf8("\xF4\x90\x80\x80").GetLength(), 4);  // beyond U+10FFFF
  EXPECT_EQ(CString::FromUtf8(std::string_view("a\0b", 3)).GetLength(), 3);
  EXPECT_EQ(Utf8(CString(static_cast<wchar_t>(0xD800), 1)), "\xEF\xBF\xBD");
}

TEST(CString, PartsAreClippedToTheText) {
  const CString text = L"abc";
  EXPECT_EQ(text.Left(-1), L"");
  EXPECT_EQ(text.Left(9), L"abc");
  EXPECT_EQ(text.Right(2), L"bc");
  EXPECT_EQ(text.Right(9), L"abc");
  EXPECT_EQ(text.Mid(-2, 2), L"ab");
  EXPECT_EQ(text.Mid(7, 2), L"");
  EXPECT_EQ(CString(L"abc").Delete(1, 99), L"a");
  EXPECT_EQ(CString(L"abc").Insert(99, L"!"), L"abc!");
}

TEST(CString, SearchingAndReplacing) {
  CString text = L"aaaac";
  EXPECT_EQ(text.Find(L"aa", 1), 1);
  EXPECT_EQ(text.Find(L'a', 4), -1);
  EXPECT_EQ(text.Find(L"", 5), 5);
  EXPECT_EQ(text.Find(L"", 6), -1);
  EXPECT_EQ(text.Replace(L"aa", L"aab"), 2);  // what was put in is not searched again
  EXPECT_EQ(text, L"aabaabc");
  EXPECT_EQ(text.Replace(L"", L"x"), 0);
  EXPECT_EQ(text.Remove(L'a'), 4);
  EXPECT_EQ(text.ReverseFind(L'b'), 1);
  EXPECT_EQ(CString(L" \t x \r\n").Trim(), L"x");
  EXPECT_EQ(CString(L"..x..").TrimRight(L"."), L"..x");
  CStringList list;
  for (const wchar_t* item : {L"a", L"b", L"a"}) list.AddTail(item);
  for (const auto& [start, found] : {std::pair(1, 2), {-3, 0}, {99, -1}})
    EXPECT_EQ(list.Find(L"a", start), found);
}

TEST(CString, CaseFollowsTheUnicodeTablesInAnyProcessLocale) {
  EXPECT_EQ(CString(L"stra\u00DFe \u00E4\u03C9").MakeUpper(), L"STRA\u00DFE \u00C4\u03A9");
  EXPECT_EQ(CString(L"\u00C4\u0416Z").MakeLower(), L"\u00E4\u0436z");
  EXPECT_EQ(CString(L"\u00C4rger").CompareNoCase(L"\u00E4RGER"), 0);
  EXPECT_LT(CString(L"Ab").CompareNoCase(L"aC"), 0);
  EXPECT_GT(CString(L"abc").CompareNoCase(L"AB"), 0);
  EXPECT_LT(CString(L"B").Compare(L"a"), 0);
}

TEST(CStringFormat, TextsAreWideUtf8OrNothingAndNeverFormats) {
  EXPECT_EQ(CString::Formatted(L"100%% %y %") + CString::Formatted(nullptr), L"100% %y %");
  int count = 7;
  EXPECT_EQ(CString::Formatted(L"a%nb%d", &count, 1), L"ab1");
  EXPECT_EQ(count, 7);
  EXPECT_EQ(CString::Formatted(L"%s|%ls|%S|%hs", L"\u00E4%d", L"b", "\xC3\xB6", "d"), L"\u00E4%d|b|\u00F6|d");
  EXPECT_EQ(CString::Formatted(L"[%s][%S]", static_cast<wchar_t*>(nullptr), static_cast<char*>(nullptr)),
            L"[][]");
  EXPECT_EQ(CString::Formatted(L"[%5s][%-5s][%.2s][%*.*s]", L"ab", L"ab", L"abcd", 4, 1, L"xyz"),
            L"[   ab][ab   ][ab][   x]");
  const wchar_t unterminated[] = {L'a', L'b'};
  EXPECT_EQ(CString::Formatted(L"%.2s", unterminated), L"ab");
  EXPECT_EQ(CString::Formatted(L"%c%c%C", L'x', 0x20AC, 'y'), L"x\u20ACy");
  CString self = L"ab";
  self.Format(L"%s-%s", self.GetString(), self.GetString());
  EXPECT_EQ(self, L"ab-ab");
  self.AppendFormat(L"%s", self.GetString());
  EXPECT_EQ(self, L"ab-abab-ab");
  EXPECT_EQ(CString::Formatted(L"%s", CString(L'z', 5000).GetString()).GetLength(), 5000);
}

TEST(CStringFormat, IntegersKeepTheirWidth) {
  EXPECT_EQ(CString::Formatted(L"%d %u %X %05d %+d", -1, 4000000000U, 0xBEEFU, 42, 7),
            L"-1 4000000000 BEEF 00042 +7");
  EXPECT_EQ(CString::Formatted(L"%I64u %I64d", std::numeric_limits<std::uint64_t>::max(),
                               std::numeric_limits<std::int64_t>::min()),
            L"18446744073709551615 -9223372036854775808");
  EXPECT_EQ(CString::Formatted(L"%ld %lu %lX", -2147483649L, 4294967296UL, 0x1FFFFFFFFUL),
            L"-2147483649 4294967296 1FFFFFFFF");
  EXPECT_EQ(CString::Formatted(L"%hd %hhu %I32d", 65537, 257, -5), L"1 1 -5");
  EXPECT_EQ(CString::Formatted(L"%*d|%d", -4, 7, 8), L"7   |8");
}

TEST(CStringFormat, RealsUseAPointWhateverTheProcessLocale) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  const bool comma = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr;
  const CString text = CString::Formatted(L"%.2f %.20f %1.3lf %g", 1.5, 0.5, -2.0, 1e300);
  std::setlocale(LC_NUMERIC, before.c_str());
  EXPECT_EQ(text, L"1.50 0.50000000000000000000 -2.000 1e+300") << "with a comma locale: " << comma;
  EXPECT_EQ(CString::Formatted(L"%.2f", 1e308).GetLength(), 312);
}

}  // namespace
