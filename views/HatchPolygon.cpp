#include "views/HatchPolygon.h"

#include <algorithm>
#include <cmath>

#include "platform/CDC.h"

namespace coregui {

namespace {

/// Adds the parts of the lines a x + b y = k spacing, for every whole k.
void AddLines(const std::vector<PNT_2D_record>& polygon, double a, double b, double spacing,
              std::vector<PNT_2D_record>& parts) {
  const auto place = [=](PNT_2D_record const& p) { return a * p.x + b * p.y; };
  const auto [low, high] = std::minmax_element(
      polygon.begin(), polygon.end(),
      [&](PNT_2D_record const& p, PNT_2D_record const& q) { return place(p) < place(q); });
  const double last = std::floor(place(*high) / spacing);
  std::vector<PNT_2D_record> crossings;
  for (double k = std::ceil(place(*low) / spacing); k <= last; ++k) {
    const double line = k * spacing;
    crossings.clear();
    for (std::size_t i = 0; i < polygon.size(); ++i) {
      const PNT_2D_record& p = polygon[i];
      const PNT_2D_record& q = polygon[(i + 1) % polygon.size()];
      // A corner on the line belongs to one of its edges only.
      if ((place(p) <= line) != (place(q) <= line)) {
        const double t = (line - place(p)) / (place(q) - place(p));
        crossings.push_back({p.x + t * (q.x - p.x), p.y + t * (q.y - p.y)});
      }
    }
    std::sort(crossings.begin(), crossings.end(), [=](PNT_2D_record const& p, PNT_2D_record const& q) {
      return a * p.y - b * p.x < a * q.y - b * q.x;
    });
    parts.insert(parts.end(), crossings.begin(), crossings.end());
  }
}

}  // namespace

std::vector<PNT_2D_record> HatchPolygon(const std::vector<PNT_2D_record>& polygon, int hatch,
                                        double spacing) {
  std::vector<PNT_2D_record> parts;
  if (polygon.size() < 3 || !(spacing > 0.0)) {
    return parts;
  }
  if (hatch == HS_HORIZONTAL || hatch == HS_CROSS) AddLines(polygon, 0.0, 1.0, spacing, parts);
  if (hatch == HS_VERTICAL || hatch == HS_CROSS) AddLines(polygon, 1.0, 0.0, spacing, parts);
  if (hatch == HS_BDIAGONAL || hatch == HS_DIAGCROSS) AddLines(polygon, 1.0, 1.0, spacing, parts);
  if (hatch == HS_FDIAGONAL || hatch == HS_DIAGCROSS) AddLines(polygon, 1.0, -1.0, spacing, parts);
  return parts;
}

}  // namespace coregui
