#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Geometry.h"
#include "platform/qt/Surface.h"

namespace coregui {

/// Draws a polyline with smooth edges inside `clip`: every dot is coloured by the share of it that lies
/// within half a `width` of the line, measured on the places of CoverageMask. However often the line passes a
/// place, it counts once: a line looks the same however many points describe it.
///
/// `points` are pairs in dots, x and y, (0, 0) the upper left corner of the surface; anything but a finite
/// number in a pair ends a piece of the line. Ends and corners are round. A piece that stays on one spot
/// draws nothing.
void DrawSmoothLine(Surface& surface, const CRect& clip, std::uint32_t colour, double width,
                    const double* points, std::size_t count);

}  // namespace coregui
