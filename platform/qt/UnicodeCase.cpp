#include <QChar>

#include "platform/UnicodeText.h"

namespace coregui {

wchar_t UpperCase(wchar_t character) {
  if (character < 0x80) return character >= L'a' && character <= L'z' ? character - (L'a' - L'A') : character;
  return static_cast<wchar_t>(QChar::toUpper(static_cast<char32_t>(character)));
}

wchar_t LowerCase(wchar_t character) {
  if (character < 0x80) return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
  return static_cast<wchar_t>(QChar::toLower(static_cast<char32_t>(character)));
}

int DigitValue(wchar_t character) {
  if (character < 0x80) return character >= L'0' && character <= L'9' ? character - L'0' : -1;
  return QChar::digitValue(static_cast<char32_t>(character));
}

}  // namespace coregui
