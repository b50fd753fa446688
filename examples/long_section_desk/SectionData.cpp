#include "SectionData.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "SurveyGrid.h"

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

bool NameHas(const std::wstring& heading, std::initializer_list<std::wstring_view> words) {
  const std::wstring lower = CString(heading).MakeLower().Str();
  return std::any_of(words.begin(), words.end(),
                     [&lower](std::wstring_view word) { return lower.find(word) != std::wstring::npos; });
}

/// The bounds of the points that are whole, a twentieth of their height added above and below.
FRect BoundsOf(const std::vector<const std::vector<PNT_2D_record>*>& lines) {
  FRect bounds;
  bool any = false;
  for (const auto* line : lines) {
    for (const PNT_2D_record& point : *line) {
      if (std::isfinite(point.x) && std::isfinite(point.y)) {
        any ? bounds.Expand(point) : bounds.Set(point, point);
        any = true;
      }
    }
  }
  const double room = bounds.Height() > 0.0 ? bounds.Height() * 0.05 : 1.0;
  bounds.SetTop(bounds.GetTop() + room);
  bounds.SetBottom(bounds.GetBottom() - room);
  if (bounds.Width() == 0.0) {
    bounds.SetLeft(bounds.GetLeft() - 1.0);
    bounds.SetRight(bounds.GetRight() + 1.0);
  }
  return bounds;
}

}  // namespace

SectionColumns FindSectionColumns(const std::vector<std::wstring>& headings,
                                  const std::vector<bool>& numeric) {
  SectionColumns columns;
  std::vector<int> free;
  std::vector<int> levels;
  for (int col = 0; col < static_cast<int>(headings.size()); ++col) {
    const auto column = static_cast<std::size_t>(col);
    const std::wstring& heading = headings[column];
    if (!numeric[column]) {
      continue;
    }
    if (columns.chainage < 0 && NameHas(heading, {L"chainage", L"station", L"kilomet", L"distance", L"pk"})) {
      columns.chainage = col;
    } else if (columns.design < 0 &&
               NameHas(heading, {L"design", L"gradient", L"finished", L"projet", L"soll"})) {
      columns.design = col;
    } else if (NameHas(heading, {L"level", L"elev", L"height", L"h\u00F6he", L"altitude", L"ground"})) {
      levels.push_back(col);
    } else {
      free.push_back(col);
    }
  }
  const auto takeFree = [&free]() {
    const int col = free.empty() ? -1 : free.front();
    free.erase(free.begin(), free.begin() + (free.empty() ? 0 : 1));
    return col;
  };
  if (columns.chainage < 0) {
    columns.chainage = takeFree();
  }
  columns.ground = levels.empty() ? takeFree() : levels.front();
  if (columns.design < 0 && levels.size() > 1) {
    columns.design = levels[1];
  }
  return columns;
}

SectionData TakeSection(SurveyGrid& grid) {
  SectionData data;
  data.columns = FindSectionColumns(grid.Dialect().headings, grid.Dialect().numeric);
  const long rows = grid.GetNumberRows();
  if (data.columns.chainage < 0 || data.columns.ground < 0 || rows == 0) {
    return data;
  }
  const auto number = [&grid](int col, long row) {
    double value = 0.0;
    return col >= 0 && grid.NumberAt(col, row, value) ? value : kNothing;
  };
  std::vector<std::pair<double, long>> order;
  for (long row = 0; row < rows; ++row) {
    if (const double chainage = number(data.columns.chainage, row); std::isfinite(chainage)) {
      order.emplace_back(chainage, row);
    }
  }
  std::sort(order.begin(), order.end());
  data.points.assign(static_cast<std::size_t>(rows), -1);
  data.rows.reserve(order.size());
  std::vector<PNT_2D_record> grounds;
  std::vector<PNT_2D_record> designs;
  std::vector<PNT_2D_record> differences;
  grounds.reserve(order.size());
  for (const auto& [chainage, row] : order) {
    data.points[static_cast<std::size_t>(row)] = static_cast<long>(data.rows.size());
    const double ground = number(data.columns.ground, row);
    data.rows.push_back(row);
    grounds.push_back({chainage, ground});
    if (data.columns.design >= 0) {
      const double design = number(data.columns.design, row);
      designs.push_back({chainage, design});
      differences.push_back({chainage, ground - design});
    }
  }
  data.extents = BoundsOf({&grounds, &designs});
  data.differenceExtents = BoundsOf({&differences});
  data.differenceExtents.SetLeft(data.extents.GetLeft());
  data.differenceExtents.SetRight(data.extents.GetRight());
  data.ground = CPlotSeries(std::move(grounds));
  data.design = CPlotSeries(std::move(designs));
  data.difference = CPlotSeries(std::move(differences));
  return data;
}

long SectionData::NearestPoint(double chainage) const {
  const std::vector<PNT_2D_record>& all = ground.GetPoints();
  if (all.empty() || !std::isfinite(chainage)) {
    return -1;
  }
  const auto after =
      std::lower_bound(all.begin(), all.end(), chainage,
                       [](const PNT_2D_record& point, double value) { return point.x < value; });
  if (after == all.begin()) {
    return 0;
  }
  const auto before = after - 1;
  const bool takeBefore = after == all.end() || chainage - before->x <= after->x - chainage;
  return static_cast<long>((takeBefore ? before : after) - all.begin());
}

long SectionData::PointOfRow(long row) const {
  return row >= 0 && row < static_cast<long>(points.size()) ? points[static_cast<std::size_t>(row)] : -1;
}

}  // namespace desk
