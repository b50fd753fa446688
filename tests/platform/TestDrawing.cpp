// Drawing on a raster: dots, clips, raster modes and scales.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <tuple>
#include <vector>

#include "tests/platform/SurfaceDC.h"

namespace {

using coregui::test::SurfaceDC;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

class Drawing : public testing::TestWithParam<double> {
 protected:
  std::shared_ptr<coregui::Surface> surface = std::make_shared<coregui::Surface>(CSize(60, 40), GetParam());
  SurfaceDC dc{surface};

  std::uint32_t Dot(int x, int y) const { return surface->Row(y)[x] & 0xFFFFFFU; }
  int Edge(int logical) const { return static_cast<int>(std::floor(logical * GetParam() + 0.5)); }
  int CountDots(std::uint32_t colour) const {
    const int width = surface->Dots().cx;
    int count = 0;
    for (int at = 0; at < AllDots(); ++at) count += Dot(at % width, at / width) == colour ? 1 : 0;
    return count;
  }
  int AllDots() const { return surface->Dots().cx * surface->Dots().cy; }
  void Clear() { dc.FillSolidRect(CRect(0, 0, 60, 40), white); }
  QImage Drawn(const std::vector<POINT>& line) {
    Clear();
    dc.Polyline(line.data(), static_cast<int>(line.size()));
    return surface->Snapshot();
  }
};

INSTANTIATE_TEST_SUITE_P(Scales, Drawing, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST_P(Drawing, Fill_CoversTheDotsBetweenRoundedEdges) {
  dc.FillSolidRect(CRect(3, 5, 10, 9), red);
  EXPECT_EQ(CountDots(0xFF0000), (Edge(10) - Edge(3)) * (Edge(9) - Edge(5)));
  EXPECT_EQ(Dot(Edge(3), Edge(5)), 0xFF0000U);
  EXPECT_EQ(Dot(Edge(10), Edge(5)), 0xFFFFFFU);
  EXPECT_EQ(dc.GetPixel(9, 8), red);
  EXPECT_EQ(dc.GetPixel(10, 8), white);
  EXPECT_EQ(dc.GetPixel(-1, 0), 0xFFFFFFFFU);
  Clear();
  for (int x = 0; x < 60; x += 7) {
    for (int y = 0; y < 40; y += 3) dc.InvertRect(CRect(x, y, x + 7, y + 3));
  }
  EXPECT_EQ(CountDots(0), AllDots()) << "neighbours neither gap nor overlap";
}

TEST_P(Drawing, StraightLine_LeavesOutItsLastPixelInEitherDirection) {
  CPen pen(PS_SOLID, 1, red);
  dc.SelectObject(&pen);
  const int thick = std::max(1, static_cast<int>(std::floor(GetParam() + 0.5)));
  const std::tuple<CPoint, CPoint, int> rows[] = {{{4, 10}, {20, 10}, Edge(20) - Edge(4)},
                                                  {{30, 20}, {30, 5}, Edge(21) - Edge(6)}};
  for (const auto& [from, to, length] : rows) {
    Clear();
    dc.MoveTo(from.x, from.y);
    dc.LineTo(to.x, to.y);
    EXPECT_EQ(CountDots(0xFF0000), length * thick);
    EXPECT_EQ(dc.GetPixel(from.x, from.y), red);
    EXPECT_EQ(dc.GetPixel(to.x, to.y), white);
  }
}

TEST_P(Drawing, Polyline_HasTheDotsOfItsSegments_UpAndDownInAColumnToo) {
  const std::vector<std::vector<POINT>> lines = {
      {{5, 20}, {5, 5}, {5, 30}, {5, 12}, {6, 14}},  // both extremes on the way
      {{9, 5}, {9, 20}, {9, 30}},                    // the end is the extreme: left out
      {{12, 5}, {12, 20}, {12, 5}},                  // it ends where it began
      {{15, 5}, {15, 5}, {15, 5}, {20, 9}, {20, 9}, {20, 4}, {20, 8}, {22, 8}},
      {{30, -50}, {30, 90}, {30, -50}, {31, 10}, {31, 11}, {31, 9}, {31, 10}},
      {{40, 8}, {45, 30}, {45, 8}, {45, 31}, {40, 8}}};
  CPen pen(PS_SOLID, 1, red);
  dc.SelectObject(&pen);
  for (const std::vector<POINT>& line : lines) {
    Clear();
    for (std::size_t i = 1; i < line.size(); ++i) {
      dc.MoveTo(line[i - 1].x, line[i - 1].y);
      dc.LineTo(line[i].x, line[i].y);
    }
    const QImage segments = surface->Snapshot();
    EXPECT_EQ(Drawn(line), segments) << "the line from column " << line[0].x;
  }
}

TEST_P(Drawing, DiagonalHatches_FallAndRiseToTheRight) {
  dc.SelectStockObject(StockObject::nullPen);
  for (const auto& [hatch, down] : {std::pair(HS_FDIAGONAL, 1), {HS_BDIAGONAL, -1}}) {
    Clear();
    CBrush brush(hatch, red);
    dc.SelectObject(&brush);
    const POINT all[] = {{0, 0}, {60, 0}, {60, 40}, {0, 40}};
    dc.Polygon(all, 4);
    const auto ink = [this](int x, int y) { return Dot(x, y) != 0xFFFFFF ? 1 : 0; };
    int alongLessAgainst = 0;
    for (int y = 8; y < 32; ++y) {
      for (int x = 8; x < 52; ++x)
        alongLessAgainst += ink(x, y) * (ink(x + 1, y + down) - ink(x + 1, y - down));
    }
    EXPECT_GT(alongLessAgainst, 50) << hatch;
    dc.SelectStockObject(StockObject::nullBrush);
  }
}

TEST_P(Drawing, Dashes_GoOnFromPartToPart) {
  for (const int style : {PS_DASH, PS_DOT, PS_DASHDOTDOT}) {
    CPen pen(style, 1, red);
    dc.SelectObject(&pen);
    const QImage whole = Drawn({{2, 10}, {58, 10}});
    EXPECT_EQ(Drawn({{2, 10}, {4, 10}, {9, 10}, {10, 10}, {23, 10}, {24, 10}, {58, 10}}), whole) << style;
  }
}

TEST_P(Drawing, Dashes_OfThinLinesAreTheSame_SmoothAndAsAWiderPen) {
  // At 5, 12, 22, 29, 41, 48 and 54: 18 pixels of ink, 6 without, or half of that.
  constexpr std::tuple<int, double, bool, const char*> rows[] = {{1, 0.0, false, "##.##.#"},
                                                                 {1, 0.0, true, "##.##.#"},
                                                                 {3, 1.0, false, "##.##.#"},
                                                                 {3, 1.0, true, "##.##.#"},
                                                                 {1, 0.5, true, "#.###.#"}};
  for (const auto& [width, unit, smooth, expected] : rows) {
    CPen pen(PS_DASH, width, red);
    pen.SetDashUnit(unit);
    dc.SelectObject(&pen);
    dc.SetAntiAliasing(smooth);
    Drawn({{2, 10}, {60, 10}});
    std::string ink;
    for (const int x : {5, 12, 22, 29, 41, 48, 54}) ink += dc.GetPixel(x, 10) == white ? '.' : '#';
    EXPECT_EQ(ink, expected) << width << ' ' << unit << ' ' << smooth;
  }
}

TEST_P(Drawing, ExclusiveOrTwice_Restores) {
  dc.FillSolidRect(CRect(10, 5, 40, 30), RGB(12, 200, 99));
  const QImage before = surface->Snapshot();
  CPen pen(PS_DOT, 1, RGB(255, 255, 255));
  CPen wide(PS_SOLID, 3, RGB(90, 10, 255));
  CBrush brush(RGB(1, 2, 3));
  dc.SelectObject(&brush);
  dc.SetROP2(R2_XORPEN);
  const POINT zigzag[] = {{0, 0}, {59, 39}, {3, 17}, {50, 2}, {50, 38}, {-20, 38}};
  const RECT frame = CRect(8, 8, 33, 29);
  for (int pass = 0; pass < 2; ++pass) {
    dc.SelectObject(&pen);
    dc.Polyline(zigzag, 6);
    dc.SelectObject(&wide);
    dc.Polyline(zigzag, 6);
    dc.Rectangle(frame);
    dc.Ellipse(frame);
    dc.DrawFocusRect(frame);
    if (pass == 0) {
      EXPECT_NE(surface->Snapshot(), before);
    }
  }
  EXPECT_EQ(surface->Snapshot(), before);
}

TEST_P(Drawing, ClipAndViewportOrigin_ConfineAndMoveEveryKindOfDrawing) {
  CPen pen(PS_SOLID, 1, red);
  CBrush brush(red);
  dc.SelectObject(&pen);
  dc.SelectObject(&brush);
  dc.SetTextColor(red);
  dc.SetViewportOrg(10, 5);
  dc.IntersectClipRect(CRect(1, 2, 21, 18));
  dc.ExcludeClipRect(CRect(5, 5, 10, 10));
  const POINT points[] = {{-15, -10}, {60, 40}, {60, -10}};
  const CRect all(-10, -5, 50, 35);
  dc.FillSolidRect(all, red);
  dc.Polyline(points, 3);
  dc.Polygon(points, 3);
  dc.Rectangle(all);
  dc.Ellipse(all);
  dc.TextOut(-10, -5, L"WWWWWWWWWWWWWWWW \u05D0\u0301", -1);
  EXPECT_EQ(CountDots(0xFFFFFF), AllDots() - (Edge(31) - Edge(11)) * (Edge(23) - Edge(7)) +
                                     (Edge(20) - Edge(15)) * (Edge(15) - Edge(10)));
  EXPECT_EQ(dc.GetPixel(1, 2), red);
  EXPECT_TRUE(dc.RectVisible(CRect(1, 2, 6, 6)));
  EXPECT_FALSE(dc.RectVisible(CRect(5, 5, 10, 10)));
  RECT box;
  EXPECT_TRUE(dc.GetClipBox(&box));
  EXPECT_EQ(CRect(box), CRect(1, 2, 21, 18));
}

TEST_P(Drawing, LinesAndTextsThroughAClip_HaveTheDotsOfTheWhole) {
  CPen pen(PS_SOLID, 1, 0);
  dc.SelectObject(&pen);
  dc.SetBkMode(TRANSPARENT);
  const POINT hard[] = {{-70, -33}, {101, 57}};
  const double smooth[] = {-70.3, -33, 101, 57.8, 20, 4, 20, 30};
  const std::function<void()> rows[] = {[&] { dc.Polyline(hard, 2); }, [&] { dc.PolylineF(smooth, 4); },
                                        [&] { dc.TextOut(3, 3, L"Level 0123", -1); }};
  for (const auto& draw : rows) {
    dc.SetAntiAliasing(&draw != rows);
    Clear();
    draw();
    const QImage whole = surface->Snapshot();
    Clear();
    for (int x = 0; x < 60; x += 5) {
      for (int y = 0; y < 40; y += 4) {
        dc.SelectClipRect(nullptr);
        dc.IntersectClipRect(CRect(x, y, x + 5, y + 4));
        draw();
      }
    }
    dc.SelectClipRect(nullptr);
    EXPECT_EQ(surface->Snapshot(), whole) << &draw - rows;
  }
}

TEST_P(Drawing, SmoothLine_InksItsWidthTimesItsLength_HoweverManyPointsAndPasses) {
  dc.SetAntiAliasing(true);
  for (const int width : {1, 4}) {
    CPen pen(PS_SOLID, width, 0);
    dc.SelectObject(&pen);
    for (int degrees = 0; degrees < 360; degrees += 15) {
      SCOPED_TRACE(testing::Message() << width << " wide at " << degrees);
      const double x = 15 * std::cos(degrees * std::numbers::pi / 180);
      const double y = 15 * std::sin(degrees * std::numbers::pi / 180);
      std::vector<double> xy;
      for (const int to : {1, -1, 1}) {  // there, back and there again by many small steps
        for (int i = -500; i <= 500; ++i) {
          xy.insert(xy.end(), {30.3 + to * i * x / 500, 20.1 + to * i * y / 500});
        }
      }
      Clear();
      dc.PolylineF(xy.data(), static_cast<int>(xy.size() / 2));
      double ink = 0;
      for (int at = 0; at < AllDots(); ++at) {
        ink += 1.0 - (Dot(at % surface->Dots().cx, at / surface->Dots().cx) & 0xFFU) / 255.0;
      }
      const double caps = std::numbers::pi * width * width / 4;
      const double wanted = (30.0 * width + caps) * GetParam() * GetParam();
      EXPECT_NEAR(ink, wanted, wanted * 0.03);
    }
  }
}

TEST_P(Drawing, SmoothLine_TurnsRoundCornersAndThroughSmallSteps) {
  // A ring, from points so near to each other that every step by itself is next to nothing.
  std::vector<double> xy;
  for (int i = 0; i <= 3000; ++i) {
    const double angle = i * 2.0 * std::numbers::pi / 3000;
    xy.insert(xy.end(), {30 + 2.5 * std::cos(angle), 20 + 2.5 * std::sin(angle)});
  }
  CPen pen(PS_SOLID, 5, 0);
  dc.SelectObject(&pen);
  dc.SetAntiAliasing(true);
  dc.PolylineF(xy.data(), static_cast<int>(xy.size() / 2));
  EXPECT_NEAR(CountDots(0), std::numbers::pi * 25 * GetParam() * GetParam(), 22 * GetParam())
      << "a disc without holes but for its rim";
  Clear();
  const double corner[] = {10, 30, 30, 30, 30, 10, 40, 30, 40, 30};
  dc.PolylineF(corner, 5);
  EXPECT_EQ(dc.GetPixel(31, 31), 0U) << "outside both parts, inside the corner";
  Clear();
  dc.PolylineF(corner + 6, 2);
  EXPECT_EQ(CountDots(0xFFFFFF), AllDots()) << "no length, no line";
}

TEST_P(Drawing, SmoothLine_LiesOnTheHardOne) {
  CPen pen(PS_SOLID, 1, 0);
  dc.SelectObject(&pen);
  const POINT line[] = {{5, 10}, {50, 10}};
  dc.SetAntiAliasing(true);
  dc.Polyline(line, 2);
  const double pixel = GetParam();
  double ink = 0;
  double moment = 0;
  for (int y = 0; y < surface->Dots().cy; ++y) {
    const double cover = 1.0 - (Dot(Edge(30), y) & 0xFF) / 255.0;
    ink += cover;
    moment += cover * (y + 0.5);
  }
  EXPECT_NEAR(ink, pixel, 0.02) << "one logical pixel thick";
  EXPECT_NEAR(moment / ink, 10.5 * pixel, 0.1)
      << "around the middle of pixel 10; covers come in coarse steps";
}

TEST_P(Drawing, ExtremeCoordinates_DrawWhatIsVisible) {
  constexpr LONG low = std::numeric_limits<LONG>::min();
  constexpr LONG high = std::numeric_limits<LONG>::max();
  dc.SetViewportOrg(5, 5);
  dc.FillSolidRect(CRect(low, low, high, 3), red);
  EXPECT_EQ(CountDots(0xFF0000), surface->Dots().cx * Edge(8));
  dc.MoveTo(low, 20);
  dc.LineTo(high, 20);
  EXPECT_EQ(dc.GetPixel(30, 20), 0U);
  dc.MoveTo(low, low);
  dc.LineTo(high, high);
  EXPECT_EQ(dc.GetPixel(12, 12), 0U);
  dc.DrawFocusRect(CRect(low, low, high, high));
  dc.SetPixel(high, high, red);
  RECT rect = CRect(low, low, high, high);
  dc.DrawText(L"far", -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
  dc.TextOut(high, low, L"far", -1);
  dc.TextOut(low, 0, L"far", -1);
  rect = CRect(high - 10, high - 10, high, high);
  dc.DrawText(L"&far", -1, &rect, DT_RIGHT);
  dc.BitBlt(high, low, 5, 5, &dc, high, high, SRCCOPY);
  dc.SetViewportOrg(low, high);
  RECT box;
  dc.GetClipBox(&box);
  dc.SetViewportOrg(5, 5);
  EXPECT_TRUE(surface->MovePixels(CRect(low, low, high, high), 0, high - 3, CRect(low, low, high, high)) ||
              GetParam() != 1.0);
  const double wild[] = {-1e300, 3, 1e300, 3, std::nan(""), 0, 10, 10, 20, 20};
  dc.PolylineF(wild, 5);
  EXPECT_EQ(dc.GetPixel(15, 15), 0U);
}

TEST_P(Drawing, CopyFromAnotherScale_FillsTheSameLogicalPixels) {
  const auto other = std::make_shared<coregui::Surface>(CSize(20, 20), 3.0);
  SurfaceDC source(other);
  source.FillSolidRect(CRect(5, 5, 15, 15), red);
  EXPECT_TRUE(dc.BitBlt(10, 10, 10, 10, &source, 5, 5, SRCCOPY));
  EXPECT_EQ(CountDots(0xFF0000), (Edge(20) - Edge(10)) * (Edge(20) - Edge(10)));
  EXPECT_EQ(dc.GetPixel(10, 10), red);
  EXPECT_FALSE(dc.BitBlt(0, 0, 0, 5, &source, 0, 0, SRCCOPY));
}

TEST_P(Drawing, BoxEdges_CoverTheBoxOnce) {
  dc.FrameRect(CRect(2, 2, 12, 12), red);
  EXPECT_EQ(CountDots(0xFF0000), std::pow(Edge(12) - Edge(2), 2) - std::pow(Edge(11) - Edge(3), 2));
  dc.Draw3dRect(CRect(20, 20, 30, 30), RGB(1, 1, 1), RGB(2, 2, 2));
  for (const CPoint at : {CPoint(20, 20), CPoint(28, 20), CPoint(20, 28)})
    EXPECT_EQ(dc.GetPixel(at.x, at.y), RGB(1, 1, 1));
  for (const CPoint at : {CPoint(29, 20), CPoint(20, 29), CPoint(29, 29)})
    EXPECT_EQ(dc.GetPixel(at.x, at.y), RGB(2, 2, 2));
}

}  // namespace
