#pragma once

#include <cstddef>
#include <vector>

#include "core/Export.h"
#include "core/PNT_2D_record.h"

namespace coregui {

/// Takes the points of a polyline and leaves out those that lie on the way: no point that was given is
/// further than `tolerance` from the line of those that are kept.
class COREGUI_API CLineStraightener {
 public:
  explicit CLineStraightener(double tolerance) : m_tolerance(tolerance) {}

  void Add(PNT_2D_record const& p);
  /// Ends the polyline at hand; a point of NaN stands for the gap.
  void Break();

  const std::vector<PNT_2D_record>& GetPoints() const { return m_points; }

 private:
  bool IsOnTheWay(PNT_2D_record const& way) const;
  void Narrow(PNT_2D_record const& way);

  const double m_tolerance;
  std::vector<PNT_2D_record> m_points;
  std::size_t m_waiting = 0;  ///< points since the last one kept; the last of them is m_last
  PNT_2D_record m_last{};
  PNT_2D_record m_left{};   ///< the ways from the point kept last that pass near enough to all waiting ones:
  PNT_2D_record m_right{};  ///< those between these two
  bool m_started = false;
};

}  // namespace coregui
