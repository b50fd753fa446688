#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// A set of pixels as rectangles that do not overlap. Small by nature: an update or clip region.
class COREGUI_API Region {
 public:
  Region() = default;
  explicit Region(const CRect& rect) { Add(rect); }
  bool IsEmpty() const { return m_rects.empty(); }
  void Clear() { m_rects.clear(); }
  void Add(const CRect& rect);
  void Subtract(const CRect& rect);
  void Intersect(const CRect& rect);
  void Offset(int dx, int dy);
  bool Intersects(const CRect& rect) const;
  bool Contains(POINT point) const;
  CRect Bounds() const;  ///< all zero when empty
  const std::vector<CRect>& Rects() const { return m_rects; }

 private:
  std::vector<CRect> m_rects;
};

}  // namespace coregui
