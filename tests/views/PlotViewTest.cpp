#include <gtest/gtest.h>

#include <string>

#include "platform/CBitmap.h"
#include "platform/CDC.h"
#include "tests/views/ViewFixture.h"

namespace {

using coregui::test::Hook;
using coregui::test::TestView;
using coregui::test::ViewTest;

class PlotView : public ViewTest {};

TEST_F(PlotView, NothingHappensBeforeInitView) {
  MakeView(false);
  parent.changes = 0;
  view->Redraw();
  view->Move({10, 10});
  view->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(10, 10));
  view->SendMessage(WM_CHAR, 'm');
  view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  EXPECT_EQ(Hook::Taken(), "");
  EXPECT_EQ(parent.changes, 0);
}

TEST_F(PlotView, InitViewFitsNotifiesAndRepaints) {
  EXPECT_EQ(parent.changes, 1);
  EXPECT_EQ(parent.lastView, view.get());
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(0, 40));
  view->UpdateWindow();
  view->Redraw();
  CRect update;
  EXPECT_TRUE(view->GetUpdateRect(&update));
  EXPECT_EQ(update, CRect(0, 0, 200, 100));
}

TEST_F(PlotView, TheWheelZoomsAroundThePositionByAQuarter) {
  view->Wheel(-120);
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.625);
  view->Wheel(120);
  view->Wheel(0);
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.4);
  EXPECT_EQ(Hook::Taken(), "2 2 2 ") << "the pointer follows the position";
  EXPECT_EQ(view->UserToWindow(view->GetCurrentPos()), CPoint(100, 50));
  view->SendMessage(WM_CHAR, 'z');
  view->Wheel(120);
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.4) << "not while a zoom box is meant";
}

TEST_F(PlotView, KeysZoomFitRecentreAndPassTheRestOn) {
  view->SetCurrentPos({30, 5});
  Hook::Taken();
  view->SendMessage(WM_CHAR, 'M');
  EXPECT_EQ(view->GetScale(), 0.25);
  view->SendMessage(WM_CHAR, 'd');
  view->SendMessage(WM_CHAR, 'D');
  EXPECT_EQ(view->GetScale(), 1.0);
  view->SendMessage(WM_CHAR, 'r');
  EXPECT_EQ(view->GetScale(), 0.5);
  Hook::Taken();
  view->SendMessage(WM_CHAR, 'w');
  EXPECT_EQ(view->UserToWindow({30, 5}), CPoint(100, 50));
  EXPECT_EQ(Hook::Taken(), "") << "re-centring moves no pointer";
  view->UpdateWindow();
  const int changes = parent.changes;
  view->SendMessage(WM_CHAR, 's');
  EXPECT_TRUE(view->GetUpdateRect(nullptr));
  EXPECT_EQ(parent.changes, changes) << "a repaint is no change";
  view->SendMessage(WM_CHAR, 'x');
  view->SendMessage(WM_CHAR, 27);
  EXPECT_EQ(Hook::Taken(), "6(x) 5(\x1b) ");
}

TEST_F(PlotView, ControlMakesLettersUpperCase) {
  SetKeyState(VK_CONTROL, true);
  view->SendMessage(WM_CHAR, 13);  // Ctrl+M
  EXPECT_EQ(view->GetScale(), 0.25);
  Hook::Taken();
  view->SendMessage(WM_CHAR, 3);
  EXPECT_EQ(Hook::Taken(), "6(C) ");
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_CTRL);
  SetKeyState(VK_CONTROL, false);
}

TEST_F(PlotView, WithARulerZoomingOutBeyondTheFitRefits) {
  view->AddLayer(0, [](CGUIBaseView& plot) { plot.PlotRuler(PlotSide::left); });
  view->UpdateWindow();
  view->SendMessage(WM_CHAR, 'm');
  view->SetCurrentPos({0, 0});
  view->SendMessage(WM_CHAR, 'd');
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(0, 40)) << "fitted, not zoomed around the position";
  const int changes = parent.changes;
  view->SendMessage(WM_CHAR, 'd');
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_EQ(parent.changes, changes);
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
  view->SendMessage(WM_MOUSELEAVE);
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
  view->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(90, 50));
  EXPECT_EQ(Hook::lastPosition.x, 5) << "a press leaves the position";
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_LEFT);
  view->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(90, 50));
  EXPECT_EQ(Hook::lastPosition.x, 45) << "a left release moves it first";
  view->SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(10, 50));
  view->SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(10, 50));
  EXPECT_EQ(Hook::lastPosition.x, 45);
  EXPECT_EQ(Hook::lastFlags, KEYFLAG_RIGHT);
  EXPECT_EQ(Hook::Taken(), "0 1 4 1 ");
}

TEST_F(PlotView, AZoomBoxDraggedZoomsAndTells) {
  view->SendMessage(WM_CHAR, 'Z');
  view->Move({20, 42});
  view->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 42));
  EXPECT_EQ(CWnd::GetCapture(), view.get());
  view->Move({60, 58}, MK_LBUTTON);
  view->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(60, 58));
  EXPECT_EQ(Hook::Taken(), "13(Z) 12 14 15 ");
  EXPECT_EQ(CWnd::GetCapture(), nullptr);
  EXPECT_DOUBLE_EQ(view->GetScale(), 20.0 / 200);
  EXPECT_EQ(view->UserToWindow({20, 5}), CPoint(100, 50));
  EXPECT_FALSE(view->IsZoomBoxMode());
}

TEST_F(PlotView, AFlatZoomBoxDoesNotZoomButTells) {
  view->SendMessage(WM_CHAR, 'z');
  view->Move({20, 42});
  view->ZoomBox(CGUIBaseView::ZOOM_CLICK);
  view->Move({60, 42});
  Hook::Taken();
  view->SendMessage(WM_CHAR, ' ');
  EXPECT_EQ(Hook::Taken(), "15( ) ");
  EXPECT_EQ(view->GetScale(), 0.5);
}

TEST_F(PlotView, EscapeAndTheRightButtonCancelTheBoxAndRestoreThePixels) {
  view->UpdateWindow();
  const std::string before = view->Pixels();
  view->SendMessage(WM_CHAR, 'z');
  view->Move({20, 42});
  view->ZoomBox(CGUIBaseView::ZOOM_CLICK);
  view->Move({60, 58});
  EXPECT_NE(view->Pixels(), before);
  view->Invalidate();
  view->UpdateWindow();  // painting in the middle must not break the exclusive-or
  view->Move({70, 68});
  Hook::Taken();
  view->SendMessage(WM_CHAR, 27);
  EXPECT_EQ(Hook::Taken(), "5(\x1b) ");
  EXPECT_EQ(view->Pixels(), before);
  view->SendMessage(WM_CHAR, 'z');
  view->ZoomBox(CGUIBaseView::ZOOM_CLICK);
  view->SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(1, 1));
  EXPECT_EQ(Hook::Taken(), "13(z) 14 5 ");
}

TEST_F(PlotView, TheMiddleButtonPansAndKeepsThePicture) {
  view->AddLayer(0, [](CGUIBaseView& plot) { plot.PlotLine({10, 2}, {90, 8}); });
  view->UpdateWindow();
  parent.changes = 0;
  view->SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(50, 50));
  EXPECT_EQ(parent.changes, 1);
  view->Move({53, 47}, MK_MBUTTON);
  view->Move({57, 49}, MK_MBUTTON);
  EXPECT_EQ(parent.changes, 3);
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(7, 39));
  view->UpdateWindow();
  const std::string panned = view->Pixels();
  view->SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(57, 49));
  EXPECT_EQ(parent.changes, 4);
  EXPECT_EQ(Hook::Taken(), "4 16 12 16 1 ");
  view->UpdateWindow();
  EXPECT_EQ(view->Pixels(), panned) << "moved pixels are those of a fresh drawing";
  view->Move({80, 80});
  EXPECT_EQ(view->UserToWindow({0, 10}), CPoint(7, 39)) << "released";
}

TEST_F(PlotView, ASlaveFollowsHorizontallyAndIgnoresItsOwnGestures) {
  TestView slave(2.0, &parent);
  slave.CreateIn(parent, CRect(0, 100, 200, 200));
  slave.InitView(FRect(-5, 3, 5, 0), 2.0);
  view->SetSlaveView(&slave);
  FRect extents;
  slave.GetRedrawLimits(extents);
  EXPECT_EQ(extents.GetRight(), 100);
  EXPECT_EQ(extents.GetTop(), 3);
  parent.changes = 0;
  view->SendMessage(WM_CHAR, 'm');
  EXPECT_EQ(parent.changes, 0) << "with a slave the parent is not told";
  EXPECT_EQ(slave.GetScale(), 0.25);
  for (const double x : {0.0, 13.7, 55.5}) {
    EXPECT_EQ(slave.UserToWindow({x, 0}).x, view->UserToWindow({x, 0}).x);
  }
  const double before = slave.GetScale();
  slave.SetFuncHook(&Hook::Note);
  Hook::Taken();
  for (const UINT key : {'m', 'd', 'r', 's', 'w', 'z'}) slave.SendMessage(WM_CHAR, key);
  slave.Wheel(120);
  slave.Redraw();
  EXPECT_EQ(Hook::Taken(), "") << "not even passed on";
  EXPECT_EQ(slave.GetScale(), before);
  parent.changes = 0;
  view->SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(50, 50));
  view->Move({43, 50}, MK_MBUTTON);
  view->SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(43, 50));
  EXPECT_EQ(parent.changes, 2) << "press and release always tell the parent";
  EXPECT_EQ(slave.UserToWindow({13.7, 0}).x, view->UserToWindow({13.7, 0}).x);
}

TEST_F(PlotView, AHookMayDestroyTheViewAtEveryEvent) {
  struct Step {
    const char* name;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
  };
  const Step steps[] = {{"press", WM_LBUTTONDOWN, 0, MAKELPARAM(9, 9)},
                        {"release", WM_LBUTTONUP, 0, MAKELPARAM(9, 9)},
                        {"right", WM_RBUTTONDOWN, 0, 0},
                        {"middle", WM_MBUTTONDOWN, MK_MBUTTON, 0},
                        {"move", WM_MOUSEMOVE, 0, MAKELPARAM(60, 9)},
                        {"key", WM_CHAR, 'x', 0},
                        {"escape", WM_CHAR, 27, 0},
                        {"zoom", WM_CHAR, 'm', 0},
                        {"box", WM_CHAR, 'z', 0},
                        {"wheel", WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0}};
  for (const Step& step : steps) {
    MakeView();
    Hook::onEvent = [this](EVENT_TYPE) { view.reset(); };
    view->SendMessage(step.message, step.wParam, step.lParam);
    EXPECT_EQ(view, nullptr) << step.name;
    Hook::onEvent = nullptr;
  }
  MakeView();
  parent.onChange = [this] { view.reset(); };
  view->SendMessage(WM_CHAR, 'z');
  view->Move({20, 42});
  view->ZoomBox(CGUIBaseView::ZOOM_CLICK);
  view->Move({60, 58});
  view->ZoomBox(CGUIBaseView::ZOOM_CLICK);
  EXPECT_EQ(view, nullptr) << "the zoom of a box";
  EXPECT_FALSE(coregui::CZoomBox::Shared().IsInProgress());
}

TEST_F(PlotView, AHookMayChangeTheMappingAndReenter) {
  Hook::onEvent = [this](EVENT_TYPE event) {
    if (event == EVENT_MOVE) {
      Hook::onEvent = nullptr;
      view->SetVertMode(CGUIBaseView::VERT_FILL);
      view->InitView(FRect(0, 1, 1, 0), 3.0);
      view->Move({150, 20});  // what a modal box's loop would deliver
    }
  };
  view->Move({60, 9});
  EXPECT_EQ(view->GetVertRatio(), 1.0 / 200 / (1.0 / 100));
  EXPECT_EQ(Hook::Taken(), "2 12 ") << "the inner move is ignored";
  view->DestroyWindow();
  view->Move({1, 1});
  EXPECT_EQ(Hook::Taken(), "") << "nothing after the window is gone";
}

TEST_F(PlotView, PrintingFitsThePageAndPutsTheWindowBack) {
  const CPoint before = view->UserToWindow({30, 5});
  int drawn = 0;
  view->AddLayer(0, [&drawn](CGUIBaseView& plot) {
    ++drawn;
    EXPECT_TRUE(plot.IsPrinting());
    EXPECT_EQ(plot.GetPrintRect(), CRect(0, 0, 1000, 500));
    EXPECT_EQ(plot.UserToWindow({100, 0}), CPoint(1000, 300));
    plot.PlotLine({0, 10}, {100, 0});
  });
  CRecordingDC page(7, 13, CSize(1000, 500));
  view->Print(&page, CSize(1000, 500));
  EXPECT_EQ(drawn, 1);
  EXPECT_FALSE(view->IsPrinting());
  EXPECT_EQ(view->UserToWindow({30, 5}), before);
  EXPECT_EQ(page.GetLog().Str(), L"Polyline 0,200 1000,300 #000000");
}

TEST_F(PlotView, OptionsHoldThePointerGoBackAndSnap) {
  view->SetOptions(
      {.zoomUnderPointer = true, .history = true, .touchpad = true, .crossHair = false, .snapPixels = 5});
  const PNT_2D_record held = view->WindowToUser(30, 60);
  view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), view->ScreenParam({30, 60}));
  view->SendMessage(WM_COREGUI_PINCH, static_cast<WPARAM>(2 * 65536), MAKELPARAM(30, 60));
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.5 / 2.5);
  EXPECT_NEAR(view->UserToWindow(held).x, 30, 1);
  EXPECT_NEAR(view->UserToWindow(held).y, 60, 1);
  EXPECT_EQ(view->SendMessage(WM_COREGUI_WANTPAN), 1);
  const CPoint place = view->UserToWindow(held);
  view->SendMessage(WM_COREGUI_PAN, 0, MAKELPARAM(4, -3));
  EXPECT_EQ(view->UserToWindow(held), place + CSize(4, -3));
  EXPECT_TRUE(view->GoBack());
  EXPECT_EQ(view->UserToWindow(held), place);
  EXPECT_TRUE(view->GoBack());
  EXPECT_TRUE(view->GoBack());
  EXPECT_EQ(view->GetScale(), 0.5);
  EXPECT_FALSE(view->GoBack());
  EXPECT_TRUE(view->GoForward());
  EXPECT_DOUBLE_EQ(view->GetScale(), 0.4);
  view->Redraw();
  const CPlotSeries series({{10.3, 5}, {50, 5}});
  view->SetSnapSeries(&series);
  view->Move({23, 52});
  EXPECT_EQ(view->GetCurrentPos().x, 10.3);
  view->Move({30, 52});
  EXPECT_EQ(view->GetCurrentPos().x, 15);
}

TEST_F(PlotView, MeasuringAndTheCrossHairFollowThePosition) {
  view->UpdateWindow();
  const std::string empty = view->Pixels();
  view->SetOptions({.crossHair = true});
  view->StartMeasure({10, 4});
  view->Move({26, 50});
  EXPECT_EQ(view->GetMeasureText(), L"3.162  dx 3.000  dy 1.000  33.33 %");
  view->UpdateWindow();
  EXPECT_NE(view->Pixels(), empty);
  view->SetOptions({});
  view->StopMeasure();
  EXPECT_TRUE(view->GetMeasureText().IsEmpty());
  view->UpdateWindow();
  EXPECT_EQ(view->Pixels(), empty);
}

TEST_F(PlotView, PrintingToScaleLeavesAPointViewAsItWas) {
  view->SetVertMode(CGUIBaseView::VERT_POINTS);
  view->Redraw();
  coregui::CViewMapping page = view->GetMapping();
  page.vertMode = coregui::VertMode::keepRatio;
  page.now.vertRatio = 2.0;
  CPoint printed;
  view->AddLayer(0, [&printed](CGUIBaseView& plot) { printed = plot.UserToWindow({0, 5}); });
  const CPoint before = view->UserToWindow({0, 5});
  CRecordingDC dc;
  view->PrintMapped(dc, CSize(100, 100), page);
  EXPECT_EQ(printed, page.UserToWindow({0, 5}));
  EXPECT_EQ(view->UserToWindow({0, 5}), before);
}

}  // namespace
