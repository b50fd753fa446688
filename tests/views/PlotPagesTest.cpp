#include "views/PlotPages.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "platform/CPrinterDC.h"
#include "tests/support/TestEnvironment.h"
#include "tests/views/ViewFixture.h"

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
}

TEST(PlotPages, ScalesThatCannotBeGiveNone) {
  const CSize dpi(254, 254);
  EXPECT_EQ(CPlotPages(Section(), {500, 50, 1000, 10}, CSize(600, 600), dpi).GetCount(), 0) << "no room";
  EXPECT_EQ(CPlotPages(Section(), {500, 50, 1000, 500}, CSize(2500, 1800), dpi).GetCount(), 0)
      << "all overlap";
  EXPECT_EQ(CPlotPages(Section(), {0.001, 50, 1000, 10}, CSize(2500, 1800), dpi).GetCount(), 0) << "too many";
  EXPECT_EQ(CPlotPages(Section(), {0, 0, 0, 0}, CSize(2500, 1800), dpi).GetCount(), 0);
}

class PlotPrinting : public coregui::test::ViewTest {};

TEST_F(PlotPrinting, EveryPageOfADocumentHasItsPartOfTheDrawing) {
  const std::string path = coregui::test::ScratchFolder() + "/section.svg";
  view->SetMargins(CRect(36, 36, 36, 36));
  view->InitView(FRect(0, 10, 100, 0), 1.0);
  view->AddLayer(0, [](CGUIBaseView& plot) {
    plot.ClipToDrawing(true);
    for (const double x : {5.0, 95.0})
      plot.PlotText({x, 5}, coregui::FormatPlotNumber(x, 1, PlotNumberFormat::chainage));
  });
  CPrinterDC dc(PrintOutput::svg, CString::FromUtf8(path), {297, 210, 300});
  ASSERT_TRUE(dc.StartDoc(L"Section"));
  EXPECT_EQ(coregui::PrintToScale(*view, dc, {200, 200, 1000, 10}), 2);
  EXPECT_TRUE(dc.EndDoc());
  const auto content = [](const std::string& name) {
    std::stringstream text;
    text << std::ifstream(name).rdbuf();
    return text.str();
  };
  const std::string first = content(path);
  const std::string second = content(coregui::test::ScratchFolder() + "/section-2.svg");
  EXPECT_NE(first.find("0+005"), std::string::npos);
  EXPECT_EQ(first.find("0+095"), std::string::npos);
  EXPECT_NE(second.find("0+095"), std::string::npos);
}

}  // namespace
