#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// Where the tabs of sheets stand: side by side from the left, moved so far left that the current one is in
/// full, or starts at the left edge when it is wider than the area. `widths` are those of the tabs.
COREGUI_API std::vector<CRect> PlanTabs(const std::vector<int>& widths, int current, CSize area);

}  // namespace coregui
