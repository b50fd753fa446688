#include "platform/UnicodeText.h"

#include <array>
#include <cstdint>

namespace coregui {
namespace {

/// Windows-1252 for the bytes 0x80 to 0x9F; the five unused ones stay control characters.
constexpr std::array<wchar_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t FromWindows1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80U] : static_cast<wchar_t>(byte);
}

bool IsScalar(std::uint32_t code) {
  return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

/// The length of the well-formed sequence at the text's start and its character; 0 when there is none.
std::size_t DecodeSequence(std::string_view text, std::uint32_t& code) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  code = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return 0;
    code = (code << 6U) | (byte(i) & 0x3FU);
  }
  constexpr std::array<std::uint32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  return code >= kSmallest[length] && IsScalar(code) ? length : 0;
}

}  // namespace

std::wstring WideFromUtf8(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const unsigned char lead = static_cast<unsigned char>(text.front());
    std::uint32_t code = lead;
    std::size_t length = 1;
    if (lead >= 0x80) {
      length = DecodeSequence(text, code);
      if (length == 0) {
        code = static_cast<std::uint32_t>(FromWindows1252(lead));
        length = 1;
      }
    }
    wide += static_cast<wchar_t>(code);
    text.remove_prefix(length);
  }
  return wide;
}

std::string Utf8FromWide(std::wstring_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  const auto put = [&](std::uint32_t byte) { narrow += static_cast<char>(byte); };
  for (const wchar_t character : text) {
    std::uint32_t code = static_cast<std::uint32_t>(character);
    if (!IsScalar(code)) code = 0xFFFD;
    if (code < 0x80) {
      put(code);
    } else if (code < 0x800) {
      put(0xC0U | (code >> 6U));
      put(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
      put(0xE0U | (code >> 12U));
      put(0x80U | ((code >> 6U) & 0x3FU));
      put(0x80U | (code & 0x3FU));
    } else {
      put(0xF0U | (code >> 18U));
      put(0x80U | ((code >> 12U) & 0x3FU));
      put(0x80U | ((code >> 6U) & 0x3FU));
      put(0x80U | (code & 0x3FU));
    }
  }
  return narrow;
}

}  // namespace coregui
