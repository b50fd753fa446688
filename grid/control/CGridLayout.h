#pragma once

#include "platform/Geometry.h"

class CGridInfo;

namespace coregui {

/// Where the parts of a grid stand in its client area. An empty rectangle: the part is hidden.
struct CGridLayout {
  CRect body;
  CRect topHeading;
  CRect sideHeading;
  CRect corner;
  CRect vScroll;
  CRect hScroll;
  CRect tabs;

  bool operator==(const CGridLayout&) const = default;
  /// The headings stand above and left of the body, the scroll bars right of and below it, the tabs left of
  /// the horizontal bar. A scroll bar is there when it has a width and the sheet does not fit without it.
  static CGridLayout Of(const CGridInfo& info, CSize client);
};

}  // namespace coregui
