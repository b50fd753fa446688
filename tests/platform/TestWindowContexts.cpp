// Contexts of windows: they share the window's pixels and keep to the update region.

#include <gtest/gtest.h>

#include <functional>

#include "platform/CDC.h"
#include "platform/CWnd.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

class PaintedWindow : public CWnd {
 public:
  std::function<void(CPaintDC&)> paint;
  std::vector<CRect> erased;

  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_PAINT && paint) {
      CPaintDC dc(this);
      paint(dc);
      return 0;
    }
    if (message == WM_ERASEBKGND) {
      RECT box;
      reinterpret_cast<CDC*>(wParam)->GetClipBox(&box);
      erased.emplace_back(box);
      return 1;
    }
    return CWnd::WindowProc(message, wParam, lParam);
  }
};

class WindowContexts : public testing::Test {
 protected:
  PaintedWindow window;

  void SetUp() override {
    const DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    ASSERT_TRUE(window.Create(L"", L"contexts", style, CRect(0, 0, 200, 100), nullptr, 0));
    window.paint = [](CPaintDC& dc) { dc.FillSolidRect(CRect(0, 0, 200, 100), RGB(255, 255, 255)); };
    window.Invalidate();
    window.UpdateWindow();
    window.erased.clear();
  }
};

TEST_F(WindowContexts, PaintContext_DrawsInTheUpdateRegionOnlyAndValidatesIt) {
  window.paint = [this](CPaintDC& dc) {
    EXPECT_EQ(CRect(dc.GetPaintRect()), CRect(10, 10, 80, 60));
    RECT rest;
    EXPECT_FALSE(window.GetUpdateRect(&rest));
    dc.SelectClipRect(nullptr);
    dc.FillSolidRect(CRect(0, 0, 200, 100), red);
  };
  const CRect first(10, 10, 30, 30);
  const CRect second(60, 40, 80, 60);
  window.InvalidateRect(&first, FALSE);
  window.InvalidateRect(&second, FALSE);
  window.UpdateWindow();
  EXPECT_TRUE(window.erased.empty());
  const CClientDC dc(&window);
  EXPECT_EQ(dc.GetPixel(10, 10), red);
  EXPECT_EQ(dc.GetPixel(79, 59), red);
  EXPECT_EQ(dc.GetPixel(40, 40), RGB(255, 255, 255)) << "between the two pieces";
  EXPECT_EQ(dc.GetPixel(9, 10), RGB(255, 255, 255));
}

TEST_F(WindowContexts, PaintContext_ErasesFirstWhenAsked) {
  const CRect part(5, 5, 25, 25);
  window.InvalidateRect(&part, TRUE);
  window.UpdateWindow();
  ASSERT_EQ(window.erased.size(), 1U);
  EXPECT_EQ(window.erased[0], part);
}

TEST_F(WindowContexts, NestedContexts_DrawOnTheSamePixels) {
  window.paint = [this](CPaintDC& dc) {
    dc.SetAntiAliasing(true);
    dc.Ellipse(CRect(10, 10, 40, 40));
    CClientDC inner(&window);
    inner.SetAntiAliasing(true);
    inner.FillSolidRect(CRect(100, 50, 110, 60), blue);
    inner.Ellipse(CRect(120, 20, 150, 50));
    dc.FillSolidRect(CRect(0, 0, 5, 5), red);
    EXPECT_EQ(dc.GetPixel(105, 55), blue);
  };
  const CRect part(0, 0, 50, 50);
  window.InvalidateRect(&part, FALSE);
  window.UpdateWindow();
  const CClientDC dc(&window);
  EXPECT_EQ(dc.GetPixel(0, 0), red);
  EXPECT_EQ(dc.GetPixel(105, 55), blue) << "outside the update region: the client context draws at once";
}

TEST_F(WindowContexts, WindowResizedOrDestroyedWhilePainting_KeepsTheContextHarmless) {
  window.paint = [this](CPaintDC& dc) {
    window.MoveWindow(0, 0, 20, 20);
    dc.FillSolidRect(CRect(0, 0, 200, 100), red);
    window.DestroyWindow();
    dc.FillSolidRect(CRect(0, 0, 200, 100), blue);
    dc.TextOut(150, 80, L"late", -1);
  };
  window.Invalidate();
  window.UpdateWindow();
  EXPECT_FALSE(window.HasWindow());
  CClientDC none(&window);
  EXPECT_FALSE(none.IsValid());
  none.FillSolidRect(CRect(0, 0, 10, 10), red);
  EXPECT_EQ(none.GetPixel(0, 0), 0xFFFFFFFFU);
  EXPECT_GT(none.GetTextExtent(L"abc", -1).cx, 0);
}

}  // namespace
