#pragma once

#include <cstdint>

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

/// How the user writes numbers and dates. The user's own is read from the desktop at start; SetUserLocale
/// fixes another for a run. The data are the toolkit's.
struct UserLocale {
  CString name;              ///< "de_DE"
  CString decimal = L".";    ///< decimal separator
  CString thousands = L",";  ///< group separator, may be empty or a no-break space
  CString currency = L"$";   ///< currency symbol
  CString negative = L"-";   ///< minus sign that numbers are written with
  int negativeOrder = 1;     ///< 0 (1.1), 1 -1.1, 2 - 1.1, 3 1.1-, 4 1.1 -
  bool leadingZero = true;   ///< 0.5 rather than .5
  int currencyDigits = 2;
};

/// The locale in force. The reference stays valid; `GetUserLocaleVersion` changes with every SetUserLocale,
/// so that caches know.
COREGUI_API const UserLocale& GetUserLocale();
COREGUI_API std::uint32_t GetUserLocaleVersion();
/// By name ("de_DE", "fr_CH", "hi_IN"); an empty name takes the desktop's again. "C" writes as "en_US" does.
/// False, with nothing changed, for an unknown one.
COREGUI_API bool SetUserLocale(const wchar_t* name);
/// With these very settings, for tests and special needs; dates follow the locale in force.
COREGUI_API void SetUserLocale(const UserLocale& locale);

/// The locale's number text of `number`, which is plain: digits with an optional leading '-' and one '.'.
/// Rounds half away from zero to `decimals` digits after the separator, groups by 3; what is zero after
/// rounding has no sign. Empty when `number` is not plain or the result would take more than 255 characters.
/// Called for every read of a number cell: allocates nothing but the result.
COREGUI_API CString FormatNumberText(const CString& number, int decimals);

/// Currency text as 64-bit integer of ten-thousandths, rounded half away from zero; lenient about symbol,
/// groups, parentheses, blanks and where the sign stands. False for what is no amount or too large.
COREGUI_API bool ParseCurrency(const wchar_t* text, std::int64_t& tenThousandths);

}  // namespace coregui
