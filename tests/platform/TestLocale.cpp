#include <gtest/gtest.h>

#include <optional>

#include "platform/Locale.h"

namespace {

using coregui::FormatNumberText;
using coregui::ParseCurrency;
using coregui::SetUserLocale;

TEST(Locale, TextsFollowTheNamedLocale) {
  struct Row {
    const wchar_t* locale;
    const wchar_t* text;  ///< of -1234567.5 to two digits
    int currencyDigits;
  };
  constexpr Row rows[] = {
      {L"en_US", L"-1,234,567.50", 2},           {L"C", L"-1,234,567.50", 2},
      {L"de_DE", L"-1.234.567,50", 2},           {L"de_CH", L"-1\u2019234\u2019567.50", 2},
      {L"fr_CH", L"-1\u202F234\u202F567,50", 2}, {L"hi_IN", L"-1,234,567.50", 2},
      {L"sv_SE", L"-1\u00A0234\u00A0567,50", 2}, {L"ja_JP", L"-1,234,567.50", 0},
  };
  for (const Row& row : rows) {
    ASSERT_TRUE(SetUserLocale(row.locale)) << CString(row.locale).ToUtf8();
    EXPECT_EQ(FormatNumberText(L"-1234567.5", 2).ToUtf8(), CString(row.text).ToUtf8())
        << CString(row.locale).ToUtf8();
    EXPECT_EQ(coregui::GetUserLocale().currencyDigits, row.currencyDigits) << CString(row.locale).ToUtf8();
  }
}

TEST(Locale, UnknownNameChangesNothing) {
  SetUserLocale(L"de_DE");
  const auto version = coregui::GetUserLocaleVersion();
  EXPECT_FALSE(SetUserLocale(L"xx_YY"));
  EXPECT_FALSE(SetUserLocale(L"de_QQ"));
  EXPECT_EQ(coregui::GetUserLocale().name, L"de_DE");
  EXPECT_EQ(coregui::GetUserLocaleVersion(), version);
  EXPECT_TRUE(SetUserLocale(L"de"));
  EXPECT_NE(coregui::GetUserLocaleVersion(), version);
}

TEST(NumberText, RoundsHalfAwayFromZeroOnTheDigitsThemselves) {
  struct Row {
    const wchar_t* number;
    int decimals;
    const wchar_t* text;
  };
  constexpr Row rows[] = {
      {L"0.5", 0, L"1"},          {L"-0.5", 0, L"-1"},     {L"2.5", 0, L"3"},
      {L"0.49999", 0, L"0"},      {L"1.005", 2, L"1.01"},  {L"999.995", 2, L"1,000.00"},
      {L"99.99", 1, L"100.0"},    {L".5", 1, L"0.5"},      {L"-.004", 2, L"0.00"},
      {L"-0", 0, L"0"},           {L"007", 0, L"7"},       {L"5.", 2, L"5.00"},
      {L"123456", 0, L"123,456"}, {L"1234", -3, L"1,234"}, {L"0.1", 20, L"0.10000000000000000000"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FormatNumberText(row.number, row.decimals), row.text) << CString(row.number).ToUtf8();
  }
}

TEST(NumberText, WhatIsNotPlainGivesNothing) {
  for (const wchar_t* text :
       {L"", L"-", L".", L"-.", L"+1", L"1 ", L" 1", L"1e5", L"1.2.3", L"1,000", L"--1", L"inf"}) {
    EXPECT_TRUE(FormatNumberText(text, 2).IsEmpty()) << CString(text).ToUtf8();
  }
}

TEST(NumberText, IsCutOffAt255Characters) {
  EXPECT_EQ(FormatNumberText(L"1", 253).GetLength(), 255);
  EXPECT_TRUE(FormatNumberText(L"1", 254).IsEmpty());
  EXPECT_EQ(FormatNumberText(CString(L'9', 191), 0).GetLength(), 254);
  EXPECT_EQ(FormatNumberText(CString(L'9', 191) + L".9", 0).GetLength(), 255);  // the carry adds a digit
  EXPECT_TRUE(FormatNumberText(CString(L'9', 192) + L".9", 0).IsEmpty());
  EXPECT_TRUE(FormatNumberText(CString(L'9', 300), 0).IsEmpty());
  EXPECT_EQ(FormatNumberText(CString(L'0', 300), 0), L"0");
}

TEST(NumberText, SignsAndZerosFollowTheSettings) {
  coregui::UserLocale locale;
  locale.negative = L"~~";
  locale.thousands = L"";
  locale.decimal = L"::";
  locale.leadingZero = false;
  const wchar_t* expected[] = {L"(.5)", L"~~.5", L"~~ .5", L".5~~", L".5 ~~"};
  for (int order = 0; order < 5; ++order) {
    locale.negativeOrder = order;
    SetUserLocale(locale);
    CString text = expected[order];
    text.Replace(L".", L"::");
    EXPECT_EQ(FormatNumberText(L"-0.5", 1), text) << order;
  }
  EXPECT_EQ(FormatNumberText(L"0", 0), L"0");
  EXPECT_EQ(FormatNumberText(L"1234", 0), L"1234");
}

std::optional<std::int64_t> Currency(const wchar_t* text) {
  std::int64_t value = 0;
  return ParseCurrency(text, value) ? std::optional(value) : std::nullopt;
}

TEST(Currency, IsReadLeniently) {
  EXPECT_EQ(Currency(L"12.75"), 127500);
  EXPECT_EQ(Currency(L"$1,234.5"), 12345000);
  EXPECT_EQ(Currency(L" ( $ 1 ) "), -10000);
  EXPECT_EQ(Currency(L"-$2"), -20000);
  EXPECT_EQ(Currency(L"$-2"), -20000);
  EXPECT_EQ(Currency(L"2-"), -20000);
  EXPECT_EQ(Currency(L"0.00005"), 1);
  EXPECT_EQ(Currency(L"0.00004999"), 0);
  EXPECT_EQ(Currency(L"-0.99995"), -10000);
  EXPECT_EQ(Currency(L"922337203685477.5807"), INT64_MAX);
  SetUserLocale(L"de_DE");
  EXPECT_EQ(Currency(L"1.234,50 \u20AC"), 12345000);
  SetUserLocale(L"fr_CH");
  EXPECT_EQ(Currency(L"1 234,5 CHF"), 12345000);
}

TEST(Currency, RefusesWhatIsNoAmount) {
  for (const wchar_t* text : {L"", L"$", L"abc", L"1.2.3", L"(1", L"1)", L"--1", L"-1-", L"$1$", L"1 $ 2",
                              L"1.5x", L"922337203685477.58075", L"99999999999999999999", L"((1))"}) {
    EXPECT_FALSE(Currency(text).has_value()) << CString(text).ToUtf8();
  }
  EXPECT_FALSE(Currency(nullptr).has_value());
}

}  // namespace
