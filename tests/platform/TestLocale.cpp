// Numbers, amounts and dates as the user writes them.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "platform/Locale.h"
#include "platform/OleDate.h"

namespace {

using coregui::FormatNumberText;
using coregui::ParseCurrency;
using coregui::SetUserLocale;

std::string Utf8(const wchar_t* text) {
  return CString(text).ToUtf8();
}

TEST(Locale, TextsFollowTheNamedLocale) {
  constexpr std::tuple<const wchar_t*, const wchar_t*, int> rows[] = {
      {L"en_US", L"-1,234,567.50", 2},           {L"C", L"-1,234,567.50", 2},
      {L"de_DE", L"-1.234.567,50", 2},           {L"de_CH", L"-1\u2019234\u2019567.50", 2},
      {L"fr_CH", L"-1\u202F234\u202F567,50", 2}, {L"hi_IN", L"-1,234,567.50", 2},
      {L"sv_SE", L"-1\u00A0234\u00A0567,50", 2}, {L"ja_JP", L"-1,234,567.50", 0}};
  for (const auto& [locale, text, currencyDigits] : rows) {
    ASSERT_TRUE(SetUserLocale(locale)) << Utf8(locale);
    EXPECT_EQ(FormatNumberText(L"-1234567.5", 2).ToUtf8(), Utf8(text)) << Utf8(locale);
    EXPECT_EQ(coregui::GetUserLocale().currencyDigits, currencyDigits) << Utf8(locale);
  }
}

TEST(Locale, UnknownNameChangesNothing) {
  SetUserLocale(L"de_DE");
  const auto version = coregui::GetUserLocaleVersion();
  EXPECT_FALSE(SetUserLocale(L"xx_YY") || SetUserLocale(L"de_QQ"));
  EXPECT_EQ(coregui::GetUserLocale().name, L"de_DE");
  EXPECT_EQ(coregui::GetUserLocaleVersion(), version);
  EXPECT_TRUE(SetUserLocale(L"de"));
  EXPECT_NE(coregui::GetUserLocaleVersion(), version);
}

TEST(NumberText, RoundsHalfAwayFromZeroOnTheDigitsThemselves) {
  constexpr std::tuple<const wchar_t*, int, const wchar_t*> rows[] = {
      {L"0.5", 0, L"1"},          {L"-0.5", 0, L"-1"},     {L"2.5", 0, L"3"},
      {L"0.49999", 0, L"0"},      {L"1.005", 2, L"1.01"},  {L"999.995", 2, L"1,000.00"},
      {L"99.99", 1, L"100.0"},    {L".5", 1, L"0.5"},      {L"-.004", 2, L"0.00"},
      {L"-0", 0, L"0"},           {L"007", 0, L"7"},       {L"5.", 2, L"5.00"},
      {L"123456", 0, L"123,456"}, {L"1234", -3, L"1,234"}, {L"0.1", 20, L"0.10000000000000000000"}};
  for (const auto& [number, decimals, text] : rows) {
    EXPECT_EQ(FormatNumberText(number, decimals), text) << Utf8(number);
  }
}

TEST(NumberText, WhatIsNotPlainOrLongerThan255CharactersGivesNothing) {
  for (const wchar_t* text :
       {L"", L"-", L".", L"-.", L"+1", L"1 ", L" 1", L"1e5", L"1.2.3", L"1,000", L"--1", L"inf"}) {
    EXPECT_TRUE(FormatNumberText(text, 2).IsEmpty()) << Utf8(text);
  }
  EXPECT_EQ(FormatNumberText(L"1", 253).GetLength(), 255);
  EXPECT_TRUE(FormatNumberText(L"1", 254).IsEmpty());
  EXPECT_EQ(FormatNumberText(CString(L'9', 191) + L".9", 0).GetLength(), 255);  // the carry adds a digit
  EXPECT_TRUE(FormatNumberText(CString(L'9', 192) + L".9", 0).IsEmpty());
  EXPECT_EQ(FormatNumberText(CString(L'0', 300), 0), L"0");
}

TEST(NumberText, SignsAndZerosFollowTheSettings) {
  coregui::UserLocale locale;
  locale.negative = L"~~";
  locale.thousands = L"";
  locale.decimal = L"::";
  locale.leadingZero = false;
  const wchar_t* expected[] = {L"(::5)", L"~~::5", L"~~ ::5", L"::5~~", L"::5 ~~"};
  for (locale.negativeOrder = 0; locale.negativeOrder < 5; ++locale.negativeOrder) {
    SetUserLocale(locale);
    EXPECT_EQ(FormatNumberText(L"-0.5", 1), expected[locale.negativeOrder]);
  }
  EXPECT_EQ(FormatNumberText(L"0", 0), L"0");
  EXPECT_EQ(FormatNumberText(L"1234", 0), L"1234");
}

TEST(Currency, IsReadLenientlyButNotFromWhatIsNoAmount) {
  constexpr std::pair<const wchar_t*, std::int64_t> rows[] = {
      {L"12.75", 127500},     {L"$1,234.5", 12345000},
      {L" ( $ 1 ) ", -10000}, {L"-$2", -20000},
      {L"$-2", -20000},       {L"2-", -20000},
      {L"0.00005", 1},        {L"0.00004999", 0},
      {L"-0.99995", -10000},  {L"922337203685477.5807", INT64_MAX}};
  std::int64_t value = 0;
  for (const auto& [text, wanted] : rows) {
    EXPECT_TRUE(ParseCurrency(text, value)) << Utf8(text);
    EXPECT_EQ(value, wanted) << Utf8(text);
  }
  for (const wchar_t* text : {L"", L"$", L"abc", L"1.2.3", L"(1", L"1)", L"--1", L"-1-", L"$1$", L"1 $ 2",
                              L"1.5x", L"922337203685477.58075", L"99999999999999999999", L"((1))"}) {
    EXPECT_FALSE(ParseCurrency(text, value)) << Utf8(text);
  }
  EXPECT_FALSE(ParseCurrency(nullptr, value));
  for (const auto& [locale, text] : {std::pair(L"de_DE", L"1.234,50 \u20AC"), {L"fr_CH", L"1 234,5 CHF"}}) {
    SetUserLocale(locale);
    EXPECT_TRUE(ParseCurrency(text, value) && value == 12345000) << Utf8(locale);
  }
}

std::string Iso(DATE date) {
  SYSTEMTIME t;
  if (!VariantTimeToSystemTime(date, &t)) return "none";
  return CString::Formatted(L"%04d-%02d-%02d %02d:%02d:%02d.%03d", t.wYear, t.wMonth, t.wDay, t.wHour,
                            t.wMinute, t.wSecond, t.wMilliseconds)
      .ToUtf8();
}

/// Without the time at midnight.
std::string Parsed(const wchar_t* text) {
  DATE date = 0.0;
  const DateResult result = VarDateFromStr(text, &date);
  if (result == DateResult::ok) return Iso(date).substr(0, date == std::floor(date) ? 10 : 19);
  return result == DateResult::overflow ? "overflow" : "mismatch";
}

TEST(OleDate, FractionsCountForwardsInTheYears100To9999) {
  // The last millisecond rounds into the next day.
  constexpr std::pair<DATE, const char*> rows[] = {
      {-2.0 - (1.0 - 1e-10), "1899-12-29 00:00:00.000"}, {-0.75, "1899-12-30 18:00:00.000"},
      {1.0 - 1e-10, "1899-12-31 00:00:00.000"},          {-1.25, "1899-12-29 06:00:00.000"},
      {-657434.75, "0100-01-01 18:00:00.000"},           {2958465.5, "9999-12-31 12:00:00.000"}};
  for (const auto& [date, text] : rows) EXPECT_EQ(Iso(date), text) << date;
  for (const DATE date : {-657435.0, 2958465.9999999999, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(Iso(date), "none") << date;
  }
  EXPECT_EQ(VarDateToStr(1.0 - 1e-6), L"12/31/1899");  // 0.09 seconds before midnight
  EXPECT_EQ(VarDateToStr(1e300), L"");
  DATE date = 7.0;
  for (const SYSTEMTIME& none :
       {SYSTEMTIME{1900, 2, 0, 29, 6, 0, 0, 0}, {2000, 2, 0, 29, 6, 0, 60, 0}, {99, 2, 0, 1, 6, 0, 0, 0}}) {
    EXPECT_FALSE(SystemTimeToVariantTime(none, &date)) << none.wYear;
  }
  EXPECT_TRUE(SystemTimeToVariantTime({1899, 12, 0, 29, 6, 0, 0, 0}, &date) && date == -1.25) << date;
}

TEST(DateText, IsReadWithNamesAndTimesInTheOrderOfTheLocale) {
  constexpr std::pair<const wchar_t*, const char*> times[] = {
      {L"2020-02-01T13:14:15Z", "2020-02-01 13:14:15"}, {L"Sunday, 5th January 2020", "2020-01-05"},
      {L"23:59:59 1/2/2020", "2020-01-02 23:59:59"},    {L"1:05:09 pm", "1899-12-30 13:05:09"},
      {L"1/2/1800 18:00", "1800-01-02 18:00:00"},       {L"12:00 p.m.", "1899-12-30 12:00:00"},
      {L"1/2/2020 3 PM", "2020-01-02 15:00:00"}};
  for (const auto& [text, date] : times) EXPECT_EQ(Parsed(text), date) << Utf8(text);
  for (const wchar_t* text :
       {L"", L"  ", L"5", L"abc", L"-1/2/2020", L"1/2/3/4", L"$5", L"PM", L"/", L"1+2", L"24:00", L"12:60",
        L"12:", L"1:2:3:4", L"13:00 PM", L"January", L"2/30/2020", L"2/29/1900", L"Jan Feb 20"}) {
    EXPECT_EQ(Parsed(text), "mismatch") << Utf8(text);
  }
  EXPECT_EQ(Parsed(nullptr), "mismatch");
  // A field that fits nowhere in the locale's order is tried in others: the 25th of December.
  constexpr std::tuple<const wchar_t*, const wchar_t*, const char*> rows[] = {
      {L"de_DE", L"5. M\u00E4rz 20", "2020-03-05"}, {L"de_DE", L"1.2.2020", "2020-02-01"},
      {L"fr_CH", L"5 f\u00E9vr. 20", "2020-02-05"}, {L"de_DE", L"12.25.2020", "2020-12-25"},
      {L"de_DE", L"5 march 20", "2020-03-05"},      {L"fr_CH", L"1/2-2020", "2020-02-01"},
      {L"de_DE", L"2020-02-01", "2020-02-01"},      {L"hi_IN", L"1 2 2020", "2020-02-01"},
      {L"ja_JP", L"20/2/1", "2020-02-01"},          {L"en_US", L"1/2/2020", "2020-01-02"},
      {L"en_US", L"2020 JANUARY 5", "2020-01-05"},  {L"en_US", L"25/12/2020", "2020-12-25"},
      {L"en_US", L"Jan 5, 2020", "2020-01-05"},     {L"en_US", L"1/2/29", "2029-01-02"},
      {L"en_US", L"Feb 2020", "2020-02-01"},        {L"en_US", L"1/2/30", "1930-01-02"},
      {L"en_US", L"1/1/123456789", "mismatch"},     {L"en_US", L"3/2020", "2020-03-01"},
      {L"en_US", L"2/30/99999", "mismatch"},        {L"en_US", L"1/1/99999", "overflow"},
      {L"en_US", L"5 Foo 2020", "mismatch"},        {L"en_US", L"12 AM", "1899-12-30"}};
  for (const auto& [locale, text, date] : rows) {
    ASSERT_TRUE(SetUserLocale(locale));
    EXPECT_EQ(Parsed(text), date) << Utf8(locale) << " " << Utf8(text);
  }
}

TEST(DateText, IsWrittenInTheShortFormWithTheWholeYearAndReadAgainInEveryLocale) {
  EXPECT_EQ(VarDateToStr(43835.0), L"1/5/2020");
  EXPECT_EQ(VarDateToStr(0.75), L"6:00:00 PM");
  EXPECT_EQ(VarDateToStr(0.0), L"12:00:00 AM");
  for (const wchar_t* locale : {L"en_US", L"fr_CH", L"hi_IN", L"da_DK", L"fi_FI", L"ja_JP", L"ko_KR",
                                L"zh_CN", L"hu_HU", L"ru_RU", L"en_GB", L"de_DE"}) {
    ASSERT_TRUE(SetUserLocale(locale));
    for (const DATE date : {43835.0, 43835.0 + 47109.0 / 86400, 20000.75, 0.25, 0.0, -1.25, -400000.5}) {
      DATE back = 99.0;
      const CString text = VarDateToStr(date);
      EXPECT_EQ(VarDateFromStr(text, &back), DateResult::ok) << Utf8(locale) << " " << text.ToUtf8();
      EXPECT_NEAR(back, date, 1e-7) << Utf8(locale) << " " << text.ToUtf8();
    }
  }
  EXPECT_EQ(VarDateToStr(43835.25), L"05.01.2020 06:00:00");
}

}  // namespace
