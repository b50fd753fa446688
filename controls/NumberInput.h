#pragma once

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

/// What a person typed as a number. Accepted are
/// - a plain number in the user's locale: its decimal sign, its groups of three ("1.250,5" in German; blanks
///   and apostrophes divide groups everywhere; "12,34,567" in India and its neighbours), the exponent, any
///   minus sign and any script's decimal digits;
/// - a point as decimal sign in every locale, where it cannot be one of the locale's group signs ("2.5" in
///   German is two and a half, "2.500" two thousand five hundred);
/// - an expression of such numbers without groups (see coreEvaluateExpression; ';' or ',' parts arguments,
///   only ';' where the comma is the decimal sign).
/// False, with `value` unchanged, for what is none or has no finite value.
COREGUI_API bool ParseNumberInput(const CString& text, double& value);

}  // namespace coregui
