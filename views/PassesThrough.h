#pragma once

#include "core/Export.h"
#include "views/CPlotSeries.h"
#include "views/FRect.h"

namespace coregui {

/// True when the line of a series passes through a world rectangle or touches its edge; a point between two
/// gaps is no line. Looks only where the series' bounds reach the rectangle, so it is fast in large data too.
COREGUI_API bool PassesThrough(const CPlotSeries& series, FRect const& part);

}  // namespace coregui
