// Windows on two screens of different scales (screens.json).

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QWidget>

#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/CWnd.h"
#include "platform/WindowState.h"
#include "platform/qt/RasterTarget.h"
#include "platform/qt/interop.h"

namespace {

/// Paints the number of its paints into a corner, so that a repaint is seen.
class ScreenWindow : public CWnd {
 public:
  ~ScreenWindow() override { DestroyWindow(); }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_DPICHANGED) {
      ++told;
      dots = wParam;
      suggested = *reinterpret_cast<const RECT*>(lParam);
      scaleWhenTold = GetScaleFactor();
    }
    if (message == WM_PAINT) {
      CPaintDC dc(this);
      dc.FillSolidRect(GetClientRectangle(), RGB(++paints, 0, 0));
      return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }
  CSize Dots() const {
    return dynamic_cast<coregui::RasterTarget&>(*State().native->Target()).Pixels()->Dots();
  }
  int told = 0;
  int paints = 0;
  WPARAM dots = 0;
  CRect suggested;
  double scaleWhenTold = 0;
};

class WindowScreens : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(QGuiApplication::screens().size(), 2) << "the environment names screens.json";
    ASSERT_TRUE(
        top.Create(L"", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 300, 200), nullptr, 0));
    ASSERT_TRUE(child.Create(L"", L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 61, 51), &top, 1));
    ASSERT_TRUE(hidden.Create(L"", L"", WS_CHILD, CRect(80, 10, 100, 30), &top, 2));
    CWinApp::PumpPending();
    ASSERT_EQ(top.GetScaleFactor(), 1.0);
  }
  void ExpectScale(double scale, int told) {
    CWinApp::PumpPending();
    for (const ScreenWindow* window : {&top, &child}) {
      EXPECT_EQ(window->told, told);
      EXPECT_EQ(window->scaleWhenTold, scale) << "the surface is there when the window is told";
      EXPECT_EQ(window->dots, MAKEWPARAM(window->GetDpi(), window->GetDpi()));
      EXPECT_EQ(window->suggested, window->State().look.rect);
      EXPECT_EQ(window->paints, 1 + told);
      const CSize size = window->GetClientRectangle().Size();
      EXPECT_EQ(window->Dots(), CSize(static_cast<int>(size.cx * scale), static_cast<int>(size.cy * scale)));
    }
    const QImage shown = coregui::WidgetOf(&top)->grab().toImage();
    EXPECT_EQ(shown.devicePixelRatio(), scale);
    EXPECT_EQ(shown.pixelColor(shown.rect().topLeft()), QColor(top.paints, 0, 0));
    EXPECT_EQ(shown.pixelColor(static_cast<int>(60 * scale), static_cast<int>(50 * scale)),
              QColor(child.paints, 0, 0));
  }
  ScreenWindow top;
  ScreenWindow child;
  ScreenWindow hidden;
};

TEST_F(WindowScreens, AMoveToAScreenOfAnotherScale_MakesTheSurfacesAnewAndTellsEachShownWindowOnce) {
  top.MoveWindow(1200, 100, 200, 100);
  ExpectScale(2.0, 1);
  hidden.ShowWindow(SW_SHOW);
  CWinApp::PumpPending();
  EXPECT_EQ(hidden.told, 1);
  EXPECT_EQ(hidden.Dots(), CSize(40, 40));
  EXPECT_EQ(hidden.paints, 1);
  coregui::WidgetOf(&top)->setGeometry(150, 120, 200, 100);  // as when a person drags the window
  ExpectScale(1.0, 2);
  EXPECT_EQ(top.State().look.rect, CRect(150, 120, 350, 220));
}

TEST_F(WindowScreens, AWindowWithANewParent_TakesItsScale) {
  ScreenWindow other;
  ASSERT_TRUE(other.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(1100, 100, 1300, 200), nullptr, 0));
  CWinApp::PumpPending();
  EXPECT_EQ(other.GetScaleFactor(), 2.0);
  child.SetParent(&other);
  CWinApp::PumpPending();
  EXPECT_EQ(child.told, 1);
  EXPECT_EQ(child.Dots(), CSize(102, 82));
  EXPECT_EQ(child.paints, 2);
}

}  // namespace
