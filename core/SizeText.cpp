#include "core/SizeText.h"

#include <array>
#include <charconv>

namespace {

std::wstring WithUnit(std::uint64_t bytes, double unit, const wchar_t* name) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                 static_cast<double>(bytes) / unit, std::chars_format::fixed, 2);
  return std::wstring(digits.data(), end.ptr) + name;
}

}  // namespace

std::wstring coreGetSizeString(std::uint64_t bytes) {
  constexpr double kilo = 1024;
  if (bytes < 1024) return std::to_wstring(bytes) + L" bytes";
  // Kept: the unit is chosen before rounding, so that 1048575 bytes read "1024.00 KB".
  if (bytes < 1048576) return WithUnit(bytes, kilo, L" KB");
  if (bytes < 1073741824) return WithUnit(bytes, kilo * kilo, L" MB");
  return WithUnit(bytes, kilo * kilo * kilo, L" GB");
}
