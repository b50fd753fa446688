#include "controls/Chainage.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "controls/NumberInput.h"
#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr double kPerKilometre = 1000.0;
constexpr std::size_t kMetreDigits = 3;
constexpr std::size_t kMostKilometreDigits = 6;
constexpr const wchar_t* kDigits = L"0123456789";

bool IsDigits(const std::wstring& text) {
  return !text.empty() && text.find_first_not_of(kDigits) == std::wstring::npos;
}

/// Three digits, and decimals behind a point or the locale's sign.
bool ParseMetres(const std::wstring& text, double& metres) {
  if (text.size() < kMetreDigits || !IsDigits(text.substr(0, kMetreDigits))) return false;
  std::wstring decimals = text.substr(kMetreDigits);
  if (!decimals.empty()) {
    const CString& sign = GetUserLocale().decimal;
    if (decimals[0] != L'.' && (sign.IsEmpty() || decimals[0] != sign[0])) return false;
    decimals.erase(0, 1);
    if (!decimals.empty() && !IsDigits(decimals)) return false;
  }
  metres = std::stod(text.substr(0, kMetreDigits) + L"." + decimals + L"0");
  return true;
}

}  // namespace

bool ParseChainage(const CString& text, double& metres) {
  std::wstring plain = CString(text).Trim().Str();
  const bool negative = !plain.empty() && (plain[0] == L'-' || plain[0] == L'\u2212');
  if (negative || (!plain.empty() && plain[0] == L'+')) plain.erase(0, 1);
  const std::size_t plus = plain.find(L'+');
  const std::wstring kilometres = plain.substr(0, plus);
  if (plus == std::wstring::npos || !IsDigits(kilometres)) {
    return plus == std::wstring::npos && ParseNumberInput(text, metres);
  }
  double rest = 0;
  if (kilometres.size() > kMostKilometreDigits || !ParseMetres(plain.substr(plus + 1), rest)) return false;
  const double value = std::stod(kilometres) * kPerKilometre + rest;
  metres = negative ? -value : value;
  return true;
}

CString FormatChainage(double metres, int decimals) {
  constexpr double kTooFar = 1e9;
  constexpr int kMostDecimals = 6;
  if (!(std::abs(metres) < kTooFar)) return {};
  const int digits = std::clamp(decimals, 0, kMostDecimals);
  long long unit = 1;
  for (int i = 0; i < digits; ++i) unit *= 10;
  const long long all = std::llround(std::abs(metres) * static_cast<double>(unit));
  const long long perKilometre = static_cast<long long>(kPerKilometre) * unit;
  CString text = metres < 0 && all != 0 ? L"-" : L"";
  text.AppendFormat(L"%lld+%03lld", all / perKilometre, all % perKilometre / unit);
  if (digits > 0) {
    text += GetUserLocale().decimal;
    text.AppendFormat(L"%0*lld", digits, all % unit);
  }
  return text;
}

}  // namespace coregui
