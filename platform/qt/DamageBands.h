#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace coregui {

/// Which dots of a picture changed: from where to where in each band of a few rows. Noting costs next to
/// nothing, however often a page is drawn in small pieces, and pieces far from each other stay apart.
class DamageBands {
 public:
  /// Whether there was nothing before and is something now. Dots outside the picture may be named.
  bool Add(const CRect& dots) {
    const bool first = m_bounds.IsRectEmpty();
    m_bounds.UnionRect(m_bounds, dots);
    if (!dots.IsRectEmpty()) AddToBands(dots);
    return first && !m_bounds.IsRectEmpty();
  }
  bool IsEmpty() const { return m_bounds.IsRectEmpty(); }
  /// What was noted since the last call, as rectangles that do not overlap, top to bottom.
  std::vector<CRect> Take();

 private:
  void AddToBands(const CRect& dots);

  struct Span {
    LONG left = 0;
    LONG right = 0;  ///< not after left: nothing
  };
  CRect m_bounds;
  std::vector<Span> m_bands;
};

}  // namespace coregui
