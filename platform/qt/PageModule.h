#pragma once

#include "platform/qt/late/PageDevices.h"

namespace coregui {

/// Loads the module with the first call; null when the installation lacks it.
const PageDevices* LoadPageDevices();

}  // namespace coregui
