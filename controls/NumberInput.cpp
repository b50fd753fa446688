#include "controls/NumberInput.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "core/Expression.h"
#include "core/Utf8.h"
#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr wchar_t kNoBreakSpace = 0xA0;
constexpr wchar_t kNarrowNoBreakSpace = 0x202F;
constexpr wchar_t kApostrophe = 0x2019;
constexpr wchar_t kMinus = 0x2212;

bool IsDigit(wchar_t character) {
  return character >= L'0' && character <= L'9';
}

/// The zeros of the scripts whose decimal digits are typed by input methods.
wchar_t PlainDigit(wchar_t character) {
  constexpr wchar_t kZeros[] = {0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66,
                                0x0BE6, 0x0C66, 0x0CE6, 0x0D66, 0x0E50, 0xFF10};
  for (const wchar_t zero : kZeros) {
    if (character >= zero && character < zero + 10) return static_cast<wchar_t>(L'0' + (character - zero));
  }
  return character;
}

wchar_t PlainSign(wchar_t character) {
  switch (character) {
    case kMinus:
    case 0xFF0D:
      return L'-';
    case 0xD7:
      return L'*';
    case 0xF7:
      return L'/';
    case 0x066B:
    case 0xFF0E:
      return L'.';
    case kNoBreakSpace:
    case kNarrowNoBreakSpace:
    case L'\t':
      return L' ';
    case kApostrophe:
      return L'\'';
    default:
      return PlainDigit(character);
  }
}

wchar_t DecimalSign() {
  const CString& decimal = GetUserLocale().decimal;
  return decimal.IsEmpty() ? L'.' : decimal[0];
}

/// The locale's group sign where it is '.' or ','; the others mean the same everywhere.
wchar_t GroupSign() {
  const CString& thousands = GetUserLocale().thousands;
  const wchar_t sign = thousands.IsEmpty() ? L'\0' : thousands[0];
  return sign == L'.' || sign == L',' ? sign : L'\0';
}

bool DividesGroups(wchar_t character) {
  return character == L' ' || character == L'\'' || (character != L'\0' && character == GroupSign());
}

/// Whether the user's country parts the digits before the last three in twos ("12,34,567").
bool GroupsByTwo() {
  const CString country = GetUserLocale().name.Right(3);
  return country == L"_IN" || country == L"_BD" || country == L"_NP" || country == L"_BT";
}

bool AreGroups(const std::vector<std::size_t>& sizes) {
  if (sizes.size() == 1) return true;
  const std::size_t inner = sizes.size() > 2 && sizes[1] == 2 && GroupsByTwo() ? 2 : 3;
  return sizes.front() > 0 && sizes.front() <= inner && sizes.back() == 3 &&
         std::all_of(sizes.begin() + 1, sizes.end() - 1, [inner](std::size_t size) { return size == inner; });
}

/// Takes the group signs out of the digits before the decimal sign; false when they do not part groups.
bool TakeGroupsOut(std::wstring& digits) {
  std::wstring plain;
  std::vector<std::size_t> sizes{0};
  for (const wchar_t character : digits) {
    if (IsDigit(character)) {
      plain += character;
      ++sizes.back();
    } else if (DividesGroups(character)) {
      sizes.push_back(0);
    } else {
      return false;
    }
  }
  if (!AreGroups(sizes)) return false;
  digits = plain;
  return true;
}

bool ToDouble(const std::wstring& text, double& value) {
  const std::string narrow = ToUtf8(text);
  double parsed = 0;
  const auto [end, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), parsed);
  if (error != std::errc() || end != narrow.data() + narrow.size() || !std::isfinite(parsed)) return false;
  value = parsed;
  return true;
}

/// A plain number: sign, grouped digits, decimals, exponent.
bool ParsePlain(std::wstring_view text, double& value) {
  std::wstring sign;
  if (!text.empty() && (text.front() == L'-' || text.front() == L'+')) {
    if (text.front() == L'-') sign = L"-";
    text.remove_prefix(1);
  }
  const std::size_t whole = text.find_first_not_of(L"0123456789 '.,");
  std::wstring digits(text.substr(0, whole));
  const std::wstring exponent(whole == std::wstring_view::npos ? L"" : text.substr(whole));
  if (!exponent.empty() && exponent[0] != L'e' && exponent[0] != L'E') return false;
  std::wstring decimals;
  std::size_t point = digits.rfind(DecimalSign());
  std::wstring grouped = digits;
  if (point == std::wstring::npos && !TakeGroupsOut(grouped)) point = digits.rfind(L'.');
  if (point != std::wstring::npos) {
    decimals = digits.substr(point + 1);
    grouped = digits.substr(0, point);
    if (decimals.find_first_not_of(L"0123456789") != std::wstring::npos || !TakeGroupsOut(grouped)) {
      return false;
    }
  }
  if (grouped.empty() && decimals.empty()) return false;
  return ToDouble(
      sign + (grouped.empty() ? L"0" : grouped) + L"." + (decimals.empty() ? L"0" : decimals) + exponent,
      value);
}

/// In the form of the evaluator, which knows no locale.
std::wstring PlainExpression(std::wstring text) {
  const wchar_t decimal = DecimalSign();
  for (wchar_t& character : text) {
    if (character == decimal) {
      character = L'.';
    } else if (character == L';') {
      character = L',';
    }
  }
  return text;
}

}  // namespace

bool ParseNumberInput(const CString& text, double& value) {
  std::wstring plain;
  for (const wchar_t character : text.Str()) plain += PlainSign(character);
  plain = CString(plain).Trim().Str();
  if (plain.empty()) return false;
  if (ParsePlain(plain, value)) return true;
  double result = 0;
  if (!coreEvaluateExpression(PlainExpression(plain).c_str(), result) || !std::isfinite(result)) return false;
  value = result;
  return true;
}

}  // namespace coregui
