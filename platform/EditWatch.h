#pragma once

#include <functional>

#include "core/Export.h"

class CEdit;

namespace coregui {

/// Calls `changed` after every change of a one-line box's text, after the box's parent was told; until the
/// box's native window goes. Nothing for a box without one.
COREGUI_API void WatchEdit(CEdit& edit, std::function<void()> changed);

}  // namespace coregui
