#include "SectionData.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
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

/// Nothing for a column that the table does not have.
template <class Value>
void Reorder(std::vector<Value>& values, const std::vector<std::size_t>& order) {
  if (!values.empty()) {
    std::vector<Value> ordered;
    ordered.reserve(order.size());
    for (const std::size_t at : order) {
      ordered.push_back(values[at]);
    }
    values = std::move(ordered);
  }
}

/// What follows from the levels in their order; `rows` is how many the table has.
void FillSection(SectionData& data, long rows, std::vector<PNT_2D_record> grounds,
                 std::vector<PNT_2D_record> designs) {
  data.points.assign(static_cast<std::size_t>(rows), -1);
  for (std::size_t point = 0; point < data.rows.size(); ++point) {
    data.points[static_cast<std::size_t>(data.rows[point])] = static_cast<long>(point);
  }
  std::vector<PNT_2D_record> differences;
  differences.reserve(designs.size());
  for (std::size_t point = 0; point < designs.size(); ++point) {
    differences.push_back({grounds[point].x, grounds[point].y - designs[point].y});
  }
  data.extents = BoundsOf({&grounds, &designs});
  data.differenceExtents = BoundsOf({&differences});
  data.differenceExtents.SetLeft(data.extents.GetLeft());
  data.differenceExtents.SetRight(data.extents.GetRight());
  data.ground = CPlotSeries(std::move(grounds));
  data.design = CPlotSeries(std::move(designs));
  data.difference = CPlotSeries(std::move(differences));
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
  std::vector<PNT_2D_record> grounds;
  std::vector<PNT_2D_record> designs;
  for (long row = 0; row < rows; ++row) {
    if (const double chainage = number(data.columns.chainage, row); std::isfinite(chainage)) {
      data.rows.push_back(row);
      grounds.push_back({chainage, number(data.columns.ground, row)});
      if (data.columns.design >= 0) {
        designs.push_back({chainage, number(data.columns.design, row)});
      }
    }
  }
  const auto before = [](const PNT_2D_record& a, const PNT_2D_record& b) { return a.x < b.x; };
  if (!std::is_sorted(grounds.begin(), grounds.end(), before)) {
    std::vector<std::size_t> order(grounds.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return before(grounds[a], grounds[b]); });
    Reorder(data.rows, order);
    Reorder(grounds, order);
    Reorder(designs, order);
  }
  FillSection(data, rows, std::move(grounds), std::move(designs));
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
