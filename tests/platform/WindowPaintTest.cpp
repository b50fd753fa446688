#include <gtest/gtest.h>

#include <QBackingStore>
#include <QColor>
#include <QImage>
#include <QTest>
#include <QWidget>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <list>
#include <random>
#include <string>
#include <tuple>

#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/System.h"
#include "platform/WindowState.h"
#include "platform/qt/RasterTarget.h"
#include "platform/qt/interop.h"
#include "tests/platform/LogWindow.h"

// Everything here holds at any scale: the runs at other scales repeat it.

using namespace coregui::test;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// Paints a colour for each of its 10-pixel rows, so that moved pixels are told apart from painted ones.
class Striped : public CWnd {
 public:
  ~Striped() override { DestroyWindow(); }
  const coregui::MessageTable& GetMessageTable() const override {
    static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                   .On<WM_PAINT>(&Striped::HandlePaint)
                                                   .On<WM_ERASEBKGND>(&Striped::HandleErase);
    return table;
  }
  static COLORREF ColourOf(int row) { return RGB(row, 100, 200); }
  COLORREF At(int x, int y) {
    CClientDC dc(this);
    return dc.GetPixel(x, y);
  }

  int paints = 0;
  int erases = 0;
  int first = 0;  ///< the row that is at the top
  CRect painted;
  CRect erased;                          ///< the part of the last erasure
  std::function<void(CPaintDC&)> paint;  ///< instead of the rows

 private:
  void HandlePaint() {
    ++paints;
    CPaintDC dc(this);
    painted = dc.GetPaintRect();
    RECT rest;
    EXPECT_FALSE(GetUpdateRect(&rest)) << "a paint context validates";
    dc.SelectClipRect(nullptr);  // what is valid stays as it is all the same
    if (paint) return paint(dc);
    for (int row = 0; row < 20; ++row) {
      dc.FillSolidRect(CRect(0, row * 10, 300, row * 10 + 10), ColourOf(first + row));
    }
  }
  BOOL HandleErase(CDC* dc) {
    RECT box;
    dc->GetClipBox(&box);
    erased = box;
    return ++erases, TRUE;
  }
};

class WindowPaint : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(window.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 100, 100), nullptr, 0));
    CWinApp::PumpPending();
    window.paints = window.erases = 0;
    if (const char* wanted = std::getenv("COREGUI_TEST_SCALE")) {
      ASSERT_EQ(window.GetScaleFactor(), std::stod(wanted));
    }
  }
  /// How often the window is painted by what is done, and until nothing waits.
  int PaintsOf(const std::function<void()>& act) {
    window.paints = 0;
    act();
    CWinApp::PumpPending();
    return window.paints;
  }
  CRect Update() {
    RECT rect;
    window.GetUpdateRect(&rect);
    return rect;
  }
  Striped window;
};

TEST_F(WindowPaint, HappensWhenNothingElseWaitsAndOnceForManyRequests) {
  window.InvalidateRect(nullptr, FALSE);
  const RECT part{90, 95, 500, 500};
  window.InvalidateRect(&part, FALSE);
  EXPECT_EQ(window.paints, 0);
  EXPECT_EQ(Update(), CRect(0, 0, 100, 100));
  EXPECT_EQ(PaintsOf([] {}), 1);
  EXPECT_EQ(window.erases, 0);
  EXPECT_EQ(Update(), CRect());
}

TEST_F(WindowPaint, IsClippedToTheUpdateRegionAndAtOnceOnDemand) {
  const RECT a{10, 10, 20, 20};
  const RECT b{50, 60, 70, 80};
  const RECT hole{50, 60, 70, 70};
  window.first = 50;
  window.InvalidateRect(&a);
  window.InvalidateRect(&b);
  window.ValidateRect(&hole);
  EXPECT_EQ(Update(), CRect(10, 10, 70, 80));
  window.UpdateWindow();
  EXPECT_EQ(window.paints, 1);
  EXPECT_EQ(window.erases, 1);
  EXPECT_EQ(window.painted, CRect(10, 10, 70, 80));
  EXPECT_EQ(window.erased, CRect(10, 10, 70, 80));
  EXPECT_EQ(window.At(15, 15), Striped::ColourOf(51));
  EXPECT_EQ(window.At(60, 75), Striped::ColourOf(57));
  EXPECT_EQ(window.At(60, 65), Striped::ColourOf(6)) << "validated";
  EXPECT_EQ(window.At(30, 30), Striped::ColourOf(3)) << "between the two";
  window.UpdateWindow();
  EXPECT_EQ(window.paints, 1) << "nothing is invalid";
}

TEST_F(WindowPaint, ContextsInsideAPaintDrawOnTheSamePixelsEverywhere) {
  window.paint = [this](CPaintDC& dc) {
    dc.SetAntiAliasing(true);
    dc.Ellipse(CRect(10, 10, 40, 40));
    CClientDC inner(&window);
    inner.SetAntiAliasing(true);
    inner.Ellipse(CRect(60, 20, 90, 50));
    inner.FillSolidRect(CRect(80, 50, 90, 60), kBlue);
    dc.FillSolidRect(CRect(0, 0, 5, 5), kRed);
    EXPECT_EQ(dc.GetPixel(85, 55), kBlue);
  };
  const RECT part{0, 0, 50, 50};
  window.InvalidateRect(&part, FALSE);
  window.UpdateWindow();
  EXPECT_EQ(window.At(0, 0), kRed);
  EXPECT_EQ(window.At(85, 55), kBlue) << "outside the update region: the client context draws at once";
}

TEST_F(WindowPaint, AWindowResizedOrDestroyedMeanwhileLeavesTheContextHarmless) {
  window.paint = [this](CPaintDC& dc) {
    window.MoveWindow(0, 0, 20, 20);
    dc.FillSolidRect(CRect(0, 0, 200, 100), kRed);
    window.DestroyWindow();
    dc.FillSolidRect(CRect(0, 0, 200, 100), kBlue);
    dc.TextOut(150, 80, L"late", -1);
  };
  window.RedrawWindow();
  EXPECT_FALSE(window.HasWindow());
  CClientDC none(&window);
  EXPECT_FALSE(none.IsValid());
  none.FillSolidRect(CRect(0, 0, 10, 10), kRed);
  EXPECT_EQ(none.GetPixel(0, 0), 0xFFFFFFFFU);
  EXPECT_GT(none.GetTextExtent(L"abc", -1).cx, 0);
}

TEST_F(WindowPaint, HeldBackWhileRedrawIsOffOrTheWindowIsHidden) {
  window.SetRedraw(FALSE);
  window.Invalidate();
  EXPECT_EQ(PaintsOf([this] { window.UpdateWindow(); }), 0);
  EXPECT_EQ(PaintsOf([this] { window.SetRedraw(TRUE); }), 1);
  window.ShowWindow(SW_HIDE);
  EXPECT_EQ(PaintsOf([this] { window.Invalidate(); }), 0);
  EXPECT_EQ(PaintsOf([this] { window.ShowWindow(SW_SHOW); }), 1);
}

/// What the toolkit shows of a window on the screen.
QImage ScreenOf(const CWnd& window) {
  CWinApp::PumpPending();
  const auto* screen = dynamic_cast<QImage*>(WidgetOf(&window)->backingStore()->paintDevice());
  return screen == nullptr ? QImage() : screen->copy();
}

/// The same, against the pixels of the windows themselves.
class WindowShown : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(window.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(10, 10, 410, 310), nullptr, 0));
    // Places between the dots of a screen with a fractional scale, and a window over the scrolled one.
    const CRect places[] = {CRect(3, 5, 204, 291), CRect(205, 5, 396, 120), CRect(150, 200, 250, 270)};
    for (std::size_t i = 0; i < std::size(places); ++i) {
      const DWORD border = i == 1 ? WS_BORDER : 0;
      ASSERT_TRUE(children[i].Create(L"", L"", WS_CHILD | WS_VISIBLE | border, places[i], &window, 0));
      children[i].first = static_cast<int>(i) * 50;
    }
    CWinApp::PumpPending();
  }
  /// The number of dots of a window that the screen shows otherwise, but for those in `above`.
  int WrongDotsOf(const CWnd& of, CPoint corner, const CRect& above = CRect()) {
    const auto* target = dynamic_cast<const coregui::RasterTarget*>(of.State().native->Target().get());
    if (target == nullptr) return -1;
    const QImage screen = ScreenOf(window);
    const QImage own = target->Pixels()->Snapshot();
    const double scale = target->Scale();
    const int left = static_cast<int>(std::floor(corner.x * scale + 0.5));
    const int top = static_cast<int>(std::floor(corner.y * scale + 0.5));
    int wrong = 0;
    for (int y = top; y < top + own.height(); ++y) {
      for (int x = left; x < left + own.width(); ++x) {
        const CPoint at(static_cast<LONG>(x / scale), static_cast<LONG>(y / scale));
        if (above.PtInRect(at)) continue;
        wrong += screen.pixel(x, y) == own.pixel(x - left, y - top) ? 0 : 1;
      }
    }
    return wrong;
  }
  /// Those of all children, but for the parts of the first two that lie below the third.
  int WrongDots() {
    CWinApp::PumpPending();
    int wrong = 0;
    CRect above = children[2].State().look.rect;
    above.InflateRect(1, 1);
    for (const Striped& child : children) {
      CPoint corner = child.State().look.rect.TopLeft();
      corner.Offset(child.State().look.border, child.State().look.border);
      wrong += WrongDotsOf(child, corner, &child == &children[2] ? CRect() : above);
    }
    return wrong;
  }
  Striped window;
  Striped children[3];
};

TEST_F(WindowShown, EveryDotOfASurfaceIsThatOfTheScreenAfterAnyDrawing) {
  EXPECT_EQ(WrongDots(), 0);
  std::mt19937 random(7);
  const auto any = [&random](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  for (int step = 0; step < 90; ++step) {
    Striped& child = children[any(0, 2)];
    const CRect client = child.GetClientRectangle();
    const int x = any(0, client.Width() - 1);
    const int y = any(0, client.Height() - 1);
    switch (any(0, 5)) {
      case 0: {
        CClientDC dc(&child);
        dc.FillSolidRect(CRect(x, y, x + any(1, 90), y + any(1, 5)), RGB(step, 0, any(0, 255)));
        dc.FillSolidRect(CRect(y, x, y + 1, x + 1), kRed);
        break;
      }
      case 1: {
        CClientDC dc(&child);
        dc.BitBlt(0, 0, client.Width(), client.Height() - 20, &dc, 0, 20, SRCCOPY);
        break;
      }
      case 2: {
        const CRect part(any(0, 1) * x / 2, y / 2, client.right, client.bottom);
        child.ScrollWindow(any(0, 2) == 0 ? any(-9, 9) : 0, any(-40, 40), &part, &part);
        break;
      }
      case 3:  // below the others, who must not show it
        CClientDC(&window).FillSolidRect(CRect(x, y, x + any(1, 300), y + any(1, 200)), RGB(0, step, 0));
        break;
      case 4:  // a picture that somebody takes is not the screen
        WidgetOf(&child)->grab();
        break;
      default:
        child.first = any(0, 200);
        child.RedrawWindow();
        break;
    }
    if (any(0, 2) == 0) continue;  // the next drawing comes before this one is shown
    ASSERT_EQ(WrongDots(), 0) << "step " << step;
  }
  for (Striped& child : children) child.ShowWindow(SW_HIDE);
  CWinApp::PumpPending();
  EXPECT_EQ(WrongDotsOf(window, {0, 0}), 0) << "what was drawn below them";
}

/// Between two dots of the screen, windows that touch leave none to nobody.
TEST(WindowSeams, NoDotBetweenWindowsStaysUnpainted) {
  const auto red = [](CPaintDC& dc) {
    dc.FillSolidRect(CRect(0, 0, 300, 300), kBlue);
    dc.FillSolidRect(CRect(0, 0, 1, 1), kRed);  // no surface of one colour
    dc.FillSolidRect(CRect(0, 0, 300, 300), kRed);
  };
  Striped window;
  window.paint = red;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 200), nullptr, 0));
  std::list<Striped> children;
  for (int top = 0; top < 200; top += 11) {
    for (int left = 0; left < 200; left += 13) {
      // Some touch, some leave a strip of the parent between them.
      const CRect place(left, top, std::min(left + 13 - left % 3, 200), std::min(top + 11 - top % 3, 200));
      children.emplace_back().paint = red;
      ASSERT_TRUE(children.back().Create(L"", L"", WS_CHILD | WS_VISIBLE, place, &window, 0));
    }
  }
  const auto wrong = [&window] {
    const QImage screen = ScreenOf(window);
    int count = screen.isNull() ? 1 : 0;
    for (int y = 0; y < screen.height(); ++y) {
      for (int x = 0; x < screen.width(); ++x) count += screen.pixelColor(x, y) == Qt::red ? 0 : 1;
    }
    return count;
  };
  EXPECT_EQ(wrong(), 0);
  // As when a person sizes the window and its panes follow.
  for (const int by : {1, 3, 4, 10}) {
    window.MoveWindow(0, 0, 200 + by, 200 + by);
    for (Striped& child : children) {
      CRect place = child.State().look.rect;
      place.OffsetRect(by, by);
      child.MoveWindow(place);
    }
    EXPECT_EQ(wrong(), 0) << "moved by " << by;
  }
}

/// A picture, or the part of it that falls to the window, in which no two pixels near each other are alike.
class Piece : public CWnd {
 public:
  ~Piece() override { DestroyWindow(); }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_ERASEBKGND) return CWnd::WindowProc(message, wParam, lParam);
    CDC& dc = *reinterpret_cast<CDC*>(wParam);
    dc.FillSolidRect(GetClientRectangle(), kRed);
    if (shown.IsRectEmpty()) return 1;
    dc.SetViewportOrg(shown.left, shown.top);
    dc.IntersectClipRect(CRect(CPoint(), shown.Size()));
    dc.SetViewportOrg(-start.x, -start.y);
    for (LONG x = 0; x < kAll.right; ++x)
      dc.FillSolidRect(CRect(x, 0, x + 1, kAll.bottom), RGB(0, 99, 2 * x));
    for (LONG y = 0; y < kAll.bottom; y += 2) dc.InvertRect(CRect(0, y, kAll.right, y + 1));
    dc.TextOut(3, 20, L"Chainage 1+250.00", -1);
    for (const bool smooth : {false, true}) {
      dc.SetAntiAliasing(smooth);
      dc.MoveTo(1, 1);
      dc.LineTo(99, 70);
      dc.Ellipse(CRect(5, 33, 88, 69));
    }
    return 1;
  }
  static constexpr CRect kAll{0, 0, 105, 78};
  CRect shown;   ///< what of the window has the picture; the rest is red
  CPoint start;  ///< of the window in the picture
};

/// At every place between two dots, and for every width: edges of the tiles are at 0, 1, 3, 6, 10 ...
TEST(WindowSeams, APictureInPiecesIsThePictureDotForDot) {
  Piece window;
  ASSERT_TRUE(window.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 120, 90), nullptr, 0));
  Piece pane;
  ASSERT_TRUE(pane.Create(L"", L"", WS_CHILD, Piece::kAll, &window, 0));
  std::list<Piece> tiles;
  const auto add = [&tiles](CRect place, Piece& parent) {
    tiles.emplace_back().start = parent.start + CSize(place.left, place.top);
    tiles.back().shown = CRect(CPoint(), place.Size());
    EXPECT_TRUE(tiles.back().Create(L"", L"", WS_CHILD | WS_VISIBLE, place, &parent, 0));
  };
  for (LONG height = 1, top = 0; top < Piece::kAll.bottom; top += height++) {
    for (LONG width = 1, left = 0; left < Piece::kAll.right; left += width++) {
      add(CRect(left, top, left + width, top + height), pane);
      if (width > 4 && height > 4) add(CRect(1, 2, width - 2, height - 1), tiles.back());
    }
  }
  for (int at = 0; at < 16; ++at) {
    const CPoint place(at % 4, at / 4);
    SCOPED_TRACE(at);
    pane.ShowWindow(SW_HIDE);
    window.shown = CRect(place, Piece::kAll.Size());
    window.start = CPoint(-place.x, -place.y);
    window.Invalidate();
    const QImage whole = ScreenOf(window);
    window.shown = CRect();
    window.Invalidate();
    pane.ShowWindow(at % 2 == 0 ? SW_SHOW : SW_HIDE);
    pane.MoveWindow(place.x, place.y, Piece::kAll.right, Piece::kAll.bottom);
    pane.ShowWindow(SW_SHOW);
    EXPECT_EQ(ScreenOf(window), whole);
    CBitmap bitmap;
    const CClientDC screen(&window);
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 120, 90));
    CMemoryDC paper(&screen, &bitmap);
    window.PrintTo(&paper);
    EXPECT_EQ(dynamic_cast<coregui::RasterTarget*>(paper.Target())->Pixels()->Snapshot(), whole);
  }
  for (const Piece& tile : tiles) {
    const QImage alone = WidgetOf(&tile)->grab().toImage();
    EXPECT_EQ(alone.pixelColor(alone.width() - 1, alone.height() - 1).alpha(), 255);
  }
}

/// Held against moving the pixels one by one.
TEST_F(WindowPaint, ScrollingMovesPixelsUncoversABandAndCarriesThePendingRegion) {
  const CRect all(0, 0, 100, 100);
  // The name, the way, the update region afterwards and before, the area and the clip; empty: null.
  const std::tuple<const char*, CSize, CRect, CRect, CRect, CRect> rows[] = {
      {"up", {0, -10}, {0, 90, 100, 100}, {}, {}, {}},
      {"down", {0, 15}, {0, 0, 100, 15}, {}, {}, {}},
      {"left", {-30, 0}, {70, 0, 100, 100}, {}, {}, {}},
      {"right", {7, 0}, {0, 0, 7, 100}, {}, {}, {}},
      {"diagonal", {20, -30}, all, {}, {}, {}},
      {"a part", {0, -10}, {20, 70, 80, 80}, {}, {20, 20, 80, 80}, {}},
      {"clipped", {0, 10}, {0, 0, 50, 10}, {}, {0, 0, 100, 50}, {0, 0, 50, 50}},
      {"all gone", {0, -100}, all, {}, {}, {}},
      {"pending moves", {0, -10}, {0, 30, 100, 100}, {0, 40, 100, 50}, {}, {}},
      {"pending outside", {0, -10}, {0, 0, 100, 60}, {0, 0, 10, 10}, {0, 20, 100, 60}, {}},
      {"nowhere", {0, 0}, {}, {}, {}, {}}};
  for (const auto& [name, by, uncovered, pending, wantedArea, wantedClip] : rows) {
    SCOPED_TRACE(name);
    window.RedrawWindow();
    CClientDC dc(&window);
    for (int x = 0; x < 100; x += 10) dc.FillSolidRect(CRect(x, 0, x + 1, 100), RGB(x, 0, 0));
    COLORREF before[100][100];
    for (int at = 0; at < 10'000; ++at) before[at / 100][at % 100] = dc.GetPixel(at % 100, at / 100);
    if (!pending.IsRectEmpty()) window.InvalidateRect(&pending, FALSE);
    window.ScrollWindow(by.cx, by.cy, wantedArea.IsRectEmpty() ? nullptr : &wantedArea,
                        wantedClip.IsRectEmpty() ? nullptr : &wantedClip);
    const CRect area = wantedArea.IsRectEmpty() ? all : wantedArea;
    const CRect clip = wantedClip.IsRectEmpty() ? area : wantedClip;
    // Pixels are not moved by a part of a dot; what they would have reached is painted.
    const double scale = window.GetScaleFactor();
    const bool moves = std::fmod(by.cx * scale, 1.0) == 0.0 && std::fmod(by.cy * scale, 1.0) == 0.0;
    CRect update = uncovered;
    if (!moves) update.UnionRect(update, clip);
    EXPECT_EQ(Update(), update);
    int wrong = 0;
    for (int at = 0; at < 10'000; ++at) {
      const CPoint to(at % 100, at / 100);
      const CPoint from(to.x - by.cx, to.y - by.cy);
      const CPoint source = moves && clip.PtInRect(to) && area.PtInRect(from) ? from : to;
      wrong += dc.GetPixel(to.x, to.y) == before[source.y][source.x] ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
    window.ValidateRect(nullptr);
  }
}

TEST(WindowBorder, LiesRoundTheClientAreaUnlessThereIsACaption) {
  OpenWindow window(CRect(0, 0, 60, 40));
  OpenWindow child(window, CRect(10, 10, 30, 26));
  OpenWindow inner(child, CRect(0, 0, 4, 4));
  OpenWindow later(window, CRect(40, 10, 50, 20));
  OpenWindow beyond(later, CRect(8, 8, 20, 20));  // reaches out of its parent, where it is not seen
  child.logs = kStates;
  child.ModifyStyle(0, WS_BORDER);
  EXPECT_EQ(child.GetClientRectangle(), CRect(0, 0, 18, 14));
  CPoint corner;
  child.ClientToScreen(&corner);
  RECT outer;
  child.GetWindowRect(&outer);
  EXPECT_EQ(CRect(outer), CRect(corner.x - 1, corner.y - 1, corner.x + 19, corner.y + 15));
  EXPECT_EQ(CWnd::WindowFromPoint(CPoint(corner.x + 3, corner.y + 3)), &inner);
  EXPECT_EQ(CWnd::WindowFromPoint(CPoint(corner.x + 4, corner.y + 3)), &child);
  EXPECT_EQ(inner.State().look.rect, CRect(0, 0, 4, 4));
  child.MoveWindow(10, 10, 20, 15);
  // A click reaches the client area with its own coordinates, and the border not at all.
  for (const int y : {1, 0}) QTest::mouseClick(WidgetOf(&child), Qt::LeftButton, {}, QPoint(6, y));
  EXPECT_EQ(child.TakeLog(), "5 0 18,14;5 0 18,13;201 1 5,0;202 0 5,0;");
  CWinApp::PumpPending();
  CClientDC(&child).FillSolidRect(CRect(0, 0, 18, 13), kBlue);
  CClientDC(&inner).FillSolidRect(CRect(0, 0, 4, 4), kRed);
  CClientDC(&later).FillSolidRect(CRect(0, 0, 10, 10), kRed);
  CClientDC(&beyond).FillSolidRect(CRect(0, 0, 12, 12), kBlue);
  CWinApp::PumpPending();
  const QImage shown = WidgetOf(&window)->grab().toImage();
  const double scale = shown.devicePixelRatio();
  CBitmap bitmap;
  const CClientDC screen(&window);
  ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 60, 40));
  CMemoryDC printed(&screen, &bitmap);
  window.PrintTo(&printed);
  const COLORREF border = GetSysColor(COLOR_3DDKSHADOW);
  // The desktop's frame is enough for the window; and what lies beyond a parent stays as it is.
  constexpr COLORREF kGround = RGB(255, 255, 255);
  const std::pair<CPoint, COLORREF> dots[] = {
      {{10, 10}, border}, {{29, 17}, border},  {{15, 24}, border}, {{20, 11}, kBlue}, {{28, 23}, kBlue},
      {{11, 20}, kBlue},  {{48, 18}, kBlue},   {{11, 11}, kRed},   {{14, 14}, kRed},  {{45, 15}, kRed},
      {{0, 0}, kGround},  {{52, 18}, kGround}, {{48, 22}, kGround}};
  const auto dot = [scale](LONG pixel) { return static_cast<int>((pixel + 0.5) * scale); };
  for (const auto& [at, colour] : dots) {
    const QRgb rgb = shown.pixel(dot(at.x), dot(at.y));
    EXPECT_EQ(RGB(qRed(rgb), qGreen(rgb), qBlue(rgb)), colour) << at.x << ',' << at.y;
    EXPECT_EQ(printed.GetPixel(at.x, at.y), colour) << at.x << ',' << at.y;
  }
}

}  // namespace
