// Text on a raster: the cached glyphs against the toolkit's own drawing, extents, fonts.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "platform/FontFamilies.h"
#include "tests/platform/SurfaceDC.h"

namespace {

/// Draws every text by the toolkit's layout.
class ShapedTarget : public coregui::RasterTarget {
 public:
  using RasterTarget::RasterTarget;
  void Text(const coregui::DrawAttributes& with, int x, int y, const wchar_t* text, int length) override {
    TextByPainter(with, x, y, text, length);
  }
};

using coregui::test::SurfaceDC;
using ShapedDC = coregui::test::TargetDC<ShapedTarget>;

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF dark = RGB(30, 30, 36);

int CountInk(const coregui::Surface& surface, const CRect& dots, std::uint32_t ground = 0xFFFFFF) {
  int ink = 0;
  for (int y = std::max<LONG>(0, dots.top); y < std::min(dots.bottom, surface.Dots().cy); ++y) {
    for (int x = std::max<LONG>(0, dots.left); x < std::min(dots.right, surface.Dots().cx); ++x) {
      ink += (surface.Row(y)[x] & 0xFFFFFFU) != ground ? 1 : 0;
    }
  }
  return ink;
}

double MeanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int at = 0; at < a.width() * a.height(); ++at) {
    const QPoint dot(at % a.width(), at / a.width());
    sum += std::abs(qGreen(a.pixel(dot)) - qGreen(b.pixel(dot)));
  }
  return sum / (a.width() * a.height());
}

class TextDrawing : public testing::TestWithParam<double> {
 protected:
  std::shared_ptr<coregui::Surface> surface = std::make_shared<coregui::Surface>(CSize(300, 60), GetParam());
  SurfaceDC dc{surface};
};

INSTANTIATE_TEST_SUITE_P(Scales, TextDrawing, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST_P(TextDrawing, CachedGlyphs_LookLikeTheToolkitsLayout) {
  for (const bool light : {true, false}) {
    const auto other = std::make_shared<coregui::Surface>(CSize(300, 60), GetParam());
    ShapedDC shaped(other);
    for (CDC* context : {static_cast<CDC*>(&dc), static_cast<CDC*>(&shaped)}) {
      context->FillSolidRect(CRect(0, 0, 300, 60), light ? white : dark);
      context->SetBkMode(TRANSPARENT);
      context->SetTextColor(light ? RGB(0, 0, 0) : RGB(230, 230, 240));
      context->TextOut(5, 5, L"Chainage 1234.567, \u00C4\u00F6\u00DF \u20AC \u0416\u03A9", -1);
    }
    const std::uint32_t ground = light ? 0xFFFFFF : 0x1E1E24;
    EXPECT_GT(CountInk(*surface, CRect(0, 0, 1000, 1000), ground), 300);
    EXPECT_LT(MeanDifference(surface->Snapshot(), other->Snapshot()), 0.5) << "light " << light;
  }
}

TEST_P(TextDrawing, Extent_IsWhatDrawingCovers) {
  dc.SetBkColor(RGB(255, 255, 0));
  dc.SetTextColor(RGB(255, 255, 0));
  for (const wchar_t* text :
       {L"Wide WAVE 0.1", L"iiii", L"e\u0301a\u0301", L"\u05E9\u05DC\u05D5\u05DD", L" "}) {
    dc.FillSolidRect(CRect(0, 0, 300, 60), white);
    dc.SetBkColor(RGB(255, 255, 0));
    const CSize extent = dc.GetTextExtent(text, -1);
    EXPECT_GT(extent.cx, 0);
    dc.TextOut(20, 10, text, -1);
    const CSize dots(static_cast<LONG>(std::floor((20 + extent.cx) * GetParam() + 0.5)), 0);
    EXPECT_EQ(CountInk(*surface, CRect(dots.cx + 1, 0, 1000, 1000)), 0);
    EXPECT_EQ(dc.GetPixel(20, 10), RGB(255, 255, 0));
    EXPECT_EQ(dc.GetPixel(19 + extent.cx, 9 + extent.cy), RGB(255, 255, 0));
  }
}

TEST_P(TextDrawing, PartsOfAText_MeasureLikeTheWholeAtWholeScales) {
  if (GetParam() != std::floor(GetParam())) {
    EXPECT_GE(dc.GetTextExtent(L"AVATAR", 3).cx * 2 + 1, dc.GetTextExtent(L"AVAAVA", 6).cx);
    return;
  }
  EXPECT_EQ(dc.GetTextExtent(L"AVATAR", 2).cx + dc.GetTextExtent(L"ATAR", 4).cx,
            dc.GetTextExtent(L"AVATAR", 6).cx);
}

TEST_P(TextDrawing, Alignments_PlaceTheCellAtThePoint) {
  dc.SetBkColor(RGB(0, 0, 255));
  const CSize extent = dc.GetTextExtent(L"Mg", 2);
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
  const std::tuple<UINT, int, CPoint> rows[] = {
      {TA_LEFT | TA_TOP, 20, {100, 20}},
      {TA_RIGHT, 20, {100 - extent.cx, 20}},
      {TA_CENTER | TA_BOTTOM, 40, {100 - extent.cx / 2, 40 - extent.cy}},
      {TA_BASELINE, 40, {100, 40 - metrics.tmAscent}}};
  for (const auto& [align, y, corner] : rows) {
    dc.FillSolidRect(CRect(0, 0, 300, 60), white);
    dc.SetBkColor(RGB(0, 0, 255));
    dc.SetTextAlign(align);
    dc.TextOut(100, y, L"Mg", 2);
    int at = 0;
    while (at < 300 * 60 && dc.GetPixel(at % 300, at / 300) == white) ++at;
    EXPECT_EQ(CPoint(at % 300, at / 300), corner) << align;
  }
}

TEST_P(TextDrawing, AccessKeyLine_LiesUnderItsCharacter) {
  dc.SetBkMode(TRANSPARENT);
  RECT rect = CRect(10, 10, 200, 50);
  dc.DrawText(L"ii&ii", -1, &rect, DT_SINGLELINE);
  TEXTMETRIC metrics;
  dc.GetTextMetrics(&metrics);
  const int before = dc.GetTextExtent(L"ii", 2).cx;
  EXPECT_EQ(dc.GetPixel(10 + before, 10 + metrics.tmAscent + 1), 0U);
  EXPECT_EQ(dc.GetPixel(10 + before - 2, 10 + metrics.tmAscent + 1), white);
}

TEST_P(TextDrawing, DrawText_ClipsToItsRectangleUnlessToldNotTo) {
  RECT narrow = CRect(10, 10, 20, 40);
  dc.SetBkMode(TRANSPARENT);
  dc.DrawText(L"WWWWWWWW", -1, &narrow, DT_SINGLELINE);
  const int right = static_cast<int>(std::floor(20 * GetParam() + 0.5));
  EXPECT_EQ(CountInk(*surface, CRect(right, 0, 1000, 1000)), 0);
  EXPECT_GT(CountInk(*surface, CRect(0, 0, right, 1000)), 5);
  dc.DrawText(L"WWWWWWWW", -1, &narrow, DT_SINGLELINE | DT_NOCLIP);
  EXPECT_GT(CountInk(*surface, CRect(right, 0, 1000, 1000)), 5);
}

TEST(TextFonts, Fonts_FollowTheirPropertiesOnTheAddressOfADeletedOneToo) {
  const auto surface = std::make_shared<coregui::Surface>(CSize(200, 200), 1.0);
  SurfaceDC dc(surface);
  dc.SetBkMode(TRANSPARENT);
  const auto heightOf = [&](int points, LONG cell) {
    CFont font;
    LOGFONT wanted;
    wanted.lfHeight = cell;
    points > 0 ? font.CreatePointFont(points, L"") : font.CreateFontIndirect(wanted);
    dc.SelectObject(&font);
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    dc.SelectStockObject(StockObject::systemFont);
    return metrics.tmHeight;
  };
  TEXTMETRIC system;
  dc.GetTextMetrics(&system);
  EXPECT_EQ(heightOf(90, 0), system.tmHeight) << "9 points is the system's size";
  EXPECT_NEAR(heightOf(180, 0), 2 * system.tmHeight, 2);
  EXPECT_NEAR(heightOf(0, 40), 40, 2);
  CFont font;
  LOGFONT wanted;
  wanted.lfUnderline = 1;
  wanted.lfStrikeOut = 1;
  font.CreateFontIndirect(wanted);
  dc.SelectObject(&font);
  dc.TextOut(10, 10, L"    ", 4);
  const int width = dc.GetTextExtent(L"    ", 4).cx;
  EXPECT_GE(CountInk(*surface, CRect(10, 10, 10 + width, 60)), 2 * width);
  EXPECT_EQ(CountInk(*surface, CRect(10 + width, 0, 200, 200)), 0);
  dc.FillSolidRect(CRect(0, 0, 200, 200), white);
  LOGFONT turned;
  turned.lfEscapement = 900;
  font.CreateFontIndirect(turned);
  dc.SelectObject(&font);
  dc.TextOut(100, 150, L"Chainage", -1);
  EXPECT_GT(CountInk(*surface, CRect(95, 60, 130, 152)), 80) << "upwards from its point";
  EXPECT_EQ(CountInk(*surface, CRect(0, 153, 200, 200)) + CountInk(*surface, CRect(130, 0, 200, 200)), 0);
}

TEST(TextSafety, HugeAndOddTexts_AreMeasuredAndDrawnAndNotMixedUp) {
  const auto surface = std::make_shared<coregui::Surface>(CSize(100, 40), 1.0);
  ShapedDC shaped(surface);
  const std::wstring longText = L"\u05D0" + std::wstring(5000, L'x');
  const int longWidth = shaped.GetTextExtent(longText.c_str(), -1).cx;
  EXPECT_LT(shaped.GetTextExtent(L"\u05D0x", -1).cx * 1000, longWidth);
  EXPECT_EQ(shaped.GetTextExtent((longText + L"x").c_str(), -1).cx,
            longWidth + shaped.GetTextExtent(L"x", 1).cx);
  RECT rect = CRect(0, 0, 100, 40);
  shaped.SetBkMode(TRANSPARENT);
  shaped.DrawText(L"\n", -1, &rect, 0);
  EXPECT_EQ(CountInk(*surface, rect), 0);
  SurfaceDC dc(surface);
  dc.SetBkMode(TRANSPARENT);
  const std::wstring huge(3000000, L'x');
  EXPECT_GT(dc.GetTextExtent(huge.c_str(), -1).cx, 3000000);
  dc.TextOut(0, 0, huge.c_str(), -1);
  dc.DrawText(huge.c_str(), -1, &rect, DT_SINGLELINE | DT_END_ELLIPSIS);
  dc.DrawText(huge.c_str(), 100000, &rect, DT_WORDBREAK | DT_EDITCONTROL);
  EXPECT_EQ(dc.GetTextExtent(nullptr, -1).cx, 0);
  dc.TextOut(0, 0, nullptr, 5);
  const wchar_t odd[] = {0xD800, 0x1F600, 0x110000, 0xFFFF, 1, L'\t', 0x202E, L'a', 0};
  EXPECT_GT(dc.GetTextExtent(odd, -1).cx, 0);
  dc.TextOut(0, 20, odd, -1);
  EXPECT_GT(CountInk(*surface, rect), 50);
}

TEST(FontFamilies, Enumeration_GivesNamesBytesAndStops) {
  const std::map<std::wstring, int> known = {{L"DejaVu Serif", FF_ROMAN | VARIABLE_PITCH},
                                             {L"DejaVu Sans", FF_SWISS | VARIABLE_PITCH},
                                             {L"DejaVu Sans Mono", FF_MODERN | FIXED_PITCH}};
  int count = 0;
  EXPECT_TRUE(EnumFontFamilies([&](const LOGFONT& family) {
    EXPECT_FALSE(family.lfFaceName.IsEmpty());
    const int pitch = family.lfPitchAndFamily & 3;
    EXPECT_TRUE(pitch == FIXED_PITCH || pitch == VARIABLE_PITCH);
    const auto found = known.find(family.lfFaceName.Str());
    if (found != known.end()) {
      EXPECT_EQ(family.lfPitchAndFamily, found->second) << family.lfFaceName.ToUtf8();
    }
    return ++count > 0;
  }));
  EXPECT_GT(count, 0);
  EXPECT_FALSE(EnumFontFamilies([&count](const LOGFONT&) { return ++count < 0; }));
}

}  // namespace
