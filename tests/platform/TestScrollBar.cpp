#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <limits>

#include "platform/CScrollBar.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"

namespace {

using namespace coregui::test;
constexpr int kLargest = std::numeric_limits<int>::max();

/// Follows the thumb with the whole track position.
class Follower : public ControlHost {
 public:
  int tracked = -1;

 protected:
  void OnScroll(int code, CWnd* bar) override {
    auto* scroll = static_cast<CScrollBar*>(bar);
    SCROLLINFO info;
    scroll->GetScrollInfo(&info);
    if (code == SB_LINEDOWN) scroll->SetScrollPos(info.nPos + 1);
    if (code == SB_THUMBTRACK) tracked = info.nTrackPos;
    if (code == SB_THUMBPOSITION) scroll->SetScrollPos(info.nTrackPos);
  }
};

TEST(ScrollBar, PositionsStayInTheRangeLessThePage) {
  CScrollBar bar;  // works without a native window
  SCROLLINFO info;
  info.nMin = 0;
  info.nMax = kLargest;
  info.nPage = 10;
  info.nPos = kLargest;
  bar.SetScrollInfo(info);
  EXPECT_EQ(bar.GetScrollPos(), kLargest - 9);
  EXPECT_EQ(bar.SetScrollPos(-5), kLargest - 9);
  EXPECT_EQ(bar.GetScrollPos(), 0);
  info.fMask = SIF_PAGE;
  info.nPage = std::numeric_limits<UINT>::max();
  bar.SetScrollInfo(info);
  bar.SetScrollPos(7);
  EXPECT_EQ(bar.GetScrollPos(), 0);
  bar.SetScrollRange(5, 1);
  EXPECT_EQ(bar.GetScrollPos(), 5);
}

TEST(ScrollBar, KeysAskAndOnlyTheParentMoves) {
  ControlHost deaf;
  CScrollBar bar;
  bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 200), &deaf, 3);
  QWidget* widget = WidgetOf(&bar);
  QTest::keyClick(widget, Qt::Key_Down);
  QTest::keyClick(widget, Qt::Key_PageDown);
  QTest::keyClick(widget, Qt::Key_End);
  EXPECT_EQ(deaf.TakeLog(), L"v:1 v:8 v:3 v:8 v:7 v:8 ");
  EXPECT_EQ(bar.GetScrollPos(), 0);
  EXPECT_EQ(static_cast<QScrollBar*>(widget)->value(), 0);
  bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
  EXPECT_EQ(deaf.TakeLog(), L"v:1 v:1 v:1 v:8 ");
}

TEST(ScrollBar, DraggingGivesAll32Bits) {
  Follower host;
  CScrollBar bar;
  bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 200), &host, 3);
  SCROLLINFO info;
  info.nMax = kLargest;
  info.nPage = 40;
  bar.SetScrollInfo(info);
  int dropped = 0;
  Drag(bar, {8, 25}, {8, 90}, [&] {
    dropped = host.tracked;
    EXPECT_GT(dropped, kLargest / 10);
    EXPECT_EQ(bar.GetScrollPos(), 0);  // tracking moves nothing by itself
  });
  EXPECT_EQ(host.TakeLog(), L"v:5 v:4 v:8 ");
  EXPECT_EQ(bar.GetScrollPos(), dropped);
  EXPECT_EQ(static_cast<QScrollBar*>(WidgetOf(&bar))->value(), dropped);
  QTest::keyClick(WidgetOf(&bar), Qt::Key_Down);
  EXPECT_EQ(host.TakeLog(), L"v:1 v:8 ");
  EXPECT_EQ(bar.GetScrollPos(), dropped + 1) << "an answered step moves by one";
}

}  // namespace
