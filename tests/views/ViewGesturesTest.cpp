#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "views/CPanGesture.h"
#include "views/CViewHistory.h"

namespace {

using coregui::CPanGesture;
using coregui::CViewMapping;

CViewMapping WithMargin(bool ruler) {
  CViewMapping mapping;
  mapping.extents.Set(0, 10, 100, 0);
  mapping.margins = CRect(30, 0, 0, 0);
  mapping.now.dpiX = mapping.now.dpiY = 96;
  mapping.now.vertRatio = 1;
  mapping.FitToRect(CRect(0, 0, 240, 100));
  mapping.rulerLimits = ruler;
  return mapping;
}

TEST(PanGesture, ALimitedDragIsRememberedUntilItMoves) {
  CViewMapping mapping = WithMargin(true);
  mapping.zeroX = true;
  CPanGesture pan;
  pan.Start({10, 10});
  CSize moved;
  EXPECT_FALSE(pan.Step({40, 10}, mapping, &moved)) << "the left edge stands at the margin";
  EXPECT_TRUE(pan.Step({5, 10}, mapping, &moved));
  EXPECT_EQ(moved, CSize(-5, 0)) << "counted from the press, not from the refused step";
  mapping.zeroX = false;
  EXPECT_TRUE(pan.Step({30, 10}, mapping, &moved));
  EXPECT_EQ(moved, CSize(25, 0)) << "only zero-x enforcing limits drags";
}

TEST(PanGesture, ARulerInTheMarginScrollsOnlyVertically) {
  const CRect client(0, 0, 240, 100);
  const CPanGesture::Scroll across = CPanGesture::ScrollFor({5, 0}, WithMargin(true), client);
  EXPECT_FALSE(across.whole);
  EXPECT_EQ(across.area, CRect(41, 0, 240, 100));
  EXPECT_TRUE(across.strip.IsRectEmpty());
  const CPanGesture::Scroll both = CPanGesture::ScrollFor({5, -2}, WithMargin(true), client);
  EXPECT_EQ(both.strip, CRect(0, 1, 40, 100));
  EXPECT_EQ(both.by, CSize(5, -2));
  const CPanGesture::Scroll plain = CPanGesture::ScrollFor({5, -2}, WithMargin(false), client);
  EXPECT_TRUE(plain.whole);
  EXPECT_EQ(plain.area, client);
}

TEST(ViewHistory, StepsOfATouchpadAreOneGestureUntilAPauseOrAnother) {
  using Gesture = coregui::CViewHistory::Gesture;
  constexpr std::tuple<Gesture, double, bool> rows[] = {
      {Gesture::touchPan, 10.0, true}, {Gesture::touchPan, 10.3, false}, {Gesture::touchPan, 10.6, false},
      {Gesture::pinch, 10.7, true},    {Gesture::pinch, 10.8, false},    {Gesture::pinch, 11.3, true},
      {Gesture::single, 11.31, true},  {Gesture::single, 11.32, true},   {Gesture::touchPan, 11.33, true}};
  coregui::CViewHistory history;
  CViewMapping::Scale now;
  std::vector<LONG> places;
  for (const auto& [gesture, seconds, noted] : rows) {
    history.Note(now, gesture, seconds);
    if (noted) places.push_back(now.offsetX);
    ++now.offsetX;
  }
  now.fitScale = 7;  // the window was sized since
  for (; !places.empty(); places.pop_back()) {
    ASSERT_TRUE(history.GoBack(now));
    EXPECT_EQ(now.offsetX, places.back());
    EXPECT_EQ(now.fitScale, 7);
  }
  EXPECT_FALSE(history.GoBack(now));
  EXPECT_TRUE(history.GoForward(now));
  history.Note(now, Gesture::single, 20.0);
  EXPECT_FALSE(history.GoForward(now)) << "another way was taken";
}

}  // namespace
