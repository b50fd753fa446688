#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Export.h"

namespace coregui {

/// One character taken from bytes that should be UTF-8.
struct DecodedCharacter {
  char32_t value = 0;      ///< the character
  std::size_t length = 0;  ///< how many bytes it took, 1 to 4
  bool isUtf8 = true;      ///< false: the byte starts no valid sequence and was read as Windows-1252
};

/// The first character of `bytes`, which must not be empty. Overlong forms, surrogates, values above U+10FFFF
/// and sequences that break off are not UTF-8: their first byte is then one Windows-1252 character, and the
/// five bytes without a meaning there give the control character of the same number, so that nothing is lost.
COREGUI_API DecodedCharacter DecodeUtf8(std::string_view bytes);

/// Appends a character; where wide characters have 16 bits, as a surrogate pair if need be.
COREGUI_API void AppendCharacter(std::wstring& text, char32_t character);

/// Bytes as wide text, character by character as DecodeUtf8 reads them.
COREGUI_API std::wstring FromUtf8(std::string_view bytes);

/// Wide text as UTF-8. What is no Unicode character (a lone surrogate, say) becomes U+FFFD.
COREGUI_API std::string ToUtf8(std::wstring_view text);

/// A file's name or path as wide text. Names are bytes of any kind; one that is no part of valid UTF-8
/// becomes a lone surrogate, U+DC00 more than the byte.
COREGUI_API std::wstring FromFileName(std::string_view bytes);

/// The bytes of a file's name or path, those back for which FromFileName had to put a surrogate; for the rest
/// as ToUtf8.
COREGUI_API std::string ToFileName(std::wstring_view text);

}  // namespace coregui
