#include <gtest/gtest.h>

#include <set>
#include <tuple>
#include <vector>

#include "tests/support/ShownWindow.h"
#include "tests/views/ViewFixture.h"
#include "views/CGUIBaseViewWnd.h"
#include "views/CGUIBaseWnd.h"

namespace {

using coregui::test::Hook;

class PlotWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    Hook::onEvent = nullptr;
    ASSERT_TRUE(
        parent.Create(L"", L"plot", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 400, 300), nullptr, 0));
    MakeWindow();
  }
  void TearDown() override { Hook::onEvent = nullptr; }
  void MakeWindow() {
    window = std::make_unique<CGUIBaseWnd>();
    ASSERT_TRUE(window->Create(L"plot", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &parent, 1));
    window->SetFuncHook(&Hook::Note);
    Hook::Taken();
  }
  CWnd parent;
  std::unique_ptr<CGUIBaseWnd> window;
};

TEST_F(PlotWindow, WheelAndKeysStepTheZoomAroundThePosition) {
  window->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  window->SendMessage(WM_CHAR, 'q');
  EXPECT_EQ(window->GetZoomStep(), '5') << "nothing before InitView";
  EXPECT_EQ(Hook::Taken(), "");
  window->UserInit(0, 200, 0, 100);
  for (int time = 0; time < 2; ++time) window->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(100, 50));
  EXPECT_EQ(Hook::Taken(), "2 ") << "only another pixel is a move";
  EXPECT_EQ(window->GetCurrentPos().x, 100);
  window->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  window->SendMessage(WM_CHAR, 'M');
  EXPECT_EQ(window->GetZoomFactor(), 0.5);
  EXPECT_DOUBLE_EQ(window->GetViewLimits().Width(), 100);
  window->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
  EXPECT_EQ(window->GetZoomStep(), '4');
  window->SendMessage(WM_CHAR, 'q');
  window->SendMessage(WM_CHAR, 27);
  EXPECT_EQ(Hook::Taken(), "6(q) 5(\x1b) ");
}

TEST_F(PlotWindow, SizingShowsTheLimitsAgainAndScaleRedraws) {
  window->UserInit(0, 200, 100, 0);
  window->ZoomWindow(FRect(50, 60, 70, 50));
  window->MoveWindow(0, 0, 400, 100);
  EXPECT_DOUBLE_EQ(window->GetViewLimits().Width(), 400);
  EXPECT_DOUBLE_EQ(window->GetViewLimits().Height(), 100);
  window->SetScale(12);
  EXPECT_EQ(window->GetScale(), 10);
  EXPECT_DOUBLE_EQ(window->GetViewLimits().Height(), 10);
}

TEST_F(PlotWindow, AtEveryEventAHookMayDestroyItOrShowNothingBehindAModalBox) {
  const std::tuple<EVENT_TYPE, UINT, WPARAM> events[] = {{EVENT_LBUTTON_DOWN, WM_LBUTTONDOWN, MK_LBUTTON},
                                                         {EVENT_BUTTON_UP, WM_LBUTTONUP, 0},
                                                         {EVENT_MOVE, WM_MOUSEMOVE, 0},
                                                         {EVENT_OTHER_DOWN, WM_RBUTTONDOWN, MK_RBUTTON},
                                                         {EVENT_KEY, WM_CHAR, 'q'},
                                                         {EVENT_ESCAPE, WM_CHAR, VK_ESCAPE}};
  for (const bool destroys : {false, true}) {
    for (const auto& [event, message, wParam] : events) {
      MakeWindow();
      window->UserInit(0, 200, 0, 100);
      window->SetDraw([](CGUIBaseWnd& plot) { plot.PlotLine({0, 50}, {200, 50}); });
      window->UpdateWindow();
      EXPECT_EQ(CClientDC(window.get()).GetPixel(100, 50), 0U);
      Hook::onEvent = [&, expected = event](EVENT_TYPE heard) {
        Hook::onEvent = nullptr;
        EXPECT_EQ(heard, expected);
        if (destroys) return window.reset();
        const coregui::test::NextWindow next([](coregui::test::ShownWindow& box) { box.Key(VK_RETURN); });
        window->InitView(FRect(5, 5, 5, 5), true);
        window->MessageBox(L"Delete this point?");
      };
      window->SendMessage(message, wParam, MAKELPARAM(10, 10));
      EXPECT_EQ(Hook::onEvent, nullptr) << "reached";
      EXPECT_EQ(window == nullptr, destroys);
    }
  }
}

TEST_F(PlotWindow, ShapesMarkersAndArrowsStandOnThePixelsOfTheMapping) {
  CGUIBaseView view(1.0, &parent);
  ASSERT_TRUE(view.Create(L"", L"", WS_CHILD, CRect(0, 0, 200, 100), &parent, 2));
  view.InitView(FRect(20, 100, 220, 0), 1.0);
  window->UserInit(0, 200, 0, 100);
  const auto expectMet = [](auto& plot, PNT_2D_record const& at) {
    const PNT_2D_record to{at.x + 20, at.y - 20};
    CRecordingDC dc;
    plot.BeginPlot(dc, CRect(-100, 0, 200, 100), CSize(72, 72));
    plot.PlotRectangle(FRect(at, to));
    plot.PlotPoint(at, PlotMarker::plus, 6);
    plot.PlotArrow(at, to);
    plot.EndPlot();
    const CPoint corner = plot.UserToWindow(at);  // of the rectangle, the marker and the arrow
    const CPoint head = plot.UserToWindow(to);
    for (const CString& call : {CString::Formatted(L"Polyline %d,%d ", corner.x, corner.y),
                                CString::Formatted(L"Polyline %d,%d ", corner.x - 3, corner.y),
                                CString::Formatted(L"Polygon %d,%d ", head.x, head.y)}) {
      EXPECT_GE(dc.GetLog().Find(call), 0) << call.ToUtf8();
    }
  };
  for (const double x : {10.3, 10.7, 18.8, 99.6}) {
    expectMet(view, {x, 50.4});  // left of the extents too, where the mapping rounds the other way
    for (const bool mirrored : {false, true}) {
      window->SetMirrored(mirrored);
      EXPECT_EQ(window->UserToWindow({0, 100}), mirrored ? CPoint(200, 100) : CPoint(0, 0));
      expectMet(*window, {x, 50.4});
    }
  }
}

TEST_F(PlotWindow, TheDialogViewDrawsSmoothLines) {
  CGUIBaseViewWnd view(1.0, &parent);
  ASSERT_TRUE(view.Create(CRect(0, 100, 200, 200), &parent, 2));
  view.SetVertMode(CGUIBaseView::VERT_FILL);
  view.InitView(FRect(0, 100, 200, 0), 1.0);
  view.AddLayer(0, [](CGUIBaseView& plot) { plot.PlotLine({0, 10}, {200, 30}); });
  for (const bool smooth : {true, false}) {
    if (!smooth) view.SetSmoothLines(false);
    view.RedrawWindow();
    const std::vector<DWORD> dots = coregui::test::ShownDots(view);
    const std::set<DWORD> colours(dots.begin(), dots.end());
    EXPECT_EQ(colours.size() > 10, smooth) << "greys";
    EXPECT_EQ(colours.size() == 2, !smooth);
  }
}

}  // namespace
