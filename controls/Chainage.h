#pragma once

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

/// Reads a chainage: whole kilometres, '+', three digits of metres and perhaps decimals ("1+234.500" is
/// 1234.5 m), with a sign in front for what lies before the start. The decimal sign is a point or the
/// locale's. A plain number (ParseNumberInput) is metres. False, with `metres` unchanged, for what is none;
/// so is "1+23", which could be a sum.
COREGUI_API bool ParseChainage(const CString& text, double& metres);
/// Writes a chainage with 0 to 6 decimals, the last one rounded half away from zero, and the locale's decimal
/// sign. Empty for what is no finite number or is a million kilometres or more.
COREGUI_API CString FormatChainage(double metres, int decimals);

}  // namespace coregui
