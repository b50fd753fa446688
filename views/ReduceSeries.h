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

/// The same for smooth lines, whose points lie between pixels. A pixel has `places` places along each side, a
/// place 1 << kPlaceShift units; the sink, its visible rectangle included, is in these units, (0, 0) in the
/// middle of its pixel.
///
/// Inside one column of places a line that goes up and down becomes its first, lowest, highest and last
/// point. So every point of the drawn line is at most one place away from a point of the line, and the other
/// way round.
COREGUI_API void ReduceSeriesToPlaces(const CPlotSeries& series, const CPlotMapping& mapping, int places,
                                      CPolylineSink& sink);
inline constexpr int kPlaceShift = 2;

}  // namespace coregui
