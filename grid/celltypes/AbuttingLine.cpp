#include "grid/celltypes/AbuttingLine.h"

#include <cmath>

#include "platform/CDC.h"

namespace coregui {

void DrawAbuttingLine(CDC& dc, CPoint from, CPoint to) {
  const CPen* const pen = dc.GetCurrentPen();
  const double dots = dc.GetScaleFactor();
  if (dots != std::floor(dots) && pen != nullptr && pen->GetStyle() == PS_SOLID) {
    const bool level = from.y == to.y;
    const CRect line(from.x, from.y, level ? to.x : to.x + 1, level ? to.y + 1 : to.y);
    if (line.right > line.left && line.bottom > line.top) dc.FillSolidRect(line, pen->GetColor());
  } else {
    dc.MoveTo(from.x, from.y);
    dc.LineTo(to.x, to.y);
  }
}

}  // namespace coregui
