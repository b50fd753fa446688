#include "views/CWindowMapping.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace {

using coregui::CWindowMapping;

CWindowMapping Sized(LONG width, LONG height) {
  CWindowMapping mapping;
  mapping.device = {width, height, 96, 96, 0};
  return mapping;
}

/// A window of 200 x 100 pixels that shows 0..200 by 0..100.
CWindowMapping Shown() {
  CWindowMapping mapping = Sized(200, 100);
  mapping.Init(FRect(0, 100, 200, 0), false);
  return mapping;
}

void ExpectRect(FRect const& rect, double left, double top, double right, double bottom) {
  EXPECT_DOUBLE_EQ(rect.GetLeft(), left);
  EXPECT_DOUBLE_EQ(rect.GetTop(), top);
  EXPECT_DOUBLE_EQ(rect.GetRight(), right);
  EXPECT_DOUBLE_EQ(rect.GetBottom(), bottom);
}

TEST(WindowMapping, ShowsAllOfTheRectangleAtTrueAspect) {
  // The limits, the scale asked for (1 to 10 are taken), the dots per inch down, the pane, which lowers the
  // centre by half of its height in what was shown before, and what is shown.
  const std::tuple<FRect, int, LONG, LONG, FRect> rows[] = {
      {{0, 100, 100, 0}, 1, 96, 0, {-50, 100, 150, 0}}, {{0, 10, 100, 0}, 1, 96, 0, {0, 30, 100, -20}},
      {{0, 10, 100, 0}, 0, 96, 0, {0, 30, 100, -20}},   {{0, 10, 100, 0}, 5, 96, 0, {0, 10, 100, 0}},
      {{0, 10, 100, 0}, 11, 96, 0, {0, 7.5, 100, 2.5}}, {{0, 10, 100, 0}, 1, 48, 0, {0, 55, 100, -45}},
      {{0, 100, 200, 0}, 1, 96, 20, {0, 90, 200, -10}}, {{0, 100, 200, 0}, 1, 0, 0, {0, 100, 200, 0}},
      {{0, 5, 100, 5}, 1, 96, 0, {0, 100, 200, 0}},     {{5, 10, 5 + 1e-13, 0}, 1, 96, 0, {0, 100, 200, 0}}};
  for (const auto& [limits, scale, dpiY, pane, shown] : rows) {
    SCOPED_TRACE(limits.GetRight() + scale + dpiY / 1000.0);
    CWindowMapping mapping = Sized(200, 100);
    mapping.Init(FRect(0, 100, 200, 0), true);
    mapping.SetScale(scale);
    mapping.device.dpiY = dpiY;
    mapping.device.detailPane = pane;
    mapping.SetViewLimits(limits);
    ExpectRect(mapping.window, shown.GetLeft(), shown.GetTop(), shown.GetRight(), shown.GetBottom());
    ExpectRect(mapping.zoomBase, 0, 100, 200, 0);
    EXPECT_EQ(mapping.currentPos.y, 100) << "set to the upper left corner only by Init";
  }
}

TEST(WindowMapping, ASizeOfNothingIsForgottenWithTheNextSize) {
  for (const CSize none : {CSize(0, 0), CSize(200, 0), CSize(0, 100)}) {
    CWindowMapping mapping = Sized(none.cx, none.cy);
    mapping.device.detailPane = 20;
    mapping.Init(FRect(0, 100, 200, 0), true);
    mapping.UserToWindow({50, 50});
    mapping.Resize({200, 100, 96, 96, 0});
    mapping.Resize({200, 100, 96, 96, 20});
    ExpectRect(mapping.window, 0, 90, 200, -10);
  }
  CWindowMapping mapping = Sized(200, 100);
  mapping.WindowScale(FRect(1, 2, 3, 0), 0, 1);
  ExpectRect(mapping.window, 1, 2, 3, 0);
}

TEST(WindowMapping, PixelsAreTruncatedWithoutRoundingIsKept) {
  CWindowMapping mapping = Shown();
  EXPECT_EQ(mapping.UserToWindow({0.99, 99.01}), CPoint(0, 0));
  EXPECT_EQ(mapping.UserToWindow({-0.99, 100.99}), CPoint(0, 0));
  EXPECT_EQ(mapping.UserToWindow({1e20, -std::numeric_limits<double>::infinity()}),
            CPoint(std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::max()));
}

TEST(WindowMapping, MirroringFlipsBothAxesAndTheWayBack) {
  CWindowMapping mapping = Shown();
  EXPECT_EQ(mapping.UserToWindow({20, 70}), CPoint(20, 30));
  EXPECT_EQ(mapping.WindowToUser({20, 30}).y, 70);
  EXPECT_EQ(mapping.GetUserWndVRange(), -100);
  mapping.mirrored = true;
  EXPECT_EQ(mapping.UserToWindow({20, 70}), CPoint(180, 70));
  EXPECT_EQ(mapping.WindowToUser({180, 70}).x, 20);
  EXPECT_EQ(mapping.WindowToUser({180, 70}).y, 70);
  EXPECT_EQ(mapping.GetUserWndHBase(), 200);
  EXPECT_EQ(mapping.GetUserWndHRange(), -200);
}

TEST(WindowMapping, TopAsTheCentreOfAWindowZoomIsKept) {
  CWindowMapping mapping = Shown();
  mapping.StepZoom(true);
  mapping.ZoomWindow(FRect(50, 60, 70, 50));
  EXPECT_EQ(mapping.currentPos.x, 60);
  EXPECT_EQ(mapping.currentPos.y, 60);
  EXPECT_EQ(mapping.GetZoomStep(), '5');
  EXPECT_EQ(mapping.GetZoomFactor(), 1.0);
  ExpectRect(mapping.window, 50, 60, 70, 50);
  ExpectRect(mapping.viewLimits, 0, 100, 200, 0);
}

TEST(WindowMapping, NineStepsScaleTheBaseAroundThePosition) {
  CWindowMapping mapping = Shown();
  mapping.currentPos = {80, 40};
  for (const double factor : {0.75, 0.5, 0.375, 0.25, 0.375, 0.5, 0.75, 1.0, 1.5, 2.0, 3.0, 4.0}) {
    mapping.StepZoom(factor < mapping.GetZoomFactor());
    EXPECT_EQ(mapping.GetZoomFactor(), factor);
    ExpectRect(mapping.window, 80 - 100 * factor, 40 + 50 * factor, 80 + 100 * factor, 40 - 50 * factor);
  }
}

TEST(WindowMapping, BeyondTheLastStepTheBaseBecomesWholeUnits) {
  CWindowMapping mapping = Shown();
  mapping.currentPos = {80.5, 40.5};
  for (int step = 0; step < 4; ++step) {
    mapping.StepZoom(true);
  }
  ExpectRect(mapping.window, 55.5, 53, 105.5, 28);
  mapping.StepZoom(true);
  EXPECT_EQ(mapping.GetZoomStep(), '4');
  ExpectRect(mapping.zoomBase, 55, 53, 105, 28);
  ExpectRect(mapping.redrawLimits, 55, 53, 105, 28);
  EXPECT_DOUBLE_EQ(mapping.window.Width(), 50 * 0.75);
  for (int step = 0; step < 5; ++step) {
    mapping.StepZoom(false);
  }
  EXPECT_EQ(mapping.GetZoomStep(), '9');
  mapping.StepZoom(false);
  EXPECT_EQ(mapping.GetZoomStep(), '6');
  EXPECT_DOUBLE_EQ(mapping.window.Width(), mapping.zoomBase.Width() * 1.5);
}

TEST(WindowMapping, PanBringsThePositionToTheMiddleAndMovesItOn) {
  CWindowMapping mapping = Sized(200, 100);
  mapping.currentPos = {3, 3};
  mapping.Pan();
  EXPECT_EQ(mapping.currentPos.x, 3) << "nothing before initialisation";
  mapping.Init(FRect(0, 100, 200, 0), false);
  mapping.currentPos = {110, 45};
  mapping.Pan();
  ExpectRect(mapping.window, 10, 95, 210, -5);
  EXPECT_EQ(mapping.currentPos.x, 120);
  EXPECT_EQ(mapping.currentPos.y, 40);
}

}  // namespace
