#include "views/CViewMapping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using coregui::CViewMapping;
using coregui::VertMode;

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

CViewMapping MappingOf(FRect const& extents, VertMode mode, CRect const& client,
                       CRect const& margins = CRect(), double vertRatio = 1.0) {
  CViewMapping mapping;
  mapping.extents = extents;
  mapping.vertMode = mode;
  mapping.margins = margins;
  mapping.now.dpiX = 96;
  mapping.now.dpiY = 96;
  mapping.now.vertRatio = vertRatio;
  mapping.FitToRect(client);
  return mapping;
}

const FRect kWide(0, 10, 100, 0);

TEST(ViewMapping, ExtentsThatAreWiderOrTallerAreCentred) {
  const CViewMapping wide = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100));
  EXPECT_EQ(wide.now.scale, 0.5);
  EXPECT_EQ(wide.now.fitScale, 0.5);
  EXPECT_EQ(wide.now.offsetX, 0);
  EXPECT_EQ(wide.now.offsetY, -40);
  EXPECT_EQ(wide.UserToWindow({0, 10}), CPoint(0, 40));
  EXPECT_EQ(wide.UserToWindow({100, 0}), CPoint(200, 60));
  EXPECT_EQ(wide.WindowToUser({100, 50}).y, 5);
  // 10 wide, 100 high in 200 x 100: the height needs 1 unit per pixel; wp = T(10 / (96/72) + 0.5) = 8 points,
  // U = 8 * 96 / 72 = 10 pixels, so (200 - 10) / 2 = 95 pixels stay free on each side.
  const CViewMapping tall = MappingOf(FRect(0, 100, 10, 0), VertMode::keepRatio, CRect(0, 0, 200, 100));
  EXPECT_EQ(tall.now.scale, 1.0);
  EXPECT_EQ(tall.now.offsetX, -95);
  EXPECT_EQ(tall.now.offsetY, 0);
}

TEST(ViewMapping, MarginsAreAddedInPointsBeforeTheyBecomePixels) {
  // 10 + 10 points are 26 pixels at 96 dots per inch; each alone is 13.
  // 7 + 7 points are 18 pixels, although each alone is only 9.
  CViewMapping mapping = MappingOf(kWide, VertMode::fill, CRect(10, 20, 236, 138), CRect(10, 7, 10, 7));
  EXPECT_EQ(mapping.now.offsetX, -13);
  EXPECT_EQ(mapping.now.offsetY, -9);
  EXPECT_EQ(mapping.now.scale, 100.0 / 200);
  EXPECT_EQ(mapping.now.vertRatio, 0.5 / (10.0 / 100));
  EXPECT_EQ(mapping.UserToWindow({0, 10}), CPoint(13, 9));
  EXPECT_EQ(mapping.UserToWindow({100, 0}), CPoint(213, 109));
  mapping = MappingOf(kWide, VertMode::fill, CRect(0, 0, 100, 100), CRect(1, 0, 1, 0));
  EXPECT_EQ(mapping.GetMarginPixels(), CRect(1, 0, 1, 0));
  EXPECT_EQ(mapping.now.scale, 100.0 / 98);
  mapping = MappingOf(kWide, VertMode::fill, CRect(0, 0, 100, 100), CRect(2, 0, 2, 0));
  EXPECT_EQ(mapping.now.scale, 100.0 / 95) << "two margins of 2 points are 5 pixels, not twice 2";
}

TEST(ViewMapping, PointModeMeasuresDownwardsFromTheTop) {
  const CViewMapping mapping = MappingOf(FRect(0, 0, 100, -300), VertMode::points, CRect(0, 0, 200, 100));
  EXPECT_EQ(mapping.now.vertRatio, 96 / 72.0);
  EXPECT_EQ(mapping.UserToWindow({50, -72}), CPoint(100, 96));
  EXPECT_EQ(mapping.WindowToUser({100, 96}).y, -72);
  EXPECT_EQ(mapping.GetPointSize().y, 1.0);
  EXPECT_EQ(mapping.GetPointSize().x, 96 * 0.5 / 72);
  EXPECT_EQ(mapping.WindowToUserHeight(96), 72);
  EXPECT_EQ(mapping.WindowToUserWidth(10), 5);
}

TEST(ViewMapping, TruncationTowardsZeroIsKept) {
  CViewMapping mapping = MappingOf(kWide, VertMode::fill, CRect(0, 0, 100, 10));
  EXPECT_EQ(mapping.UserToWindow({-0.7, 10.7}), CPoint(0, 0)) << "T(-0.2) is 0, not -1";
  EXPECT_EQ(mapping.UserToWindow({-1.4, 11.4}), CPoint(0, 0));
  EXPECT_EQ(mapping.UserToWindow({-1.5, 11.5}), CPoint(-1, -1));
  EXPECT_EQ(mapping.UserToWindow({0.5, 9.5}), CPoint(1, 1));
  EXPECT_EQ(mapping.UserToWindow({0.49, 9.51}), CPoint(0, 0));
  mapping.now.offsetX = 7;
  EXPECT_EQ(mapping.UserToWindow({-0.7, 10}).x, -7) << "the offset is taken off after the truncation";
}

TEST(ViewMapping, ResultsOutside32BitsSaturate) {
  CViewMapping mapping = MappingOf(kWide, VertMode::fill, CRect(0, 0, 100, 10));
  EXPECT_EQ(mapping.UserToWindow({1e300, 1e300}), CPoint(kMax, kMin));
  EXPECT_EQ(mapping.UserToWindow({-kInfinity, -kInfinity}), CPoint(kMin, kMax));
  EXPECT_EQ(mapping.UserToWindow({kNaN, kNaN}), CPoint(0, 0));
  mapping.now.offsetX = -5;
  EXPECT_EQ(mapping.UserToWindow({1e300, 0}).x, kMax);
  EXPECT_EQ(mapping.UserToWindow({kNaN, 0}).x, 5);
}

TEST(ViewMapping, EmptyExtentsAndEmptyClientsMapAsTheyCome) {
  for (const VertMode mode : {VertMode::keepRatio, VertMode::fill, VertMode::points}) {
    CViewMapping point = MappingOf(FRect(), mode, CRect(0, 0, 100, 100));
    EXPECT_EQ(point.now.scale, 0.0);
    EXPECT_EQ(point.UserToWindow({1, 0}).x,
              mode == VertMode::keepRatio ? point.UserToWindow({2, 0}).x : kMax);
    CViewMapping flat = MappingOf(kWide, mode, CRect());
    EXPECT_TRUE(std::isinf(flat.now.scale));
    EXPECT_EQ(flat.UserToWindow({50, 5}).x, -flat.now.offsetX);
    flat.Zoom({50, 5}, 0.0, CSize(0, 0));
    EXPECT_EQ(flat.now.offsetX, kMax);
    CViewMapping margins = MappingOf(kWide, mode, CRect(0, 0, 100, 100), CRect(kMax, kMin, kMax, kMin));
    margins.GetMarginPixels();
    margins.Pan(CSize(kMin, kMax));
    margins.UserToWindow({kMax, kMin});
  }
}

TEST(ViewMapping, ZoomPutsTheCentreInTheMiddle) {
  CViewMapping mapping = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 201, 101));
  EXPECT_EQ(mapping.Zoom({30, 4}, 0.125, CSize(201, 101)), CViewMapping::ZoomResult::zoomed);
  EXPECT_EQ(mapping.UserToWindow({30, 4}), CPoint(100, 50));
  EXPECT_EQ(mapping.now.fitScale, 100.0 / 201) << "only a fit sets the limit";
  mapping.vertMode = VertMode::points;
  mapping.Zoom({30, 4}, 0.25, CSize(201, 101));
  EXPECT_EQ(mapping.now.offsetY, 0);
}

TEST(ViewMapping, WithARulerZoomingOutStopsAtTheFit) {
  CViewMapping mapping = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100));
  const CSize client(200, 100);
  EXPECT_EQ(mapping.Zoom({50, 5}, 0.25, client), CViewMapping::ZoomResult::zoomed);
  mapping.rulerLimits = true;
  EXPECT_EQ(mapping.Zoom({50, 5}, 0.5, client), CViewMapping::ZoomResult::refit);
  EXPECT_EQ(mapping.now.scale, 0.25);
  EXPECT_EQ(mapping.Zoom({50, 5}, 0.5 - 1e-11, client), CViewMapping::ZoomResult::zoomed);
  mapping.now.scale = 0.5;
  EXPECT_EQ(mapping.Zoom({50, 5}, 0.5, client), CViewMapping::ZoomResult::refused);
}

TEST(ViewMapping, ZeroXKeepsTheLeftEdgeAtTheMargin) {
  CViewMapping mapping = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 226, 100), CRect(10, 0, 10, 0));
  mapping.zeroX = true;
  mapping.Zoom({0, 5}, 0.1, CSize(226, 100));
  EXPECT_EQ(mapping.UserToWindow({0, 5}).x, 13);
  mapping.zeroX = false;
  mapping.Zoom({0, 5}, 0.1, CSize(226, 100));
  EXPECT_EQ(mapping.UserToWindow({0, 5}).x, 113);
}

TEST(ViewMapping, ScaleOfARectangleIgnoresMarginsAndCountsTheExaggeration) {
  const CViewMapping mapping =
      MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100), CRect(9, 9, 9, 9), 5.0);
  EXPECT_EQ(mapping.ScaleOf(FRect(0, 0, 50, 1), CSize(200, 100)), 0.25);
  EXPECT_EQ(mapping.ScaleOf(FRect(0, 0, 50, 10), CSize(200, 100)), 0.5);
}

TEST(ViewMapping, OnlyDragsToTheRightAreLimitedByARuler) {
  CViewMapping mapping = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 226, 100), CRect(10, 0, 10, 0));
  const auto limited = [&mapping](LONG dx, LONG dy) {
    CSize d(dx, dy);
    mapping.CheckPanOffset(d);
    return d;
  };
  EXPECT_EQ(limited(50, 9), CSize(50, 9)) << "no ruler, no limit";
  mapping.rulerLimits = true;
  EXPECT_EQ(limited(50, 9), CSize(0, 9)) << "the left edge is at the margin already";
  EXPECT_EQ(limited(-500, -9), CSize(-500, -9));
  mapping.Pan(CSize(-20, 0));
  EXPECT_EQ(limited(50, 0), CSize(20, 0));
  EXPECT_EQ(limited(7, 0), CSize(7, 0));
  mapping.now.offsetX = -100;
  EXPECT_EQ(limited(7, 0), CSize(0, 0)) << "never turned round";
}

TEST(ViewMapping, ASlaveTakesTheMastersHorizontalMappingOnly) {
  const CViewMapping master = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100));
  CViewMapping slave = MappingOf(FRect(0, 3, 100, 0), VertMode::fill, CRect(0, 0, 400, 30));
  const auto before = slave.now;
  EXPECT_TRUE(slave.SyncTo(master));
  EXPECT_EQ(slave.now.scale, 0.5);
  EXPECT_EQ(slave.now.offsetX, master.now.offsetX);
  EXPECT_EQ(slave.now.offsetY, before.offsetY);
  EXPECT_EQ(slave.now.vertRatio, before.vertRatio);
  EXPECT_FALSE(slave.SyncTo(master));
  slave.now.scale += 0.0001;
  EXPECT_FALSE(slave.SyncTo(master)) << "a difference of one ten-thousandth is none";
  slave.now.offsetX += 1;
  EXPECT_TRUE(slave.SyncTo(master));
  EXPECT_EQ(slave.now.scale, 0.5);
}

}  // namespace
