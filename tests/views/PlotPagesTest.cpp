#include "views/PlotPages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/CPrinterDC.h"
#include "tests/support/TestEnvironment.h"
#include "tests/views/ViewFixture.h"
#include "views/PassesThrough.h"

namespace {

using coregui::CPlotPages;
using coregui::CViewMapping;

CViewMapping Section() {
  CViewMapping mapping;
  mapping.extents.Set(0, 60, 300, 50);  // 300 m long, 10 m high
  mapping.margins = CRect(72, 36, 72, 36);
  return mapping;
}

TEST(PlotPages, AreTrueToScaleAndShowTheOverlapTwice) {
  // 1:500 makes 300 m 600 mm; a sheet of 250 mm less two inches shows 199.2 mm, and 189.2 mm more on each
  // further one.
  const CSize dots(2500, 1800);
  const CPlotPages pages(Section(), {500, 50, 1000, 10}, dots, CSize(254, 254));  // ten dots to a millimetre
  EXPECT_EQ(pages.GetColumns(), 4);
  EXPECT_EQ(pages.GetRows(), 2) << "1:50 makes 10 m 200 mm";
  const CViewMapping first = pages.GetMapping(0);
  EXPECT_EQ(first.UserToWindow({0, 60}), CPoint(254, 127)) << "the upper left corner stands at the margins";
  EXPECT_EQ(first.UserToWindow({50, 60}).x - 254, 1000) << "50 m are 100 mm";
  EXPECT_EQ(first.UserToWindow({0, 58}).y - 127, 400) << "2 m are 40 mm";
  const CViewMapping second = pages.GetMapping(1);
  EXPECT_EQ(first.UserToWindow({97, 55}).x - second.UserToWindow({97, 55}).x, 2500 - 2 * 254 - 100);
  EXPECT_EQ(second.UserToWindow({97, 55}).y, first.UserToWindow({97, 55}).y);
  EXPECT_LE(pages.GetMapping(3).UserToWindow({300, 55}).x, 2500 - 254) << "the end is on the last page";
  const FRect part = pages.GetPart(5);
  EXPECT_DOUBLE_EQ(part.GetLeft(), 94.6) << "the second column begins 189.2 mm in";
  EXPECT_DOUBLE_EQ(part.Width(), 99.6);
  EXPECT_NEAR(part.GetTop(), 60 - 0.05 * (154.6 - 10), 1e-9) << "the second row likewise";
}

TEST(PlotPages, ScalesThatCannotBeGiveNone) {
  // No room, all overlap, too many, nothing at all.
  const std::pair<CSize, PlotPageScale> rows[] = {{CSize(600, 600), {500, 50, 1000, 10}},
                                                  {CSize(2500, 1800), {500, 50, 1000, 500}},
                                                  {CSize(2500, 1800), {0.001, 50, 1000, 10}},
                                                  {CSize(2500, 1800), {0, 0, 0, 0}}};
  for (const auto& [page, scale] : rows)
    EXPECT_EQ(CPlotPages(Section(), scale, page, CSize(254, 254)).GetCount(), 0);
}

class PlotPrinting : public coregui::test::ViewTest {
 protected:
  /// What the pages of a printed document hold.
  static bool Holds(int page, const char* text) {
    const std::string name = page == 1 ? "/section.svg" : "/section-" + std::to_string(page) + ".svg";
    std::stringstream bytes;
    bytes << std::ifstream(coregui::test::ScratchFolder() + name).rdbuf();
    return bytes.str().find(text) != std::string::npos;
  }
};

TEST_F(PlotPrinting, EveryPageOfADocumentHasItsPartOfTheDrawingOrIsLeftOut) {
  // A road of 100 m that climbs 10 m: two pages wide, three high at 1:20.
  const CPlotSeries road({{0, 0}, {50, 2}, {100, 10}});
  view->SetMargins(CRect(36, 36, 36, 36));
  view->InitView(FRect(0, 10, 100, 0), 1.0);
  view->AddLayer(0, [&road](CGUIBaseView& plot) {
    plot.ClipToDrawing(true);
    plot.PlotPolyline(road);
    for (const double x : {5.0, 95.0})
      plot.PlotText({x, x < 50 ? 0.2 : 9.6}, coregui::FormatPlotNumber(x, 1, PlotNumberFormat::chainage));
    plot.ClipToDrawing(false);
    plot.PlotText(plot.WindowToUser(50, 50), CString::Formatted(L"Sheet %d of %d", plot.GetPrintPage().number,
                                                                plot.GetPrintPage().count));
  });
  const PlotPageScale scale{200, 20, 1000, 10};
  const auto print = [&](const PLOT_PART_FILTER& isDrawn) {
    CPrinterDC dc(PrintOutput::svg, CString::FromUtf8(coregui::test::ScratchFolder() + "/section.svg"),
                  {297, 210, 300});
    EXPECT_TRUE(dc.StartDoc(L"Section"));
    const int printed = coregui::PrintToScale(*view, dc, scale, isDrawn);
    EXPECT_EQ(dc.EndDoc(), printed > 0);
    return printed;
  };
  EXPECT_EQ(print({}), 6) << "the view alone knows what it draws";
  EXPECT_EQ(print([](FRect const&) { return false; }), 0);
  EXPECT_EQ(print([&road](FRect const& part) { return coregui::PassesThrough(road, part); }), 4);
  EXPECT_TRUE(Holds(1, "0+095")) << "the upper left page is empty, so the right one is first";
  EXPECT_TRUE(Holds(1, "Sheet 1 of 4") && Holds(4, "Sheet 4 of 4"));
  EXPECT_TRUE(Holds(3, "0+005") && !Holds(3, "0+095"));
}

TEST(PassesThrough, AsTheLegsOneByOneSay) {
  // Zigzags with gaps, in order and turning back, over several levels of the pyramid.
  for (const bool monotone : {true, false}) {
    std::vector<PNT_2D_record> points;
    for (int i = 0; i < 700; ++i) {
      const double x = monotone ? i : 350 + 340 * std::sin(i * 0.7);
      points.push_back({x, (i * i * 13 + i * 7) % 101 * 1.0});
    }
    for (const std::size_t gap : {15U, 16U, 64U, 400U}) points[gap] = {0.0, std::nan("")};
    points[500].x = -std::numeric_limits<double>::infinity();
    const CPlotSeries series(points);
    ASSERT_EQ(series.IsMonotone(), monotone);
    int touched = 0;
    for (int i = 0; i < 600; ++i) {
      const double left = (i * 37) % 720 - 10.0;
      const double bottom = (i * 53) % 120 - 10.0;
      const FRect part(left, bottom, left + i % 3 * 0.6, bottom + i % 4 * 0.5);
      bool expected = false;
      for (std::size_t leg = 0; leg + 1 < points.size() && !expected; ++leg) {
        expected = coregui::PassesThrough(CPlotSeries({points[leg], points[leg + 1]}), part);
      }
      touched += expected ? 1 : 0;
      ASSERT_EQ(coregui::PassesThrough(series, part), expected) << i << (monotone ? " in order" : "");
    }
    EXPECT_GT(touched, 60);
    EXPECT_LT(touched, 540);
  }
}

TEST(PassesThrough, ALegCrossesTouchesOrPassesBy) {
  const double gap = std::nan("");
  const std::pair<std::vector<PNT_2D_record>, bool> rows[] = {
      {{}, false},
      {{{0.5, 0.5}}, false},  // one point is no line
      {{{0.5, 0.5}, {gap, 0}, {0.6, 0.5}}, false},
      {{{-1, 0.5}, {2, 0.6}}, true},
      {{{0.2, 0.2}, {0.3, 0.3}}, true},
      {{{-1, 1}, {0, 1}}, true},
      {{{-1, 1.5}, {1.5, -1}}, true},
      {{{-1, 0.9}, {0.9, -1}}, false},  // by the corner
      {{{0.5, 2}, {0.5, 1.1}}, false},
      {{{2, 0.5}, {2, 0.5}}, false}};
  for (const auto& [line, passes] : rows) {
    EXPECT_EQ(coregui::PassesThrough(CPlotSeries(line), FRect(0, 0, 1, 1)), passes)
        << (line.empty() ? 0.0 : line[0].y);
  }
}

}  // namespace
