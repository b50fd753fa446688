#pragma once

#include "views/CPlotMapping.h"
#include "views/CPlotSeries.h"

namespace coregui {

/// The drawable point of a series nearest to a pixel, not farther than so many pixels; the first of several.
/// False when there is none. Looks only where the series' bounds come near, so it is fast in large data too.
COREGUI_API bool FindPoint(const CPlotSeries& series, const CPlotMapping& mapping, CPoint at, int pixels,
                           std::size_t* index);

}  // namespace coregui
