#pragma once

#include "platform/CString.h"

namespace coregui {

/// The user's configuration folder, without a final '/'.
CString ConfigFolder();

}  // namespace coregui
