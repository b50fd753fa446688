#include "grid/data/NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "grid/data/CGridCell.h"
#include "platform/Locale.h"

namespace {

/// The procedure as it is worded, by the C library and the platform.
std::string NaiveText(double number, const coregui::NumberForm& form) {
  std::string text(400 + static_cast<std::size_t>(std::max(form.decimals, 20)), '\0');
  const int size =
      std::snprintf(text.data(), text.size(), "%1.*f", form.fixedDecimals ? form.decimals : 20, number);
  text.resize(static_cast<std::size_t>(size));
  if (!form.fixedDecimals) {
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(0, text.find_first_not_of('0'));
  }
  if (!text.empty() && text.back() == '.') text.erase(text.find_last_not_of('.') + 1);
  if (text.empty()) text = "0";
  if (!form.userLocale) return text;
  const std::size_t point = text.rfind('.');
  const int digits = point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
  CString plain = CString::FromUtf8(text);
  const CString shown = coregui::FormatNumberText(plain, form.fixedDecimals ? form.decimals : digits);
  if (!shown.IsEmpty()) return shown.ToUtf8();
  plain.Replace(L".", coregui::GetUserLocale().decimal);
  return plain.ToUtf8();
}

std::vector<double> Numbers() {
  using Limits = std::numeric_limits<double>;
  std::vector<double> numbers = {
      0.0,  -0.0,   0.5,    1.5,     2.5,  -0.5,  0.125, 1.0,   10.0,     100.0, 1000.0,    999999.0,   1e15,
      9e15, 9.2e18, 9.3e18, -9.3e18, 1e22, 1e300, 5e-21, 1e-20, -4.9e-21, 1e-75, 1234.5678, -1234567.25};
  numbers.insert(numbers.end(),
                 {Limits::max(), Limits::min(), Limits::denorm_min(), Limits::infinity(), -Limits::infinity(),
                  Limits::quiet_NaN(), 9007199254740993.0, 0.99999999999999994, 999.99999999999994});
  std::mt19937_64 random(5);
  for (int i = 0; i < 4000; ++i) {
    numbers.push_back(std::bit_cast<double>(random()));
    numbers.push_back(
        static_cast<double>(static_cast<std::int64_t>(random() % 2'000'000'000) - 1'000'000'000) / 1000.0);
    numbers.push_back(std::ldexp(static_cast<double>(random() >> 11U), -static_cast<int>(random() % 130)));
  }
  return numbers;
}

void ExpectNaive() {
  coregui::CellText text;
  for (const double number : Numbers()) {
    for (const bool locale : {false, true}) {
      for (const int decimals : {-1, 0, 1, 3, 10, 11, 20, 25}) {
        const coregui::NumberForm form{decimals >= 0, std::max(decimals, 0), locale};
        coregui::WriteNumber(number, form, text);
        ASSERT_EQ(NaiveText(number, form), CString(text.View()).ToUtf8())
            << std::hexfloat << number << " decimals " << decimals << " locale " << locale;
      }
    }
  }
}

TEST(NumberText, EqualsThePrintedAndStrippedNumberInEveryLocaleAtOnce) {
  CGridCell cell;
  cell.SetNumber(1234.5);
  coregui::UserLocale locale;
  coregui::SetUserLocale(locale);
  ExpectNaive();
  EXPECT_STREQ(L"1,234.5", cell.GetText());
  locale.decimal = L",";
  locale.thousands = L"\x202F";
  locale.negative = L"\x2212";
  locale.leadingZero = false;
  coregui::SetUserLocale(locale);
  ExpectNaive();
  EXPECT_STREQ(
      L"1\x202F"
      L"234,5",
      cell.GetText());
  locale.thousands = L"";
  locale.negativeOrder = 3;
  coregui::SetUserLocale(locale);
  ExpectNaive();
}

TEST(NumberText, ReadsLeadingNumbersByTheUsersSeparators) {
  coregui::UserLocale locale;
  locale.decimal = L",";
  locale.thousands = L".";
  locale.currency = L"EUR";
  coregui::SetUserLocale(locale);
  const struct {
    const wchar_t* text;
    double number;
  } rows[] = {{L"", 0.0},
              {L"x", 0.0},
              {L"1.234,5", 1234.5},
              {L"EUR 12,75 net", 12.75},
              {L"-3,25", -3.25},
              {L"  +4", 4.0},
              {L"1e3", 1000.0},
              {L",5", 0.5},
              {L"5,", 5.0},
              {L"-", 0.0},
              {L"0,1", 0.1},
              {L"1,2,3", 1.2},
              {L"-0", -0.0},
              {L"123456789012345678", 123456789012345678.0},
              {L"0,30000000000000004", 0.30000000000000004}};
  for (const auto& row : rows)
    EXPECT_EQ(row.number, coregui::ReadNumber(row.text)) << CString(row.text).ToUtf8();
}

}  // namespace
