#include "views/CViewMapping.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

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
  mapping.now.dpiX = mapping.now.dpiY = 96;
  mapping.now.vertRatio = vertRatio;
  mapping.FitToRect(client);
  return mapping;
}

const FRect kWide(0, 10, 100, 0);

TEST(ViewMapping, AFitShowsTheExtentsBetweenTheMargins) {
  struct Row {
    FRect extents;
    VertMode mode;
    CRect client;
    CRect margins;
    double scale;
    double vertRatio;  ///< 1 before
    CPoint corner;     ///< the pixel of the upper left corner: the offsets negated
    CPoint opposite;
  };
  const FRect tall(0, 100, 10, 0);
  const Row rows[] = {
      // The height needs 10 / 100, less than the width's 0.5: 15 points or 20 pixels high, 40 free above.
      {kWide, VertMode::keepRatio, {0, 0, 200, 100}, {}, 0.5, 1.0, {0, 40}, {200, 60}},
      // The height needs 1 unit a pixel: T(10 / (96/72) + 0.5) = 8 points, 10 pixels wide, 95 free at the
      // left.
      {tall, VertMode::keepRatio, {0, 0, 200, 100}, {}, 1.0, 1.0, {95, 0}, {105, 100}},
      // 10 + 10 points are 26 pixels at 96 dots an inch, each alone is 13; 7 + 7 are 18, each alone is 9.
      {kWide, VertMode::fill, {10, 20, 236, 138}, {10, 7, 10, 7}, 0.5, 5.0, {13, 9}, {213, 109}},
      {kWide, VertMode::fill, {0, 0, 100, 100}, {1, 0, 1, 0}, 100.0 / 98, 1000.0 / 98, {1, 0}, {99, 100}},
      // Two margins of 2 points are 5 pixels, not twice 2: they are added before they become pixels.
      {kWide, VertMode::fill, {0, 0, 100, 100}, {2, 0, 2, 0}, 100.0 / 95, 1000.0 / 95, {2, 0}, {97, 100}},
      // 10 units of y are 10 points downwards, 13 pixels.
      {kWide, VertMode::points, {0, 0, 200, 100}, {}, 0.5, 96 / 72.0, {0, 0}, {200, 13}},
      {FRect(0, 0, 100, -72),
       VertMode::points,
       {0, 0, 200, 100},
       {0, 3, 0, 0},
       0.5,
       96 / 72.0,
       {0, 4},
       {200, 100}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(&row - rows);
    const CViewMapping mapping = MappingOf(row.extents, row.mode, row.client, row.margins);
    EXPECT_EQ(mapping.now.scale, row.scale);
    EXPECT_EQ(mapping.now.fitScale, row.scale);
    EXPECT_DOUBLE_EQ(mapping.now.vertRatio, row.vertRatio);
    EXPECT_EQ(mapping.UserToWindow(row.extents.TopLeft()), row.corner);
    EXPECT_EQ(mapping.UserToWindow(row.extents.BottomRight()), row.opposite);
    const PNT_2D_record back = mapping.WindowToUser(row.corner);
    EXPECT_EQ(back.x, row.extents.GetLeft());
    EXPECT_EQ(back.y, row.extents.GetTop());
    EXPECT_DOUBLE_EQ(mapping.WindowToUserWidth(10), 10 * row.scale);
    const double vertical = row.mode == VertMode::points ? 1.0 : row.scale;
    EXPECT_DOUBLE_EQ(mapping.WindowToUserHeight(96), 96 * vertical / row.vertRatio);
    EXPECT_DOUBLE_EQ(mapping.GetPointSize().x, 96 * row.scale / 72);
    EXPECT_DOUBLE_EQ(mapping.GetPointSize().y, vertical / row.vertRatio * 96 / 72);
    EXPECT_TRUE(row.mode != VertMode::points || mapping.GetPointSize().y == 1.0) << "exactly";
  }
}

TEST(ViewMapping, TruncationTowardsZeroIsKept) {
  CViewMapping mapping = MappingOf(kWide, VertMode::fill, CRect(0, 0, 100, 10));
  // T(-0.2) is 0, not -1.
  for (const auto& [right, pixel] : {std::pair(-0.7, 0), {-1.4, 0}, {-1.5, -1}, {0.5, 1}, {0.49, 0}}) {
    EXPECT_EQ(mapping.UserToWindow({right, 10 - right}), CPoint(pixel, pixel)) << right;
  }
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
  mapping.margins.left = 10;
  for (const bool zeroX : {false, true}) {
    mapping.zeroX = zeroX;
    mapping.Zoom({0, 4}, 0.125, CSize(201, 101));
    EXPECT_EQ(mapping.UserToWindow({0, 5}).x, zeroX ? 13 : 100) << "the left edge stays at the margin";
  }
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

TEST(ViewMapping, ScaleOfARectangleIgnoresMarginsAndCountsTheExaggeration) {
  const CViewMapping mapping =
      MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100), CRect(9, 9, 9, 9), 5.0);
  EXPECT_EQ(mapping.ScaleOf(FRect(0, 0, 50, 1), CSize(200, 100)), 0.25);
  EXPECT_EQ(mapping.ScaleOf(FRect(0, 0, 50, 10), CSize(200, 100)), 0.5);
}

TEST(ViewMapping, OnlyDragsToTheRightAreLimitedByARuler) {
  CViewMapping mapping = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 226, 100), CRect(10, 0, 10, 0));
  const auto limited = [&mapping](LONG dx) {
    CSize d(dx, 9);
    mapping.CheckPanOffset(d);
    EXPECT_EQ(d.cy, 9);
    return d.cx;
  };
  EXPECT_EQ(limited(50), 50) << "no ruler, no limit";
  mapping.rulerLimits = true;
  EXPECT_EQ(limited(50), 0) << "the left edge is at the margin already";
  EXPECT_EQ(limited(-500), -500);
  mapping.Pan(CSize(-20, 0));
  EXPECT_EQ(limited(50), 20);
  mapping.now.offsetX = -100;
  EXPECT_EQ(limited(7), 0) << "never turned round";
}

TEST(ViewMapping, ASlaveTakesTheMastersHorizontalMappingOnly) {
  const CViewMapping master = MappingOf(kWide, VertMode::keepRatio, CRect(0, 0, 200, 100));
  CViewMapping slave = MappingOf(FRect(0, 3, 100, 0), VertMode::fill, CRect(0, 0, 400, 30));
  const auto before = slave.now;
  EXPECT_TRUE(slave.SyncTo(master));
  EXPECT_EQ(std::pair(slave.now.scale, slave.now.offsetX), std::pair(0.5, master.now.offsetX));
  EXPECT_EQ(std::pair(slave.now.vertRatio, slave.now.offsetY), std::pair(before.vertRatio, before.offsetY));
  EXPECT_FALSE(slave.SyncTo(master));
  slave.now.scale += 0.0001;
  EXPECT_FALSE(slave.SyncTo(master)) << "a difference of one ten-thousandth is none";
  slave.now.offsetX += 1;
  EXPECT_TRUE(slave.SyncTo(master));
}

}  // namespace
