#pragma once

#include <functional>

#include "platform/CFont.h"

/// Calls `visit` for each font family of the screen, in alphabetical order, until it returns false. Of the
/// record, the face name, the character set and the pitch-and-family byte are set: pitch in the low bits
/// (FIXED_PITCH or VARIABLE_PITCH), family in the high ones (FF_ROMAN, FF_SWISS, FF_MODERN, FF_SCRIPT,
/// FF_DECORATIVE or FF_DONTCARE), read from the font's own classification. False when `visit` ended it.
COREGUI_API bool EnumFontFamilies(const std::function<bool(const LOGFONT& family)>& visit);
