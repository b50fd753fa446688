#pragma once

#include <string>

#include "core/Export.h"

/// Works out an arithmetic expression, as "2*(3+sqrt(16))" or "sin(pi/6)", and sets `value` to the result.
///
/// The decimal sign is a point, whatever the locale, and a comma separates arguments. There are + - * / ^ and
/// brackets, comparisons, `a ? b : c`, the constants pi and e, and the functions sqrt, abs, exp, ln, log
/// (natural as ln), log10, log2, sin, cos, tan, asin, acos, atan, atan2 (radians), the hyperbolic ones, rint,
/// sign, min, max, sum and avg. False, with `value` untouched and `reason` (where given) saying why, for what
/// is no such expression, is longer than 4096 characters, or has no finite result.
COREGUI_API bool coreEvaluateExpression(const wchar_t* expression, double& value,
                                        std::wstring* reason = nullptr);
