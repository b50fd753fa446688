#include "views/ClipPolygon.h"

namespace coregui {

namespace {

using Points = std::vector<PNT_2D_record>;

/// Keeps what lies on one side of an axis-parallel line.
Points ClipToSide(const Points& polygon, double PNT_2D_record::*axis, double edge, bool keepAbove) {
  const auto inside = [&](PNT_2D_record const& p) { return keepAbove ? p.*axis >= edge : p.*axis <= edge; };
  Points kept;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const PNT_2D_record& from = polygon[(i + polygon.size() - 1) % polygon.size()];
    const PNT_2D_record& to = polygon[i];
    if (inside(from) != inside(to)) {
      const double t = (edge - from.*axis) / (to.*axis - from.*axis);
      PNT_2D_record crossing{from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t};
      crossing.*axis = edge;
      kept.push_back(crossing);
    }
    if (inside(to)) {
      kept.push_back(to);
    }
  }
  return kept;
}

}  // namespace

std::vector<PNT_2D_record> ClipPolygon(std::vector<PNT_2D_record> polygon, FRect const& box) {
  polygon = ClipToSide(polygon, &PNT_2D_record::x, box.GetLeft(), true);
  polygon = ClipToSide(polygon, &PNT_2D_record::x, box.GetRight(), false);
  polygon = ClipToSide(polygon, &PNT_2D_record::y, box.GetBottom(), true);
  return ClipToSide(polygon, &PNT_2D_record::y, box.GetTop(), false);
}

}  // namespace coregui
