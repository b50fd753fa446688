#include "SheetPlan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

namespace {

using coregui::CViewMapping;

/// Ten dots a millimetre; 100 mm by 50 mm between the margins.
constexpr CSize kDots{254, 254};
constexpr CRect kMargins{72, 36, 72, 36};  // points: 254 and 127 dots
constexpr CRect kRoom{254, 127, 1254, 627};
constexpr CSize kPage{1508, 754};
constexpr double kTiny = 0.05;  // of a metre; a dot is 0.05 m along and 0.005 m upwards

constexpr PlotPageScale kScale{500.0, 50.0, 1000.0, 10.0};  // across, upwards, millimetres a unit, overlap

std::vector<CViewMapping> Plan(const std::vector<CPlotSeries>& lines, const PlotPageScale& scale = kScale) {
  CViewMapping view;
  view.margins = kMargins;
  view.extents = FRect(0.0, 1000.0, 140.0, -1000.0);
  std::vector<const CPlotSeries*> pointers;
  std::transform(lines.begin(), lines.end(), std::back_inserter(pointers),
                 [](const CPlotSeries& line) { return &line; });
  return desk::PlanSheets(view, scale, kPage, kDots, pointers);
}

CPlotSeries Line(const std::function<double(double)>& level) {
  std::vector<PNT_2D_record> points;
  for (int x = 0; x <= 140; x += 2) points.push_back({static_cast<double>(x), level(x)});
  return CPlotSeries(points);
}

TEST(SheetPlan, SheetsStandBehindOneAnotherTrueToScaleAndOverlap) {
  const auto sheets = Plan({Line([](double) { return 10.0; })});
  ASSERT_EQ(sheets.size(), 3U);  // 50 m each, 5 m of it twice
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    const PNT_2D_record corner = sheets[i].WindowToUser(kRoom.TopLeft());
    EXPECT_NEAR(corner.x, 45.0 * static_cast<double>(i), kTiny);
    EXPECT_NEAR(sheets[i].WindowToUserWidth(10), 0.5, 1e-9);
    EXPECT_NEAR(sheets[i].WindowToUserHeight(10), 0.05, 1e-9);
    EXPECT_NEAR(corner.y - 2.5, 8.0, kTiny);  // a round datum below the line
  }
  EXPECT_EQ(Plan({Line([](double) { return 0.0; }), Line([](double) { return 30.0; })}).size(), 6U)
      << "sheets between lines far apart are left out";
}

TEST(SheetPlan, EveryPartOfEveryLineStandsOnASheet) {
  struct Row {
    const char* name;
    std::function<double(double)> level;
    std::size_t sheets;
  };
  const auto nothing = std::nan("");
  const Row rows[] = {
      {"a slope changes the datum", [](double x) { return x * 0.04; }, 3},
      {"as high as a sheet", [](double x) { return std::fmod(x, 4.0) == 0.0 ? 0.0 : 2.5; }, 3},
      {"higher than a sheet", [](double x) { return std::fmod(x, 4.0) == 0.0 ? 0.0 : 4.0; }, 6},
      {"a gap over a whole sheet", [&](double x) { return x > 40.0 && x < 98.0 ? nothing : 5.0; }, 2},
      {"below zero", [](double x) { return -500.0 - x * 0.04; }, 3},
      {"none at all", [&](double) { return nothing; }, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const CPlotSeries line = Line(row.level);
    const auto sheets = Plan({line});
    EXPECT_EQ(sheets.size(), row.sheets);
    for (const PNT_2D_record& point : line.GetPoints()) {
      const bool shown = std::any_of(sheets.begin(), sheets.end(), [&point](const CViewMapping& sheet) {
        CRect room = kRoom;
        room.InflateRect(1, 1);  // a dot for rounding
        return room.PtInRect(sheet.UserToWindow(point));
      });
      EXPECT_EQ(shown, std::isfinite(point.y)) << point.x << " " << point.y;
    }
  }
}

TEST(SheetPlan, NoRoomOrTooManySheetsGiveNone) {
  const CPlotSeries line = Line([](double x) { return x; });
  for (const PlotPageScale& scale :
       {PlotPageScale{500.0, 50.0, 1000.0, 50.0}, {0.01, 50.0, 1000.0, 10.0}, {500.0, 0.01, 1000.0, 10.0}}) {
    EXPECT_TRUE(Plan({line}, scale).empty()) << scale.horizontal << " " << scale.vertical;
  }
  EXPECT_TRUE(Plan({}).empty());
}

}  // namespace
