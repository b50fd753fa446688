#include "SectionLook.h"

#include <cmath>

namespace desk {

SectionColors SectionColors::Of(bool printing) {
  if (!printing && IsDarkTheme()) {
    return {RGB(30, 32, 36),    RGB(214, 216, 220), RGB(58, 62, 68), RGB(196, 152, 92), RGB(240, 96, 96),
            RGB(214, 160, 110), RGB(92, 62, 44),    RGB(40, 74, 52), RGB(96, 168, 255)};
  }
  return {RGB(255, 255, 255), RGB(32, 32, 32),    RGB(226, 228, 230), RGB(134, 92, 40), RGB(206, 24, 24),
          RGB(150, 92, 40),   RGB(250, 222, 196), RGB(206, 234, 212), RGB(0, 96, 208)};
}

void InvalidateStation(CGUIBaseView& view, double chainage) {
  constexpr LONG kHalfWidth = 3;  // pixels, with the smooth edges
  if (std::isfinite(chainage)) {
    const LONG at = view.UserToWindow({chainage, 0.0}).x;
    CRect line = view.GetClientRectangle();
    if (at > line.left - kHalfWidth && at < line.right + kHalfWidth) {
      line.left = at - kHalfWidth;
      line.right = at + kHalfWidth + 1;
      view.InvalidateRect(&line);
    }
  }
}

PlotTextStyle RulerText(COLORREF colour) {
  PlotTextStyle style;
  style.colour = colour;
  style.height = 7.0;
  return style;
}

CSize PlaceBetween(const CWnd& view, const CRect& margins) {
  const CRect client = view.GetClientRectangle();
  const int dpi = view.GetDpi();
  return {client.Width() - (margins.left + margins.right) * dpi / 72,
          client.Height() - (margins.top + margins.bottom) * dpi / 72};
}

}  // namespace desk
