#pragma once

#include "views/CPlotMapping.h"
#include "views/CPlotSeries.h"
#include "views/CPolylineSink.h"

namespace coregui {

/// What a dashed line consists of, in pixels. Nothing is left out that the dashes are measured along.
struct DashedLine {
  CPolylineSink dashes;
  CPolylineSink solid;  ///< drawn without gaps
};

/// Puts together what a dashed pen draws of a series inside a visible rectangle.
///
/// The dashes begin at the line's first point, and anew at points of it that lie about two thousand pixels or
/// more apart. Which points these are depends on the zoom alone: the dashes stay on the line when the view
/// moves.
///
/// Between two of these points a line of up to `mostPoints` points is given point by point. Of a denser one
/// each stretch in one pixel column gives its first and its last point; where it goes up or down beyond them,
/// as far as it reaches is solid: going to and fro in one column, dashes fill each other's gaps.
COREGUI_API DashedLine ReduceDashes(const CPlotSeries& series, const CPlotMapping& mapping,
                                    CRect const& visible, std::size_t mostPoints);

}  // namespace coregui
