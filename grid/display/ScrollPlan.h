#pragma once

#include "core/Export.h"
#include "platform/CScrollBar.h"

namespace coregui {

class CGridAxis;

/// What a scroll bar shows for an axis: positions are the first entry in view, the page is what the last view
/// holds, so that the thumb is as long as the view and ends where the last entry is in full. Counts, not
/// pixels: all rows that 32 bits can count fit.
COREGUI_API SCROLLINFO PlanScroll(const CGridAxis& axis);
/// The move code (0 to 5) of a scroll code; -1 for those of the thumb and for the end of scrolling.
COREGUI_API int MoveCodeOf(int scrollCode);

}  // namespace coregui
