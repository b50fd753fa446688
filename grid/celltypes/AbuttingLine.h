#pragma once

#include "core/Export.h"
#include "platform/Geometry.h"

class CDC;

namespace coregui {

/// Draws a level or upright line, one pixel wide and without its end point, that others of its colour stand
/// right beside: glyphs and wide borders are made of such. With the selected pen, which has that colour; but
/// where a pixel is no whole number of dots, where pens would leave seams, as a rectangle.
COREGUI_API void DrawAbuttingLine(CDC& dc, CPoint from, CPoint to);

}  // namespace coregui
