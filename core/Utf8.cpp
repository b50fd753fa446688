#include "core/Utf8.h"

#include <array>
#include <cstdint>

namespace coregui {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCharacter = 0x10FFFF;

/// What Windows-1252 means by the bytes 0x80 to 0x9F (the mapping table published by the Unicode Consortium).
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Where the surrogates begin that stand for bytes.
constexpr char32_t kByteBase = 0xDC00;

constexpr bool IsByte(char32_t c) {
  return c >= kByteBase + 0x80 && c <= kByteBase + 0xFF;
}

constexpr bool IsSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

DecodedCharacter FromWindows1252(unsigned char byte) {
  const char32_t value = byte >= 0x80 && byte <= 0x9F ? kWindows1252[byte - 0x80U] : byte;
  return {value, 1, false};
}

/// Length of the sequence that a first byte announces; 0 for a byte that starts none.
std::size_t AnnouncedLength(unsigned char first) {
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

/// Takes one character of wide text, or what is none, joining surrogates where wide characters have 16 bits.
char32_t TakeCharacter(std::wstring_view text, std::size_t& index) {
  auto c = static_cast<char32_t>(text[index++]);
  if constexpr (sizeof(wchar_t) == 2) {
    c &= 0xFFFFU;
    if (c >= 0xD800 && c <= 0xDBFF && index < text.size()) {
      const char32_t low = static_cast<char32_t>(text[index]) & 0xFFFFU;
      if (low >= 0xDC00 && low <= 0xDFFF) {
        ++index;
        return 0x10000 + ((c - 0xD800) << 10U) + (low - 0xDC00);
      }
    }
  }
  return c;
}

void AppendUtf8(std::string& bytes, char32_t c) {
  const auto put = [&bytes](char32_t byte) { bytes += static_cast<char>(static_cast<unsigned char>(byte)); };
  const auto putTail = [&put, &c](unsigned shift) { put(0x80U | ((c >> shift) & 0x3FU)); };
  if (c > kLastCharacter || IsSurrogate(c)) c = kReplacement;
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0U | (c >> 6U));
    putTail(0);
  } else if (c < 0x10000) {
    put(0xE0U | (c >> 12U));
    putTail(6);
    putTail(0);
  } else {
    put(0xF0U | (c >> 18U));
    putTail(12);
    putTail(6);
    putTail(0);
  }
}

}  // namespace

DecodedCharacter DecodeUtf8(std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes[0]);
  if (first < 0x80) return {first, 1, true};
  const std::size_t length = AnnouncedLength(first);
  if (length == 0 || bytes.size() < length) return FromWindows1252(first);
  char32_t value = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0U) != 0x80U) return FromWindows1252(first);
    value = (value << 6U) | (next & 0x3FU);
  }
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  if (value < smallest[length] || value > kLastCharacter || IsSurrogate(value)) return FromWindows1252(first);
  return {value, length, true};
}

void AppendCharacter(std::wstring& text, char32_t character) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (character >= 0x10000) {
      text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10U));
      text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FFU));
      return;
    }
  }
  text += static_cast<wchar_t>(character);
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const DecodedCharacter character = DecodeUtf8(bytes);
    AppendCharacter(text, character.value);
    bytes.remove_prefix(character.length);
  }
  return text;
}

std::wstring FromFileName(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const DecodedCharacter character = DecodeUtf8(bytes);
    const auto byte = static_cast<unsigned char>(bytes[0]);
    AppendCharacter(text, character.isUtf8 ? character.value : kByteBase + byte);
    bytes.remove_prefix(character.length);
  }
  return text;
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) AppendUtf8(bytes, TakeCharacter(text, i));
  return bytes;
}

std::string ToFileName(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = TakeCharacter(text, i);
    if (IsByte(c)) {
      bytes += static_cast<char>(static_cast<unsigned char>(c & 0xFFU));
    } else {
      AppendUtf8(bytes, c);
    }
  }
  return bytes;
}

}  // namespace coregui
