#pragma once

#include <vector>

#include "core/Export.h"
#include "core/PNT_2D_record.h"

namespace coregui {

/// The parts inside a polygon of parallel lines, as pairs of ends: the lines of a hatch (HS_ value) whose
/// crossings with a row or column are `spacing` apart, counted from the origin so that neighbouring polygons
/// match. y grows downwards; where the polygon crosses itself it is filled by turns. Points must be finite.
COREGUI_API std::vector<PNT_2D_record> HatchPolygon(const std::vector<PNT_2D_record>& polygon, int hatch,
                                                    double spacing);

}  // namespace coregui
