#pragma once

#include "views/CPlotMapping.h"
#include "views/CPlotSeries.h"
#include "views/CPolylineSink.h"

namespace coregui {

/// Puts what can be seen of a series into the sink: the same picture as all its points joined in order, from
/// a number of points that depends on the pixels and hardly on the data. Only what is visible is looked at,
/// plus a few nodes per level of the series' pyramid. Where x turns back, stretches that neither stay in one
/// pixel column or row nor lie beyond one side of the visible rectangle are drawn point by point.
///
/// The picture is the same dot for dot for solid pens one pixel wide, and for wider ones with round joins
/// where a pixel is a dot, in copy mode. A line that is all on one pixel gives nothing.
COREGUI_API void ReduceSeries(const CPlotSeries& series, const CPlotMapping& mapping, CPolylineSink& sink);

/// The points of a series whose x is monotone that a visible rectangle needs: those inside and one more on
/// each side, from `first` to before `last`. False when x turns back or the series has gaps.
COREGUI_API bool FindVisible(const CPlotSeries& series, const CPlotMapping& mapping, CRect const& visible,
                             std::size_t* first, std::size_t* last);

}  // namespace coregui
