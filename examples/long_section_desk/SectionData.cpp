#include "SectionData.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "SectionMaker.h"

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

SectionData TakeSection(CGridMem& cells, long rows, const SectionColumns& columns,
                        const std::atomic<bool>& stop) {
  SectionMaker maker;
  maker.Begin(columns);
  CGridCell cell;
  std::vector<double> numbers(
      static_cast<std::size_t>(std::max({columns.chainage, columns.ground, columns.design}) + 1));
  for (long row = 0; row < rows && maker.HasColumns() && !stop; ++row) {
    for (const int col : {columns.chainage, columns.ground, columns.design}) {
      if (col >= 0) {
        double value = 0.0;
        const bool isNumber = cells.GetCell(col, row, &cell) == 0 && cell.GetDataType() == CELLDATA_NUMBER &&
                              cell.GetNumber(&value) == 0;
        numbers[static_cast<std::size_t>(col)] = isNumber ? value : kNothing;
      }
    }
    maker.Add(row, numbers);
  }
  return maker.Make(rows, stop);
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
