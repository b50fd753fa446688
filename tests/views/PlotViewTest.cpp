#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/support/ShownWindow.h"
#include "tests/views/ViewFixture.h"

namespace {

using coregui::test::Hook;
using coregui::test::TestView;
using coregui::test::ViewTest;

class PlotView : public ViewTest {};

TEST_F(PlotView, NothingHappensBeforeInitViewWhichFitsNotifiesAndRepaints) {
  MakeView(false);
  parent.changes = 0;
  view->Redraw();
  Do(">10,10 L+ >20,20 L- R+ R- M+ >30,30 M- 'm 'x wheel+");
  EXPECT_EQ(Hook::Taken(), "");
  EXPECT_EQ(parent.changes, 0);
  view->UpdateWindow();
  view->InitView(FRect(0, 10, 100, 0), 1.0);
  EXPECT_EQ(parent.changes, 1);
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(0, 40));
  CRect update;
  EXPECT_TRUE(view->GetUpdateRect(&update));
  EXPECT_EQ(update, CRect(0, 0, 200, 100));
}

TEST_F(PlotView, WheelAndKeysZoomAroundThePositionFitOrArePassedOn) {
  // The scale afterwards (0.5 before), what the hook hears, how many changes the parent hears of, and whether
  // the position (30, 5) comes from (60, 50) to the middle.
  constexpr std::tuple<const char*, double, const char*, int, bool> rows[] = {
      {"wheel-", 0.625, "2 ", 1, true},   {"wheel+", 0.4, "2 ", 1, true},
      {"'M", 0.25, "2 ", 1, true},        {"'D", 1.0, "2 ", 1, true},
      {"'r", 0.5, "", 1, false},          {"'w", 0.5, "", 1, true},  // moves no pointer
      {"'S", 0.5, "", 0, false},          {"'x", 0.5, "6(x) ", 0, false},
      {"esc", 0.5, "5(\x1b) ", 0, false}, {"^M", 0.25, "2 ", 1, true},
      {"^C", 0.5, "6(C) ", 0, false},     {"'Z wheel+ 'm", 0.5, "13(Z) ", 0, false}};
  for (const auto& [steps, scale, heard, changes, centred] : rows) {
    SCOPED_TRACE(steps);
    MakeView();
    view->SetCurrentPos({30, 5});
    view->UpdateWindow();
    Hook::Taken();
    parent.changes = 0;
    Do(steps);
    EXPECT_DOUBLE_EQ(view->GetScale(), scale);
    EXPECT_EQ(Hook::Taken(), heard);
    EXPECT_EQ(parent.changes, changes) << "a repaint is no change";
    EXPECT_EQ(view->UserToWindow({30, 5}), centred ? CPoint(100, 50) : CPoint(60, 50));
    EXPECT_EQ(view->GetUpdateRect(nullptr) != FALSE, changes > 0 || steps[1] == 'S');
    EXPECT_EQ(Hook::lastFlags, steps == std::string("^C") ? KEYFLAG_CTRL : 0);
  }
  view->EscapePressed();
  view->SendMessage(WM_MOUSEWHEEL, 0, 0);
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.4) << "no direction counts as towards the drawing";
}

TEST_F(PlotView, WithARulerZoomingOutBeyondTheFitRefits) {
  view->AddLayer(0, [](CGUIBaseView& plot) { plot.PlotRuler(PlotSide::left); });
  view->UpdateWindow();
  view->SendMessage(WM_CHAR, 'm');
  view->SetCurrentPos({0, 0});
  const int before = parent.changes;
  for (int time = 0; time < 2; ++time) {
    view->SendMessage(WM_CHAR, 'd');
    EXPECT_EQ(view->GetScale(), 0.5);
    EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(0, 40)) << "fitted, not zoomed around the position";
    EXPECT_EQ(parent.changes, before + 1);
  }
}

TEST_F(PlotView, TrackingReplacesThePositionOnlyOnAnotherPixel) {
  view->Move({10, 50});
  EXPECT_EQ(Hook::Taken(), "2 12 ");
  EXPECT_EQ(view->GetCurrentPos().x, 5);
  view->Move({10, 50});
  EXPECT_EQ(Hook::Taken(), "");
  view->SetCurrentPos({33.3, 4.4});
  EXPECT_EQ(Hook::Taken(), "2 ");
  view->Move(view->UserToWindow({33.3, 4.4}));
  EXPECT_EQ(view->GetCurrentPos().x, 33.3) << "the exact position survives the pointer";
  EXPECT_EQ(view->GetBasePoint().y, 4.4);
  view->Move({12, 50}, MK_SHIFT | MK_CONTROL | MK_LBUTTON);
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_SHIFT | KEYFLAG_CTRL | KEYFLAG_LEFT);
  Hook::Taken();
  coregui::test::TakePointerAway(*view);
  view->Move({13, 50});
  EXPECT_EQ(Hook::Taken(), "2 12 ");
}

TEST_F(PlotView, TheToleranceOfAccurateCoordinatesIsKept) {
  view->SetCurrentPos({50.1, 5.05});
  // Pixel (1, 1) is the world point (0.5, 29.5): wide open downwards, half a unit across.
  EXPECT_EQ(view->AccurateCoordFromScreen({101, 55}).x, 50.1);
  EXPECT_EQ(view->AccurateCoordFromScreen({101, 99}).y, 5.05);
  EXPECT_EQ(view->AccurateCoordFromScreen({102, 50}).x, 51.0);
}

TEST_F(PlotView, ButtonsTellTheHook) {
  view->Move({10, 50});
  Hook::Taken();
  view->Press(MK_LBUTTON, {90, 50});
  EXPECT_EQ(Hook::lastPosition.x, 5) << "a press leaves the position";
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_LEFT);
  view->Release(MK_LBUTTON, {90, 50});
  EXPECT_EQ(Hook::lastPosition.x, 45) << "a left release moves it first";
  view->Press(MK_RBUTTON, {10, 50});
  view->Release(MK_RBUTTON, {10, 50});
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_RIGHT);
  EXPECT_EQ(Hook::Taken(), "0 1 4 1 ");
}

TEST_F(PlotView, AZoomBoxZoomsOrIsCancelledAndTells) {
  constexpr std::tuple<const char*, const char*, bool> rows[] = {
      {">60,58 L-", "15 ", true},   {">60,58 space", "15( ) ", true},      {">60,42 L-", "15 ", false},
      {">20,58 L-", "15 ", false},  {">60,58 esc", "5(\x1b) ", false},     {">60,58 R+", "5 ", false},
      {">60,58 lose", "5 ", false}, {">60,58 'x 'm space", "15( ) ", true}};
  for (const auto& [end, heard, zooms] : rows) {
    SCOPED_TRACE(end);
    MakeView();
    const std::vector<DWORD> before = view->Picture();
    Do("'z >20,42 L+ >70,68");
    EXPECT_EQ(CWnd::GetCapture(), view.get());
    EXPECT_NE(view->Picture(), before);
    view->Invalidate();
    view->UpdateWindow();  // painting in the middle must not break the exclusive-or
    EXPECT_EQ(Hook::Taken(), "13(z) 12 14 ");
    Do(end);
    EXPECT_EQ(Hook::Taken(), heard);
    EXPECT_NE(CWnd::GetCapture(), view.get());
    CWnd::ReleaseCapture();
    EXPECT_FALSE(view->IsZoomBoxMode());
    EXPECT_DOUBLE_EQ(view->GetScale(), zooms ? 20.0 / 200 : 0.5);
    EXPECT_EQ(view->UserToWindow({20, 5}), zooms ? CPoint(100, 50) : CPoint(40, 50));
    // A cancelled box takes its outline away. Kept: a finished one leaves it to the repaint of the zoom.
    EXPECT_TRUE(zooms || (view->Picture() == before) == (heard != std::string("15 ")));
  }
}

TEST_F(PlotView, ABoxThatAnotherViewEndsIsTakenAwayWhereItWasDrawn) {
  TestView other(1.0, &parent);
  other.CreateIn(parent, CRect(0, 100, 200, 200));
  other.InitView(FRect(0, 10, 100, 0), 1.0);
  for (const auto end : {CGUIBaseView::ZOOM_CLICK, CGUIBaseView::ZOOM_CANCEL}) {
    const std::vector<DWORD> before = view->Picture();
    const std::vector<DWORD> others = other.Picture();
    Do("'z >20,42 L+ >60,58");
    other.ZoomBox(CGUIBaseView::ZOOM_MOVE);
    other.ZoomBox(end);
    EXPECT_EQ(view->Picture(), before);
    EXPECT_EQ(other.Picture(), others);
    EXPECT_EQ(other.GetScale() == 0.5, end == CGUIBaseView::ZOOM_CANCEL);
    other.Redraw();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_FALSE(coregui::CZoomBox::Shared().IsInProgress());
    view->EscapePressed();
  }
}

TEST_F(PlotView, TheMiddleButtonPansAndTells) {
  const std::pair<const char*, int> steps[] = {
      {">50,50 M+", 1}, {">53,47", 2}, {">57,49", 3}, {"M-", 4}, {">80,80", 4}};
  parent.changes = 0;
  for (const auto& [step, changes] : steps) {
    Do(step);
    EXPECT_EQ(parent.changes, changes) << step;
  }
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(7, 39)) << "not on after the release";
  EXPECT_EQ(Hook::Taken(), "2 12 4 16 16 1 2 ");
  Do("M+ lose >90,90");
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(7, 39)) << "another window took the mouse";
  CWnd::ReleaseCapture();
}

TEST_F(PlotView, ASlaveFollowsHorizontallyAndIgnoresItsOwnGestures) {
  TestView slave(2.0, &parent);
  slave.CreateIn(parent, CRect(0, 100, 200, 200));
  slave.InitView(FRect(-5, 3, 5, 0), 2.0);
  view->SetSlaveView(&slave);
  FRect extents;
  slave.GetRedrawLimits(extents);
  EXPECT_EQ(std::pair(extents.GetRight(), extents.GetTop()), std::pair(100.0, 3.0));
  parent.changes = 0;
  view->SendMessage(WM_CHAR, 'm');
  EXPECT_EQ(parent.changes, 0) << "with a slave the parent is not told";
  EXPECT_EQ(slave.GetScale(), 0.25);
  slave.SetFuncHook(&Hook::Note);
  Hook::Taken();
  for (const UINT key : {'m', 'd', 'r', 's', 'w', 'z'}) slave.SendMessage(WM_CHAR, key);
  slave.Wheel(1);
  slave.Redraw();
  EXPECT_EQ(Hook::Taken(), "") << "not even passed on";
  EXPECT_EQ(slave.GetScale(), 0.25);
  parent.changes = 0;
  Do(">50,50 M+ >43,50 M-");
  EXPECT_EQ(parent.changes, 2) << "press and release always tell the parent";
  EXPECT_EQ(slave.UserToWindow({13.7, 0}).x, view->UserToWindow({13.7, 0}).x);
}

TEST_F(PlotView, AtEveryEventAHookMayDestroyTheViewChangeItsMappingOrOpenAModalBox) {
  // Each event, and a way to it.
  const char* const ways =
      "0 L+; 1 L+ >60,58 L-; 1 R+ R-; 1 M+ M-; 2 >60,58; 2 wheel+; 2 'm; 4 R+; 4 M+; 5 esc; 6 'x; 12 >60,58; "
      "5 'z >20,42 L+ >60,58 esc; 5 'z >20,42 L+ >60,58 lose; 13 'z; 14 'z >20,42 L+; "
      "15 'z >20,42 L+ >60,58 L-; 15 'z >20,42 L+ space; 16 M+ >60,58";
  const std::pair<const char*, std::function<void()>> acts[] = {
      {"destroys", [this] { view.reset(); }},
      {"destroys the window of", [this] { view->DestroyWindow(); }},
      {"changes",
       [this] {
         view->SetVertMode(CGUIBaseView::VERT_FILL);
         view->InitView(FRect(0, 1, 1, 0), 3.0);
       }},
      {"shows a box over", [this] {
         const coregui::test::NextWindow next([this](coregui::test::ShownWindow& box) {
           view->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(150, 20));
           box.Key(VK_RETURN);
         });
         view->MessageBox(L"Delete this point?");
       }}};
  for (const auto& [act, run] : acts) {
    std::istringstream rows(ways);
    int event = 0;
    for (std::string steps; rows >> event && std::getline(rows, steps, ';');) {
      SCOPED_TRACE(std::string(act) + " the view at " + std::to_string(event) + steps);
      MakeView();
      bool reached = false;
      Hook::onEvent = [&, run = run, awaited = event](EVENT_TYPE heard) {
        if (heard == awaited && !reached) {
          reached = true;
          run();
        }
      };
      Do(steps);
      EXPECT_TRUE(reached);
      Hook::onEvent = nullptr;
      CWnd::ReleaseCapture();
      if (view != nullptr && view->HasWindow()) {
        if (view->IsZoomBoxMode()) view->SendMessage(WM_CHAR, VK_ESCAPE);
        view->SendMessage(WM_CHAR, 'r');
        Hook::Taken();
        view->Move({101, 51});
        view->Move({102, 51});
        EXPECT_EQ(Hook::Taken().substr(0, 2), "2 ") << "it goes on";
        EXPECT_EQ(view->UserToWindow(view->GetCurrentPos()), CPoint(102, 51));
      }
      EXPECT_FALSE(coregui::CZoomBox::Shared().IsInProgress());
    }
  }
}

TEST_F(PlotView, AParentMayDestroyTheViewWhenItsMappingChanges) {
  parent.onChange = [this] { view.reset(); };
  Do("'z >20,42 L+ >60,58 L-");
  EXPECT_EQ(view, nullptr) << "the zoom of a box";
}

TEST_F(PlotView, WhileTheHookIsBusyMovesAreIgnoredAndNothingIsAKey) {
  Hook::onEvent = [this](EVENT_TYPE) {
    Hook::onEvent = nullptr;
    view->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(150, 20));
  };
  view->Move({60, 9});
  EXPECT_EQ(Hook::Taken(), "2 12 ") << "the inner move is ignored";
  Hook::onEvent = [this](EVENT_TYPE) {
    Hook::onEvent = nullptr;
    view->Press(MK_RBUTTON, {150, 20});
  };
  view->SendMessage(WM_CHAR, 'x');
  EXPECT_EQ(Hook::Taken(), "6(x) 4 ") << "the button has no key code";
  view->DestroyWindow();
  view->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
  EXPECT_EQ(Hook::Taken(), "") << "nothing after the window is gone";
}

TEST_F(PlotView, AMasterForgetsItsSlaveWhoeverDiesFirst) {
  auto slave = std::make_unique<TestView>(1.0, &parent);
  TestView(1.0, &parent).SetSlaveView(slave.get());
  view->SetSlaveView(slave.get());
  view->SendMessage(WM_CHAR, 'm');
  EXPECT_EQ(slave->GetScale(), 0.25) << "of two masters one is left";
  slave.reset();
  parent.changes = 0;
  view->SendMessage(WM_CHAR, 'm');
  EXPECT_EQ(parent.changes, 1) << "without a slave the parent hears";
}

TEST_F(PlotView, WhatStandsStillIsThereAfterEveryStepOfAPan) {
  const auto draw = [](CGUIBaseView& plot) {
    plot.ClipToDrawing(true);
    plot.PlotPolyline({{-50, 2}, {30, 9}, {60, 1}, {150, 8}});
    plot.ClipToDrawing(false);
    plot.PlotFrame();
    plot.PlotTable({{L"Row", 10, false, {{30, L"30"}, {60, L"60"}}}});
    plot.PlotTitleBlock({L"Title"}, 40);
    plot.PlotText(plot.WindowToUser(60, 40), L"Legend");
    plot.KeepInPlace({60, 20, 110, 50});
  };
  const auto ruled = [draw](CGUIBaseView& plot) {
    draw(plot);
    plot.PlotRuler(PlotSide::left);
    plot.PlotRuler(PlotSide::top);
  };
  TestView slave(2.0, &parent);
  slave.CreateIn(parent, CRect(0, 100, 200, 200));
  slave.InitView(FRect(0, 10, 100, 0), 2.0);
  for (const bool ruler : {false, true}) {
    for (TestView* plot : {view.get(), &slave}) {
      plot->ClearLayers();
      plot->AddLayer(0, ruler ? std::function<void(CGUIBaseView&)>(ruled) : draw);
      plot->SetMargins(CRect(18, 12, 8, 20));
    }
    view->SetSlaveView(&slave);
    view->Redraw();
    view->Picture();
    slave.Picture();
    view->Press(MK_MBUTTON, {50, 50});
    CPoint at(50, 50);
    for (const CSize by : {CSize(7, -4), CSize(-12, 9), CSize(3, 0), CSize(0, 5)}) {
      at = at + by;
      view->Move(at, MK_MBUTTON);
      if (by.cx == 7) continue;  // two steps between paintings
      for (TestView* plot : {view.get(), &slave}) {
        const std::vector<DWORD> panned = plot->Picture();
        plot->Invalidate();
        EXPECT_EQ(panned, plot->Picture()) << ruler << by.cx << (plot == &slave ? " slave" : "");
      }
    }
    view->Release(MK_MBUTTON, at);
  }
}

TEST_F(PlotView, PrintingFitsThePageAndPutsTheWindowBack) {
  CPoint corner;  // of the page that shows the extents' lower right one
  view->AddLayer(0, [&](CGUIBaseView& plot) {
    EXPECT_TRUE(plot.IsPrinting());
    EXPECT_EQ(plot.GetPrintRect(), CRect(0, 0, 1000, 500));
    corner = plot.UserToWindow({100, 0});
  });
  const auto state = [this] {
    const auto& now = view->GetMapping().now;
    return std::tuple(now.scale, now.fitScale, now.vertRatio, now.offsetX, now.offsetY, now.dpiX, now.dpiY,
                      view->GetMapping().vertMode, view->IsPrinting());
  };
  const std::pair<CGUIBaseView::VERT_MODE, LONG> rows[] = {
      {CGUIBaseView::VERT_KEEP_RATIO, 300}, {CGUIBaseView::VERT_FILL, 500}, {CGUIBaseView::VERT_POINTS, 13}};
  for (const auto& [mode, bottom] : rows) {
    view->SetVertMode(mode);
    view->Redraw();
    const auto before = state();
    CRecordingDC page(7, 13, CSize(1000, 500));
    view->Print(&page, CSize(1000, 500));
    EXPECT_EQ(corner, CPoint(1000, bottom));
    coregui::CViewMapping scaled = view->GetMapping();
    scaled.vertMode = coregui::VertMode::keepRatio;  // as pages to scale are
    scaled.now.vertRatio = 2.0;
    view->PrintMapped(page, CSize(1000, 500), scaled);
    EXPECT_EQ(corner, scaled.UserToWindow({100, 0}));
    EXPECT_EQ(state(), before);
  }
}

TEST_F(PlotView, OptionsHoldThePointerGoBackAndSnap) {
  view->SetOptions(
      {.zoomUnderPointer = true, .history = true, .touchpad = true, .crossHair = false, .snapPixels = 5});
  const PNT_2D_record held = view->WindowToUser(30, 60);
  view->Wheel(1, {30, 60});
  view->SendMessage(WM_COREGUI_PINCH, static_cast<WPARAM>(2 * 65536), MAKELPARAM(30, 60));
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.5 / 2.5);
  EXPECT_NEAR(view->UserToWindow(held).x, 30, 1);
  EXPECT_NEAR(view->UserToWindow(held).y, 60, 1);
  const CPoint place = view->UserToWindow(held);
  for (int step = 0; step < 5; ++step) coregui::test::SlideTwoFingers(*view, {30, 60}, CSize(4, -3));
  EXPECT_EQ(view->UserToWindow(held), place + CSize(20, -15));
  EXPECT_TRUE(view->GoBack());
  EXPECT_EQ(view->UserToWindow(held), place) << "the way of two fingers is one gesture";
  EXPECT_TRUE(view->GoBack());
  EXPECT_TRUE(view->GoBack());
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_FALSE(view->GoBack());
  view->Move({120, 40});
  EXPECT_TRUE(view->GoForward());
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.4);
  EXPECT_EQ(view->UserToWindow(view->GetCurrentPos()), CPoint(120, 40)) << "the pointer has not moved";
  view->Redraw();
  const CPlotSeries series({{10.3, 5}, {50, 5}});
  view->SetSnapSeries(&series);
  view->Move({23, 52});
  EXPECT_EQ(view->GetCurrentPos().x, 10.3);
  view->Move({30, 52});
  EXPECT_EQ(view->GetCurrentPos().x, 15);
}

TEST_F(PlotView, TheCrossHairAndTheMeasuringLineMoveWithoutARepaint) {
  int drawings = 0;
  view->AddLayer(0, [&drawings](CGUIBaseView& plot) {
    ++drawings;
    plot.SetPlotPen({RGB(200, 30, 0), 2.0});
    plot.PlotPolyline({{0, 1}, {30, 9}, {55, 2}, {100, 8}});
  });
  const std::vector<DWORD> empty = view->Picture();
  for (const int kind : {0, 1, 2}) {
    SCOPED_TRACE(kind == 0 ? "cross-hair" : kind == 1 ? "measuring" : "both, beside a zoom box");
    view->SetOptions({.crossHair = kind != 1});
    if (kind > 0) view->StartMeasure({10, 4});
    view->Move({26, 50});
    const std::vector<DWORD> first = view->Picture();
    EXPECT_NE(first, empty);
    const int before = drawings;
    for (const CPoint at : {CPoint(27, 50), CPoint(199, 99), CPoint(0, 0), CPoint(110, 43)}) {
      view->Move(at);
      EXPECT_FALSE(view->GetUpdateRect(nullptr)) << at.x;
    }
    view->Move({26, 50});
    EXPECT_EQ(view->Picture(), first);
    EXPECT_EQ(drawings, before);
    view->Invalidate();
    EXPECT_EQ(view->Picture(), first) << "painting comes to the same";
    if (kind == 2) {
      Do("'z L+ >90,80 >140,20 esc >26,50");
      EXPECT_EQ(view->Picture(), first) << "two kinds of outlines leave nothing of each other";
    }
    EXPECT_EQ(view->GetMeasureText(), kind == 0 ? L"" : L"3.162  dx 3.000  dy 1.000  33.33 %");
    view->StopMeasure();
    coregui::test::TakePointerAway(*view);
    EXPECT_EQ(view->Picture(), empty);
  }
  view->SetOptions({.crossHair = true});
  view->SetCurrentPos({40, 5});
  EXPECT_NE(view->Picture(), empty);
  view->SetCurrentPos({-40, 5});
  EXPECT_EQ(view->Picture(), empty) << "outside, where a linked view may point";
}

TEST_F(PlotView, TheHookDrawsOnThePictureWithoutTheCrossHair) {
  view->SetOptions({.crossHair = true});
  Hook::onEvent = [this](EVENT_TYPE event) {
    if (event != EVENT_MOVE) return;
    CClientDC dc(view.get());
    EXPECT_EQ(dc.GetPixel(50, 70), 0xFFFFFFU) << "the hair is away";
    view->SetDrawMode(R2_XORPEN);
    view->DrawRect({10, 10}, {40, 30}, 0x00FF00);
  };
  view->Move({50, 50});
  view->Move({52, 52});
  view->Move({50, 54});
  view->Move({60, 54});  // an even number of outlines
  Hook::onEvent = nullptr;
  view->SetOptions({});
  const std::vector<DWORD> picture = view->Picture();
  EXPECT_EQ(std::count(picture.begin(), picture.end(), picture[0]),
            static_cast<std::ptrdiff_t>(picture.size()));
}

}  // namespace
