#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "views/CPanGesture.h"
#include "views/CViewHistory.h"
#include "views/CZoomBox.h"

namespace {

using coregui::CPanGesture;
using coregui::CViewMapping;
using coregui::CZoomBox;

std::string Text(CPoint p) {
  return std::to_string(p.x) + "," + std::to_string(p.y);
}

class RecordingHost : public coregui::CZoomBoxHost {
 public:
  void DrawBoxOutline(CPoint anchor, CPoint corner) override {
    Add("draw " + Text(anchor) + " " + Text(corner));
  }
  void CaptureForBox() override { Add("capture"); }
  void ReleaseFromBox() override { Add("release"); }
  void LeaveZoomBoxMode() override { Add("leave"); }
  bool ZoomToBox(CPoint anchor, CPoint corner) override {
    Add("zoom " + Text(anchor) + " " + Text(corner));
    return !dies;
  }
  void TellBoxStarted() override { Add("14"); }
  void TellBoxFinished() override { Add("15"); }
  void TellBoxCancelled() override { Add("5"); }
  std::string Taken() {
    std::string taken;
    taken.swap(m_log);
    return taken;
  }
  bool dies = false;

 private:
  void Add(const std::string& line) { m_log += (m_log.empty() ? "" : "; ") + line; }
  std::string m_log;
};

TEST(ZoomBox, TellsItsHostWhatToDo) {
  struct Step {
    char event;  ///< 'm'ove, 'c'lick, 'k'ey, Space 's', 'x': cancel
    CPoint at;
  };
  struct Row {
    std::vector<Step> before;
    Step step;
    const char* log;
  };
  const std::vector<Step> none;
  const std::vector<Step> started = {{'c', {10, 20}}};
  const std::vector<Step> stretched = {{'c', {10, 20}}, {'m', {30, 50}}};
  const Row rows[] = {
      {none, {'m', {1, 1}}, ""},
      {none, {'s', {}}, ""},
      {none, {'x', {}}, "leave; 5"},
      {none, {'c', {10, 20}}, "capture; 14"},
      {started, {'m', {30, 50}}, "draw 10,20 10,20; draw 10,20 30,50"},
      {stretched, {'m', {31, 51}}, "draw 10,20 30,50; draw 10,20 31,51"},
      {stretched, {'k', {}}, ""},
      // Kept: the outline is left on finish. The last corner counts, not the click.
      {stretched, {'c', {99, 99}}, "release; leave; zoom 10,20 30,50; 15"},
      {stretched, {'s', {}}, "release; leave; zoom 10,20 30,50; 15"},
      {stretched, {'x', {}}, "leave; draw 10,20 30,50; release; 5"},
      {{{'c', {10, 20}}, {'m', {10, 99}}}, {'c', {10, 99}}, "release; leave; 15"},
      {{{'c', {10, 20}}, {'m', {99, 20}}}, {'c', {99, 20}}, "release; leave; 15"},
  };
  for (const Row& row : rows) {
    CZoomBox box;
    RecordingHost host;
    const auto run = [&](const Step& step) {
      if (step.event == 'm') box.Move(host, step.at);
      if (step.event == 'c') box.Click(host, step.at);
      if (step.event == 'k') box.Key(host, 'x');
      if (step.event == 's') box.Key(host, ' ');
      if (step.event == 'x') box.Cancel(host);
    };
    for (const Step& step : row.before) run(step);
    host.Taken();
    run(row.step);
    EXPECT_EQ(host.Taken(), row.log) << row.before.size() << row.step.event;
    const bool goes =
        row.step.event == 'c' ? row.before.empty() : row.step.event != 's' && row.step.event != 'x';
    EXPECT_EQ(box.IsInProgress(), goes && (row.step.event == 'c' || !row.before.empty())) << row.step.event;
  }
}

TEST(ZoomBox, ViewsShareOneBoxAndADestroyedOneLeavesNone) {
  CZoomBox box;
  RecordingHost first;
  RecordingHost second;
  box.Click(first, {1, 1});
  box.Forget(second);
  EXPECT_TRUE(box.IsInProgress());
  box.Forget(first);
  EXPECT_FALSE(box.IsInProgress());
  box.Click(second, {1, 1});
  box.Move(second, {2, 2});
  box.Move(first, {7, 7});
  second.Taken();
  second.dies = true;
  box.Click(first, {9, 9});
  EXPECT_EQ(first.Taken(), "capture; 14; leave; zoom 1,1 2,2; 15") << "the second click finishes the box";
  EXPECT_EQ(second.Taken(), "draw 1,1 2,2; release") << "where it was drawn it is taken away";
  box.Click(second, {1, 1});
  box.Move(second, {2, 2});
  second.Taken();
  box.Click(second, {2, 2});
  EXPECT_EQ(second.Taken(), "release; leave; zoom 1,1 2,2") << "a view that the zoom destroyed hears no more";
}

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

TEST(PanGesture, StepsMoveTheMappingByTheWayOfThePointer) {
  CViewMapping mapping = WithMargin(false);
  const CPoint before = mapping.UserToWindow({50, 5});
  CPanGesture pan;
  pan.Start({10, 10});
  CSize moved;
  EXPECT_FALSE(pan.Step({10, 10}, mapping, &moved));
  EXPECT_TRUE(pan.Step({13, 9}, mapping, &moved));
  EXPECT_EQ(moved, CSize(3, -1));
  EXPECT_TRUE(pan.Step({13, 12}, mapping, &moved));
  EXPECT_EQ(moved, CSize(0, 3));
  EXPECT_EQ(mapping.UserToWindow({50, 5}), before + CSize(3, 2));
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
  struct Row {
    Gesture gesture;
    double seconds;
    bool noted;
  };
  const Row rows[] = {
      {Gesture::touchPan, 10.0, true}, {Gesture::touchPan, 10.3, false}, {Gesture::touchPan, 10.6, false},
      {Gesture::pinch, 10.7, true},    {Gesture::pinch, 10.8, false},    {Gesture::pinch, 11.3, true},
      {Gesture::single, 11.31, true},  {Gesture::single, 11.32, true},   {Gesture::touchPan, 11.33, true}};
  coregui::CViewHistory history;
  CViewMapping::Scale now;
  std::vector<LONG> noted;
  for (const Row& row : rows) {
    history.Note(now, row.gesture, row.seconds);
    if (row.noted) noted.push_back(now.offsetX);
    ++now.offsetX;
  }
  now.fitScale = 7;  // the window was sized since
  std::reverse(noted.begin(), noted.end());
  for (const LONG place : noted) {
    ASSERT_TRUE(history.GoBack(now));
    EXPECT_EQ(now.offsetX, place);
    EXPECT_EQ(now.fitScale, 7);
  }
  EXPECT_FALSE(history.GoBack(now));
}

}  // namespace
