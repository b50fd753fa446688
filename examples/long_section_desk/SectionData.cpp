#include "SectionData.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <string_view>

#include "SectionMaker.h"
#include "SurveyGrid.h"

namespace desk {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

bool NameHas(const std::wstring& heading, std::initializer_list<std::wstring_view> words) {
  const std::wstring lower = CString(heading).MakeLower().Str();
  return std::any_of(words.begin(), words.end(),
                     [&lower](std::wstring_view word) { return lower.find(word) != std::wstring::npos; });
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
  const SectionColumns columns = FindSectionColumns(grid.Dialect().headings, grid.Dialect().numeric);
  SectionMaker maker;
  maker.Begin(columns);
  const long rows = maker.HasColumns() ? grid.GetNumberRows() : 0;
  std::vector<double> numbers(grid.Dialect().headings.size());
  for (long row = 0; row < rows; ++row) {
    for (const int col : {columns.chainage, columns.ground, columns.design}) {
      double value = 0.0;
      if (col >= 0) {
        numbers[static_cast<std::size_t>(col)] = grid.NumberAt(col, row, value) ? value : kNothing;
      }
    }
    maker.Add(row, numbers);
  }
  const std::atomic<bool> neverStopped = false;
  return maker.Make(rows, neverStopped);
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
