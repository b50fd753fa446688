#pragma once

#include <string_view>

#include "core/Export.h"
#include "platform/Types.h"

namespace coregui {

/// 32 bits of the first text that is not empty; never 0. The hash is FNV-1a.
DWORD SerialFromIdentity(std::string_view machineId, std::string_view hostName);

/// Sets the environment variable "USERNAME" from the account's login name when the desktop has not set it.
/// Called once at start-up.
COREGUI_API void SetUpUserName();

}  // namespace coregui
