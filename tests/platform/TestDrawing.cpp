// Drawing on a raster: dots, clips, raster modes and scales.

#include <gtest/gtest.h>

#include "platform/CDC.h"
#include "platform/qt/BitmapData.h"
#include "platform/qt/RasterTarget.h"

namespace {

/// A context on a surface of its own.
class SurfaceDC : public CDC {
 public:
  explicit SurfaceDC(std::shared_ptr<coregui::Surface> surface)
      : CDC(std::make_shared<coregui::RasterTarget>(std::move(surface))) {}
};

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

class Drawing : public testing::TestWithParam<double> {
 protected:
  std::shared_ptr<coregui::Surface> surface = std::make_shared<coregui::Surface>(CSize(60, 40), GetParam());
  SurfaceDC dc{surface};

  std::uint32_t Dot(int x, int y) const { return surface->Row(y)[x] & 0xFFFFFFU; }
  int Edge(int logical) const { return static_cast<int>(std::floor(logical * GetParam() + 0.5)); }
  int CountDots(std::uint32_t colour) const {
    int count = 0;
    for (int y = 0; y < surface->Dots().cy; ++y) {
      count +=
          static_cast<int>(std::count_if(surface->Row(y), surface->Row(y) + surface->Dots().cx,
                                         [=](std::uint32_t dot) { return (dot & 0xFFFFFFU) == colour; }));
    }
    return count;
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
}

TEST_P(Drawing, Text_LeavesInkInsideItsExtent) {
  dc.SetBkMode(TRANSPARENT);
  const CSize extent = dc.GetTextExtent(L"Hxg", -1);
  dc.TextOut(5, 5, L"Hxg", -1);
  int ink = 0;
  for (int y = 0; y < surface->Dots().cy; ++y) {
    for (int x = 0; x < surface->Dots().cx; ++x) {
      if (Dot(x, y) != 0xFFFFFF) {
        ++ink;
        EXPECT_TRUE(x >= Edge(5) - 1 && x <= Edge(5 + extent.cx) && y >= Edge(5) &&
                    y < Edge(5 + extent.cy) + 1)
            << x << ',' << y;
      }
    }
  }
  EXPECT_GT(ink, 20);
}

}  // namespace
