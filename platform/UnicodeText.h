#pragma once

namespace coregui {

/// One character's other case by the Unicode tables; itself where there is none or it takes several
/// characters.
wchar_t UpperCase(wchar_t character);
wchar_t LowerCase(wchar_t character);
/// The value of a decimal digit of any script; -1 for another character.
int DigitValue(wchar_t character);

}  // namespace coregui
