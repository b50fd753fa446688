#pragma once

#include <string>
#include <string_view>

namespace coregui {

/// UTF-8 as wide text. A byte that is no part of a well-formed sequence is read as Windows-1252.
std::wstring WideFromUtf8(std::string_view text);
/// Wide text as UTF-8; what is no Unicode character becomes U+FFFD.
std::string Utf8FromWide(std::wstring_view text);

/// One character's other case by the Unicode tables; itself where there is none or it takes several
/// characters.
wchar_t UpperCase(wchar_t character);
wchar_t LowerCase(wchar_t character);
/// The value of a decimal digit of any script; -1 for another character.
int DigitValue(wchar_t character);

}  // namespace coregui
