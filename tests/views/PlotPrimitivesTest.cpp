#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/CBitmap.h"
#include "platform/Locale.h"
#include "views/CPlotSheet.h"
#include "views/CViewMapping.h"
#include "views/HatchPolygon.h"

namespace {

using coregui::ChooseTicks;
using coregui::FormatPlotNumber;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A sheet of 200 x 100 pixels at 72 dots per inch, so that a point is a pixel; a world unit is one too, y
/// from 100 down.
class Sheet : public coregui::CPlotSheet {
 public:
  Sheet() {
    mapping.extents.Set(0, 100, 200, 0);
    mapping.now = {1.0, 1.0, 1.0, 0, 0, 72, 72};
  }
  void Begin(CDC& dc) { BeginPlot(dc, CRect(0, 0, 200, 100), CSize(72, 72)); }
  coregui::CViewMapping mapping;
  CRect drawing{0, 0, 200, 100};

 protected:
  const coregui::CPlotMapping& GetPlotMapping() const override { return mapping; }
  CRect GetDrawingArea() const override { return drawing; }
};

class PlotPrimitives : public ::testing::Test {
 protected:
  void SetUp() override { sheet.Begin(dc); }
  std::wstring Log() {
    std::wstring log = dc.GetLog().Str();
    dc.ClearLog();
    return log;
  }
  CRecordingDC dc{7, 13, CSize(200, 100)};
  Sheet sheet;
};

TEST_F(PlotPrimitives, DrawInWorldUnitsWithPensInPixelsAndPoints) {
  sheet.SetPlotPen({RGB(255, 0, 0), 2.4, PlotUnit::points, PS_DASH});
  sheet.PlotLine({10, 90}, {20, 80});
  EXPECT_EQ(Log(), L"Polyline 10,10 20,20 #FF0000 w2 style1");
  sheet.SetPlotPen({});
  sheet.SetPlotFill({PlotFill::Kind::hatched, RGB(0, 0, 255), HS_CROSS});
  sheet.PlotRectangle(FRect(10, 90, 30, 80));
  EXPECT_EQ(Log(),
            L"Polyline 30,16 10,16 #0000FF\nPolyline 16,10 16,20 #0000FF\nPolyline 24,10 24,20 #0000FF\n"
            L"Polyline 10,10 30,10 30,20 10,20 10,10 #000000");
}

TEST_F(PlotPrimitives, HatchesOnPaperAreLinesAsFarApartAsOnTheScreen) {
  sheet.EndPlot();
  sheet.BeginPlot(dc, CRect(0, 0, 200, 100), CSize(288, 288));  // three dots to a pixel
  struct Row {
    int hatch;
    const wchar_t* lines;
  };
  // A step with a notch, 8 pixels are 24 dots; the notch parts the lines through it.
  const Row rows[] = {{HS_HORIZONTAL,
                       L"Polyline 90,24 70,24 #0000FF w3\nPolyline 40,24 10,24 #0000FF w3\n"
                       L"Polyline 90,48 10,48 #0000FF w3"},
                      {HS_VERTICAL,
                       L"Polyline 24,20 24,60 #0000FF w3\nPolyline 48,40 48,60 #0000FF w3\n"
                       L"Polyline 72,20 72,60 #0000FF w3"}};
  for (const Row& row : rows) {
    sheet.SetPlotFill({PlotFill::Kind::hatched, RGB(0, 0, 255), row.hatch});
    sheet.PlotPolygon({{10, 80}, {40, 80}, {40, 60}, {70, 60}, {70, 80}, {90, 80}, {90, 40}, {10, 40}});
    const std::wstring log = Log();
    EXPECT_EQ(log.substr(0, log.rfind(L'\n')), row.lines);
  }
  const std::vector<PNT_2D_record> square = {{0, 0}, {30, 0}, {30, 30}, {0, 30}};
  const std::vector<PNT_2D_record> falling = coregui::HatchPolygon(square, HS_FDIAGONAL, 20);
  ASSERT_EQ(falling.size(), 6U);
  EXPECT_EQ(falling[2].x, falling[2].y) << "through the origin, down to the right";
  EXPECT_TRUE(coregui::HatchPolygon(square, HS_CROSS, 0).empty());
}

TEST_F(PlotPrimitives, WhatIsNotFiniteOrOutOfSightDrawsNothing) {
  for (const double bad : {kNaN, kInfinity, -kInfinity, 1e300}) {
    const PNT_2D_record p{bad, bad};
    sheet.PlotPoint(p);
    sheet.PlotLine(p, p);
    sheet.PlotText(p, L"x");
    sheet.PlotDimension(p, p, 5);
    sheet.PlotCircle(p, 5);
    sheet.PlotArc({5, 5}, kNaN, 0, bad);
    sheet.PlotEllipse({5, 5}, kNaN, bad);
    sheet.PlotBitmap(CBitmap(), FRect(bad, bad, 0, 0));
    sheet.PlotPolygon({p, p, p});
  }
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    sheet.PlotArrow({bad, 0}, {1, 1});
    sheet.PlotGrid(bad, -1.0);
  }
  sheet.PlotText({10, 10}, L"");
  sheet.PlotPolyline(std::vector<PNT_2D_record>{});
  sheet.PlotPolyline({{500, 500}, {600, 600}});
  EXPECT_EQ(dc.CountOf(L""), 0) << dc.GetLog().ToUtf8();
  sheet.EndPlot();
  sheet.PlotLine({10, 90}, {20, 80});
  sheet.PlotRuler(PlotSide::left);
  sheet.PlotTable({{}});
  EXPECT_EQ(dc.CountOf(L""), 0) << "and nothing at all outside BeginPlot and EndPlot";
}

TEST_F(PlotPrimitives, ACircleFollowsTheExaggeration) {
  sheet.mapping.now.vertRatio = 2.0;
  sheet.PlotCircle({50, 90}, 10);
  const std::wstring log = Log();
  EXPECT_NE(log.find(L"Polyline 60,20 "), std::wstring::npos) << "10 across";
  EXPECT_NE(log.find(L" 50,0 "), std::wstring::npos) << "20 up";
  EXPECT_NE(log.find(L" 50,40 "), std::wstring::npos);
}

TEST_F(PlotPrimitives, TextStandsOnItsAnchorWhateverItsAlignmentAndRotation) {
  PlotTextStyle style;
  style.height = 10;
  style.align = TA_CENTER | TA_TOP;
  sheet.SetPlotText(style);
  sheet.PlotText({50, 50}, L"four");
  EXPECT_EQ(Log().substr(0, 13), L"TextOut 36,50");
  style.rotation = 90;
  style.align = TA_RIGHT | TA_BOTTOM;
  sheet.SetPlotText(style);
  sheet.PlotText({50, 50}, L"four");
  // The cell is 28 x 13; turned upright its lower right corner is the upper one at the anchor.
  EXPECT_EQ(Log().substr(0, 13), L"TextOut 37,78");
  style = {};
  style.unit = PlotUnit::world;
  style.height = 0.3;
  sheet.SetPlotText(style);
  sheet.PlotText({50, 50}, L"four");
  EXPECT_EQ(Log(), L"") << "smaller than a pixel";
}

TEST_F(PlotPrimitives, DimensionsShowTheDistanceBesideTheLine) {
  sheet.PlotDimension({10, 50}, {60, 50}, 10);
  const std::wstring log = Log();
  EXPECT_NE(log.find(L"Polyline 10,40 60,40"), std::wstring::npos) << "to the left of the way is up";
  EXPECT_NE(log.find(L"\"50.000\""), std::wstring::npos);
}

TEST_F(PlotPrimitives, GridLinesStandAtTheMultiples) {
  sheet.drawing = CRect(20, 10, 180, 90);
  sheet.PlotGrid(50, 40);
  EXPECT_EQ(Log(),
            L"Polyline 50,10 50,90 #000000\nPolyline 100,10 100,90 #000000\nPolyline 150,10 150,90 #000000\n"
            L"Polyline 20,60 180,60 #000000\nPolyline 20,20 180,20 #000000");
  sheet.PlotGrid(1e-6, 0);
  EXPECT_EQ(Log(), L"") << "closer than pixels";
}

TEST_F(PlotPrimitives, SmoothLinesStandBetweenPixels) {
  sheet.SetPlotAntiAliasing(true);
  sheet.PlotPolyline({{10.5, 20.5}, {30.25, 40}});
  EXPECT_EQ(Log(), L"PolylineF 3 #000000");
  sheet.PlotPolyline({{10, 20}, {20, 20}, {kNaN, 0}, {30, 20}, {40, 20}});
  EXPECT_EQ(Log(), L"PolylineF 6 #000000") << "two lines at once, a gap behind each";
  std::vector<PNT_2D_record> straight(100000);
  for (std::size_t i = 0; i < straight.size(); ++i) {
    straight[i] = {static_cast<double>(i) * 0.001, 20 + static_cast<double>(i) * 0.0003};
  }
  sheet.PlotPolyline(straight);
  EXPECT_EQ(Log(), L"PolylineF 3 #000000") << "what lies on the way is left out";
  for (std::size_t i = 0; i < straight.size(); ++i) {
    straight[i] = {i % 2 == 0 ? 0.0 : 200.0, static_cast<double>(i) * 0.001};
  }
  sheet.PlotPolyline(straight);
  EXPECT_EQ(Log().substr(0, 9), L"Polyline ") << "millions of pixels to and fro on a few thousand";
}

TEST_F(PlotPrimitives, RulersMarkRoundValuesOutsideTheDrawing) {
  sheet.drawing = CRect(40, 10, 190, 80);
  PlotRulerStyle style;
  style.format = PlotNumberFormat::chainage;
  sheet.mapping.extents.Set(1160, 100, 1360, 0);
  sheet.PlotRuler(PlotSide::bottom, style);
  const std::wstring log = Log();
  EXPECT_NE(log.find(L"Polyline 40,80 190,80"), std::wstring::npos);
  EXPECT_NE(log.find(L"Polyline 40,80 40,85"), std::wstring::npos) << "1200 stands 40 pixels in";
  EXPECT_NE(log.find(L"\"1+200\""), std::wstring::npos);
  EXPECT_NE(log.find(L"\"1+350\""), std::wstring::npos);
  EXPECT_EQ(log.find(L"1+210"), std::wstring::npos);
}

TEST_F(PlotPrimitives, TableTextsThatWouldTouchAreLeftOut) {
  sheet.drawing = CRect(40, 10, 190, 40);
  const std::vector<PNT_2D_record> points = {{50, 1.25}, {53, 2},   {90, -3.5},
                                             {500, 9},   {kNaN, 4}, {100, kNaN}};
  sheet.PlotTable(
      {coregui::MakeStationRow(L"Station", points, 0), coregui::MakeLevelRow(L"Level", points, 2)});
  const std::wstring log = Log();
  EXPECT_NE(log.find(L"\"0+050\""), std::wstring::npos);
  EXPECT_EQ(log.find(L"\"0+053\""), std::wstring::npos) << "a cell of 13 pixels has no room 3 pixels on";
  EXPECT_NE(log.find(L"\"0+090\""), std::wstring::npos);
  EXPECT_EQ(log.find(L"\"0+500\""), std::wstring::npos) << "out of sight";
  EXPECT_NE(log.find(L"\"-3.50\""), std::wstring::npos);
  EXPECT_NE(log.find(L"\"Station\""), std::wstring::npos);
}

TEST(PlotTable, DifferencesAreTakenAlongTheLowerLine) {
  const PlotTableRow row =
      coregui::MakeDifferenceRow(L"", {{0, 5}, {5, 7}, {10, 9}, {11, 9}}, {{0, 1}, {10, 2}}, 2);
  ASSERT_EQ(row.entries.size(), 3U) << "none beyond the lower line";
  EXPECT_EQ(row.entries[0].text, L"4.00");
  EXPECT_EQ(row.entries[1].text, L"5.50");
  EXPECT_EQ(row.entries[2].text, L"7.00");
}

TEST(PlotRuler, StepsAreRoundAndFarEnoughApart) {
  struct Row {
    double from, to, pixels, gap, step, minor;
    std::size_t labels;
  };
  const Row rows[] = {{0, 100, 1000, 100, 10, 2, 11},
                      {0, 100, 1000, 101, 20, 5, 6},
                      {0, 100, 300, 60, 20, 5, 6},
                      {-0.35, 0.35, 700, 90, 0.1, 0.02, 7},
                      {100, 0, 250, 50, 20, 5, 6},
                      {12340, 12360, 400, 50, 5, 1, 5},
                      {1e9, 1e9 + 1, 1000, 100, 0.1, 0.02, 11}};
  for (const Row& row : rows) {
    const coregui::RulerTicks ticks = ChooseTicks(row.from, row.to, row.pixels, row.gap, 4);
    EXPECT_DOUBLE_EQ(ticks.step, row.step) << row.from << " " << row.to << " " << row.gap;
    EXPECT_DOUBLE_EQ(ticks.minorStep, row.minor) << row.from << " " << row.to;
    EXPECT_EQ(ticks.labels.size(), row.labels) << row.from << " " << row.to;
  }
  for (const double bad : {kNaN, kInfinity}) {
    EXPECT_TRUE(ChooseTicks(0, bad, 100, 10, 4).labels.empty());
    EXPECT_TRUE(ChooseTicks(0, 100, bad, 10, 4).labels.empty());
  }
  EXPECT_TRUE(ChooseTicks(5, 5, 100, 10, 4).labels.empty());
  EXPECT_TRUE(ChooseTicks(0, 5, 0, 10, 4).labels.empty());
  EXPECT_TRUE(ChooseTicks(1e300, 1.1e300, 100, 10, 4).minors.size() < 200);
}

TEST(PlotRuler, NumbersShowWhatTheStepNeeds) {
  struct Row {
    double value, step;
    PlotNumberFormat format;
    int decimals;
    const wchar_t* text;
  };
  const auto plain = PlotNumberFormat::decimal;
  const auto chainage = PlotNumberFormat::chainage;
  const Row rows[] = {{1234.5, 0.5, plain, -1, L"1234.5"},
                      {20, 20, plain, -1, L"20"},
                      {0.30000000000000004, 0.1, plain, -1, L"0.3"},
                      {-1e-12, 0.1, plain, -1, L"0.0"},
                      {1234.5, 1, chainage, 3, L"1+234.500"},
                      {999.9996, 1, chainage, 3, L"1+000.000"},
                      {5, 1, chainage, 0, L"0+005"},
                      {-50, 10, chainage, 1, L"-0+050.0"},
                      {123456, 100, chainage, -1, L"123+456"},
                      {kNaN, 1, plain, -1, L""}};
  for (const Row& row : rows) {
    coregui::SetUserLocale(L"en_US");
    EXPECT_EQ(FormatPlotNumber(row.value, row.step, row.format, row.decimals), row.text);
    coregui::SetUserLocale(L"de_DE");
    CString german = row.text;
    german.Replace(L".", L",");
    EXPECT_EQ(FormatPlotNumber(row.value, row.step, row.format, row.decimals), german);
  }
}

}  // namespace
