#pragma once

#include <vector>

#include "core/Export.h"
#include "core/PNT_2D_record.h"
#include "views/FRect.h"

namespace coregui {

/// The part of a polygon inside a rectangle; where it leaves and comes back it runs along the edge. Points
/// must be finite. `box` is in the polygon's own coordinates, whichever way they grow.
COREGUI_API std::vector<PNT_2D_record> ClipPolygon(std::vector<PNT_2D_record> polygon, FRect const& box);

}  // namespace coregui
