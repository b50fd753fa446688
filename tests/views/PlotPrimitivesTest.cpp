#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

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
  void ExpectDrawn(std::initializer_list<const wchar_t*> calls,
                   std::initializer_list<const wchar_t*> others = {}) {
    const std::wstring log = Log();
    for (const wchar_t* call : calls) EXPECT_NE(log.find(call), std::wstring::npos) << CString(call).ToUtf8();
    for (const wchar_t* call : others)
      EXPECT_EQ(log.find(call), std::wstring::npos) << CString(call).ToUtf8();
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
  // A step with a notch, 8 pixels are 24 dots; the notch parts the lines through it.
  constexpr std::pair<int, const wchar_t*> rows[] = {
      {HS_HORIZONTAL,
       L"Polyline 90,24 70,24 #0000FF w3\nPolyline 40,24 10,24 #0000FF w3\n"
       L"Polyline 90,48 10,48 #0000FF w3"},
      {HS_VERTICAL,
       L"Polyline 24,20 24,60 #0000FF w3\nPolyline 48,40 48,60 #0000FF w3\n"
       L"Polyline 72,20 72,60 #0000FF w3"}};
  for (const auto& [hatch, lines] : rows) {
    sheet.SetPlotFill({PlotFill::Kind::hatched, RGB(0, 0, 255), hatch});
    sheet.PlotPolygon({{10, 80}, {40, 80}, {40, 60}, {70, 60}, {70, 80}, {90, 80}, {90, 40}, {10, 40}});
    const std::wstring log = Log();
    EXPECT_EQ(log.substr(0, log.rfind(L'\n')), lines);
  }
  const std::vector<PNT_2D_record> square = {{0, 0}, {30, 0}, {30, 30}, {0, 30}};
  const std::vector<PNT_2D_record> falling = coregui::HatchPolygon(square, HS_FDIAGONAL, 20);
  ASSERT_EQ(falling.size(), 6U);
  EXPECT_EQ(falling[2].x, falling[2].y) << "through the origin, down to the right";
  EXPECT_TRUE(coregui::HatchPolygon(square, HS_CROSS, 0).empty());
}

TEST_F(PlotPrimitives, WhatIsNotFiniteOrOutOfSightDrawsNothing) {
  PlotTextStyle text;
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
    text.height = bad;
    sheet.SetPlotText(text);
    sheet.PlotText({10, 10}, L"x");
    if (bad == 1e300) break;
    sheet.PlotLine({10, 10}, p);
    sheet.PlotArrow({bad, 0}, {1, 1});
    sheet.PlotGrid(bad, -1.0);
    sheet.PlotPoint({10, 10}, PlotMarker::plus, bad);
    sheet.PlotArrow({10, 10}, {20, 20}, bad);
    sheet.PlotDimension({10, 10}, {20, 20}, bad);
    sheet.PlotTitleBlock({L"Title"}, bad);
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

TEST_F(PlotPrimitives, RulersAndTablesOfAnySizeAreDrawn) {
  for (const double size : {kNaN, kInfinity, -kInfinity, 1e300}) {
    PlotRulerStyle ruler;
    ruler.tick = ruler.labelGap = size;
    ruler.title = L"title";
    for (const PlotSide side : {PlotSide::left, PlotSide::top}) sheet.PlotRuler(side, ruler);
    sheet.PlotTable({{L"row", size, true, {{50, L"50"}}}}, size);
    EXPECT_NE(Log(), L"");
  }
}

TEST_F(PlotPrimitives, ACircleFollowsTheExaggeration) {
  sheet.mapping.now.vertRatio = 2.0;
  sheet.PlotCircle({50, 90}, 10);
  ExpectDrawn({L"Polyline 60,20 ", L" 50,0 ", L" 50,40 "});  // 10 across, 20 up and down
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
  ExpectDrawn({L"Polyline 10,40 60,40", L"\"50.000\""});  // to the left of the way is up
  sheet.PlotDimension({60, 50}, {10, 50}, 10, L"back");
  ExpectDrawn({L"Polyline 60,60 10,60", L"TextOut 21,47"});  // below it, and never upside down
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
  // 1200 stands 40 pixels in.
  ExpectDrawn({L"Polyline 40,80 190,80", L"Polyline 40,80 40,85", L"\"1+200\"", L"\"1+350\""}, {L"1+210"});
}

TEST_F(PlotPrimitives, TableTextsThatWouldTouchAreLeftOut) {
  sheet.drawing = CRect(40, 10, 190, 40);
  const std::vector<PNT_2D_record> points = {{-9, 1},  {50, 1.25}, {53, 2},    {90, -3.5},
                                             {500, 9}, {kNaN, 4},  {100, kNaN}};
  sheet.PlotTable(
      {coregui::MakeStationRow(L"Station", points, 0), coregui::MakeLevelRow(L"Level", points, 2)});
  // A cell of 13 pixels has no room 3 pixels on; 500 and -9 are out of sight.
  ExpectDrawn({L"\"0+050\"", L"\"0+090\"", L"\"-3.50\"", L"\"Station\""},
              {L"\"0+053\"", L"\"0+500\"", L"\"-0+009\""});
}

TEST(PlotTable, DifferencesAreTakenAlongTheLowerLine) {
  const PlotTableRow row =
      coregui::MakeDifferenceRow(L"", {{0, 5}, {5, 7}, {10, 9}, {11, 9}}, {{0, 1}, {10, 2}}, 2);
  CString texts;
  for (const PlotTableEntry& entry : row.entries) texts += entry.text + L" ";
  EXPECT_EQ(texts, L"4.00 5.50 7.00 ") << "none beyond the lower line";
}

TEST(PlotRuler, StepsAreRoundAndFarEnoughApart) {
  constexpr std::tuple<double, double, double, double, double, double, std::size_t> rows[] = {
      {0, 100, 1000, 100, 10, 2, 11},        {0, 100, 1000, 101, 20, 5, 6}, {0, 100, 300, 60, 20, 5, 6},
      {-0.35, 0.35, 700, 90, 0.1, 0.02, 7},  {100, 0, 250, 50, 20, 5, 6},   {12340, 12360, 400, 50, 5, 1, 5},
      {1e9, 1e9 + 1, 500, 50, 0.1, 0.02, 11}};
  for (const auto& [from, to, pixels, gap, step, minor, labels] : rows) {
    SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to) + ", " + std::to_string(gap));
    const coregui::RulerTicks ticks = ChooseTicks(from, to, pixels, gap, 4);
    EXPECT_DOUBLE_EQ(ticks.step, step);
    EXPECT_DOUBLE_EQ(ticks.minorStep, minor);
    EXPECT_EQ(ticks.labels.size(), labels);
    for (const double label : ticks.labels)
      EXPECT_EQ(std::count(ticks.minors.begin(), ticks.minors.end(), label), 0);
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
  constexpr auto plain = PlotNumberFormat::decimal;
  constexpr auto chainage = PlotNumberFormat::chainage;
  constexpr std::tuple<double, double, PlotNumberFormat, int, const wchar_t*> rows[] = {
      {1234.5, 0.5, plain, -1, L"1234.5"},    {2000, 20, plain, -1, L"2000"},
      {0.1 + 0.2, 0.1, plain, -1, L"0.3"},    {-1e-12, 0.1, plain, -1, L"0.0"},
      {1234.5, 1, chainage, 3, L"1+234.500"}, {999.96, 1, chainage, 1, L"1+000.0"},
      {5, 1, chainage, 0, L"0+005"},          {-50, 10, chainage, 1, L"-0+050.0"},
      {123456, 9, chainage, -1, L"123+456"},  {kNaN, 1.0, chainage, -1, L""}};
  for (const auto& [value, step, format, decimals, text] : rows) {
    EXPECT_EQ(FormatPlotNumber(value, step, format, decimals), text);
  }
  coregui::SetUserLocale(L"de_DE");
  EXPECT_EQ(FormatPlotNumber(1234.5, 1, chainage, 3), L"1+234,500");
}

}  // namespace
