#pragma once

#include <limits>
#include <vector>

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// Takes the device points of polylines and keeps the parts that can be seen, ready to draw in one call.
///
/// A segment is left out when both its ends lie beyond the same side of the visible rectangle. The rest keeps
/// its points, except that ends beyond four million pixels are pulled in along the segment: rasterisers lose
/// their precision, or their patience, there.
class COREGUI_API CPolylineSink {
 public:
  /// `visible` must allow for the pen's width.
  explicit CPolylineSink(CRect const& visible) : m_visible(visible) {}

  /// The next point of the polyline at hand; one equal to the last is left out.
  void Add(CPoint p);
  /// Ends the polyline at hand.
  void Break();

  /// Of a sink that leaves out nothing.
  static CRect Everywhere() {
    constexpr LONG least = std::numeric_limits<LONG>::min();
    constexpr LONG most = std::numeric_limits<LONG>::max();
    return {least, least, most, most};
  }

  const CRect& GetVisible() const { return m_visible; }
  /// All points of all polylines, and how many each has (2 at least).
  const std::vector<POINT>& GetPoints() const { return m_points; }
  const std::vector<DWORD>& GetCounts() const { return m_counts; }

 private:
  bool IsHidden(CPoint a, CPoint b) const;
  void AddSegment(CPoint a, CPoint b);
  void CloseRun();

  CRect m_visible;
  std::vector<POINT> m_points;
  std::vector<DWORD> m_counts;
  DWORD m_run = 0;  ///< points of the run at hand that are in m_points already
  bool m_started = false;
  CPoint m_last;
};

}  // namespace coregui
