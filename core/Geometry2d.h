#pragma once

#include "core/Export.h"
#include "core/LINE_2D_record.h"
#include "core/PNT_2D_record.h"

COREGUI_API void tg_set_pnt_2d(PNT_2D_record& point, double x, double y);

COREGUI_API void tg_set_line_2d(LINE_2D_record& line, double startX, double startY, double endX, double endY);
COREGUI_API void tg_set_line_2d(LINE_2D_record& line, const PNT_2D_record& start, const PNT_2D_record& end);

/// Clips a line to the window that two opposite corners span, in any order, its border included. True when
/// part of the line lies in the window: `line` is that part, its direction kept; an end that lies inside is
/// not touched, and none lies outside by a rounding error. Otherwise false, and `line` is as it was. A line
/// that is only a point is in or out; the window may be flat or a point. An infinite coordinate counts as the
/// largest finite number, and with one that is not a number nothing is in.
COREGUI_API bool tg_clipwindow(const PNT_2D_record& corner, const PNT_2D_record& oppositeCorner,
                               LINE_2D_record& line);
