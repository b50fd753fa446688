#pragma once

#include <cstdint>
#include <string>

#include "core/Export.h"

/// A number of bytes for reading: whole bytes below 1024, otherwise KB, MB or GB (units of 1024, 1024² and
/// 1024³ bytes) with two decimals and a point whatever the locale, as "1.50 KB". There is no larger unit than
/// GB.
COREGUI_API std::wstring coreGetSizeString(std::uint64_t bytes);
