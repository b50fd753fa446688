#pragma once

#include <string_view>

#include "core/Export.h"
#include "grid/data/CellText.h"

namespace coregui {

/// How a number is written.
struct NumberForm {
  bool fixedDecimals =
      false;  ///< `decimals` digits after the separator; else as many as the number has, up to 20
  int decimals = 0;
  bool userLocale = true;  ///< with the user's separators and groups; else with '.' alone
};

/// The text of a number. Without fixed decimals it is the exact decimal value rounded to 20 places without
/// the zeros at its ends: 0.5 is ".5" until the user's locale puts a leading zero, and 0 is "0".
COREGUI_API void WriteNumber(double number, const NumberForm& form, CellText& text);

/// The number that a text begins with, read by the user's separators; currency symbols and group separators
/// are skipped.
COREGUI_API double ReadNumber(std::wstring_view text);

}  // namespace coregui
