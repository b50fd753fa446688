#include <array>
#include <clocale>
#include <cstdint>
#include <cwchar>
#include <string_view>

#include "grid/data/NumberText.h"
#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr std::size_t EXACT_DIGITS = 15;

void ReplaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to) {
  if (from.empty()) return;
  for (std::size_t at = text.find(from); at != std::wstring::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

/// A number of at most 15 digits is a whole number below 2^53 divided by a power of ten below 10^22: one
/// exact operation on exact operands, so the result is the nearest double.
bool ReadShort(std::wstring_view text, double& number) {
  static constexpr std::array<double, EXACT_DIGITS + 1> POWERS{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool negative = !text.empty() && text.front() == L'-';
  if (negative) text.remove_prefix(1);
  if (text.empty() || text.size() > EXACT_DIGITS + 1) return false;
  std::uint64_t whole = 0;
  std::size_t digits = 0;
  std::size_t decimals = 0;
  bool behindPoint = false;
  for (const wchar_t character : text) {
    if (character == L'.' && !behindPoint) {
      behindPoint = true;
    } else if (character >= L'0' && character <= L'9') {
      whole = whole * 10 + static_cast<std::uint64_t>(character - L'0');
      ++digits;
      if (behindPoint) ++decimals;
    } else {
      return false;
    }
  }
  if (digits == 0 || digits > EXACT_DIGITS) return false;
  number = static_cast<double>(whole) / POWERS[decimals];
  if (negative) number = -number;
  return true;
}

/// The C library reads the process's separator; the text has '.' by now.
locale_t PlainLocale() {
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return plain;
}

}  // namespace

double ReadNumber(std::wstring_view text) {
  double number = 0.0;
  const UserLocale& locale = GetUserLocale();
  std::wstring plain(text);
  ReplaceAll(plain, locale.thousands.Str(), L"");
  ReplaceAll(plain, locale.currency.Str(), L"");
  if (locale.decimal != L".") ReplaceAll(plain, locale.decimal.Str(), L".");
  return ReadShort(plain, number) ? number : wcstod_l(plain.c_str(), nullptr, PlainLocale());
}

}  // namespace coregui
