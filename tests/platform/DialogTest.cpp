#include <gtest/gtest.h>

#include <QTest>
#include <QVBoxLayout>
#include <functional>
#include <memory>

#include "platform/CBitmap.h"
#include "platform/CDialog.h"
#include "platform/CToolTipCtrl.h"
#include "platform/CWinApp.h"
#include "platform/DialogLayout.h"
#include "platform/ModalBox.h"
#include "platform/TipClock.h"
#include "platform/qt/interop.h"
#include "tests/platform/LogWindow.h"

using coregui::TipClock;
using namespace coregui::test;

namespace {

/// Three fields, the second without a tab stop, and a panel with a field of its own.
class FormDialog : public CDialog {
 public:
  explicit FormDialog(CWnd* owner = nullptr) : CDialog(L"Form", owner) {}
  ~FormDialog() override { DestroyWindow(); }
  LogWindow first;
  LogWindow second;
  LogWindow panel;
  LogWindow inner;
  LogWindow last;
  int inits = 0;
  std::function<void()> shown;

 protected:
  BOOL OnInitDialog() override {
    ++inits;
    const CRect place(0, 0, 20, 20);
    const auto add = [&](LogWindow& control, CWnd& parent, DWORD style, UINT id) {
      EXPECT_TRUE(control.Create(L"", L"", WS_CHILD | WS_VISIBLE | style, place, &parent, id));
      control.passes = true;
    };
    add(first, *this, WS_TABSTOP, 10);
    add(second, *this, 0, 11);
    add(panel, *this, 0, 12);
    add(inner, panel, WS_TABSTOP, 13);
    add(last, *this, WS_TABSTOP, IDOK);
    PostMessage(WM_APP);
    return TRUE;
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_APP && shown) {
      // A copy: the call may destroy this object.
      const coregui::WindowRef self(this);
      const std::function<void()> call = shown;
      call();
      if (!self) return 0;
    }
    return CDialog::WindowProc(message, wParam, lParam);
  }
};

TEST(Dialog, ModalRunsUntilItEndsAndGivesTheFocusBack) {
  OpenWindow owner;
  owner.SetFocus();
  FormDialog dialog(&owner);
  dialog.shown = [&] {
    EXPECT_TRUE(dialog.IsModal());
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.GetOwner(), &owner);
    EXPECT_EQ(CWnd::GetFocus(), &dialog.first);
    QTest::keyClick(WidgetOf(&dialog.first), Qt::Key_Return);
  };
  EXPECT_EQ(dialog.DoModal(), IDOK);
  EXPECT_FALSE(dialog.HasWindow());
  EXPECT_EQ(CWnd::GetFocus(), &owner);
  dialog.shown = [&] { QTest::keyClick(WidgetOf(&dialog.first), Qt::Key_Escape); };
  EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "it may run again";
  dialog.shown = [&] { WidgetOf(&dialog)->close(); };
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  EXPECT_EQ(dialog.inits, 3);
}

TEST(Dialog, EndsWithItsWindowItsObjectOrTheProgram) {
  FormDialog plain;
  plain.shown = [&] { plain.DestroyWindow(); };
  EXPECT_EQ(plain.DoModal(), IDCANCEL);
  auto object = std::make_unique<FormDialog>();
  object->shown = [&] { object.reset(); };
  EXPECT_EQ(object.get()->DoModal(), IDCANCEL);
  OpenWindow owner;
  FormDialog owned(&owner);
  owned.shown = [&] { owner.DestroyWindow(); };
  EXPECT_EQ(owned.DoModal(), IDCANCEL);
  CWinApp app;
  FormDialog inner;
  FormDialog outer;
  outer.shown = [&] {
    EXPECT_EQ(inner.DoModal(), IDCANCEL);
    EXPECT_EQ(inner.DoModal(), IDCANCEL) << "the program quits: none opens any more";
  };
  inner.shown = [] { PostQuitMessage(3); };
  EXPECT_EQ(outer.DoModal(), IDCANCEL);
  EXPECT_EQ(app.Main(), 3);
}

TEST(Dialog, OpenedByAPaintTheOtherWindowsArePaintedMeanwhile) {
  OpenWindow first;
  OpenWindow other;
  FormDialog dialog(&first);
  bool open = false;
  int paints = 0;
  dialog.shown = [&] {
    CWinApp::PumpPending();
    EXPECT_EQ(paints, 1);
    dialog.EndDialog(IDOK);
  };
  first.Invalidate();
  other.Invalidate();
  first.onMessage = [&](UINT message) {
    if (message != WM_PAINT || std::exchange(open, true)) return;
    EXPECT_EQ(dialog.DoModal(), IDOK);
  };
  other.onMessage = [&paints](UINT message) { paints += message == WM_PAINT ? 1 : 0; };
  CWinApp::PumpPending();
  EXPECT_TRUE(open);
}

TEST(Dialog, OpenedByAPressItHasTheMouseThatWasCaptured) {
  OpenWindow owner;
  FormDialog dialog(&owner);
  dialog.shown = [&] {
    dialog.first.TakeLog();
    QTest::mouseClick(WidgetOf(&dialog.first), Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    EXPECT_EQ(dialog.first.TakeLog(), "201 1 3,4;202 0 3,4;");
    dialog.EndDialog(IDOK);
  };
  owner.onMessage = [&](UINT message) {
    if (message != WM_LBUTTONDOWN) return;
    owner.SetCapture();
    EXPECT_EQ(dialog.DoModal(), IDOK);
  };
  QTest::mouseClick(WidgetOf(&owner), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
  EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST(Dialog, TabGoesRoundTheStopsInTheOrderOfCreation) {
  FormDialog dialog;
  ASSERT_TRUE(dialog.CreateModeless());
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(WidgetOf(CWnd::GetFocus()), key, modifiers);
    return CWnd::GetFocus()->GetDlgCtrlID();
  };
  const auto marksFocus = [&] { return WidgetOf(&dialog)->testAttribute(Qt::WA_KeyboardFocusChange); };
  EXPECT_FALSE(marksFocus());
  EXPECT_EQ(press(Qt::Key_Tab), 13);
  EXPECT_TRUE(marksFocus());
  EXPECT_EQ(press(Qt::Key_Tab), IDOK);
  EXPECT_EQ(press(Qt::Key_Tab), 10);
  EXPECT_EQ(press(Qt::Key_Backtab, Qt::ShiftModifier), IDOK);
  dialog.panel.EnableWindow(FALSE);
  EXPECT_EQ(press(Qt::Key_Backtab, Qt::ShiftModifier), 10);
  EXPECT_EQ(press(Qt::Key_Down), 11) << "the arrows need no tab stop";
  QTest::mouseClick(WidgetOf(&dialog.first), Qt::LeftButton);
  EXPECT_FALSE(marksFocus());
  dialog.EndDialog(IDOK);
  EXPECT_FALSE(dialog.HasWindow());
}

TEST(Dialog, ItsFrameCannotBeDraggedButCodeSizesItAndItsPictureIsAsLarge) {
  FormDialog dialog;
  dialog.SetClientSize(CSize(320, 200));
  dialog.shown = [&] {
    for (const QSize wanted : {QSize(320, 200), QSize(240, 260)}) {
      dialog.SetClientSize(CSize(wanted.width(), wanted.height()));
      EXPECT_EQ(WidgetOf(&dialog)->minimumSize(), wanted);
      EXPECT_EQ(WidgetOf(&dialog)->maximumSize(), wanted);
      EXPECT_EQ(dialog.GetClientRectangle().Size(), CSize(wanted.width(), wanted.height()));
    }
    CBitmap picture;
    EXPECT_TRUE(coregui::DrawModalBox(picture));
    EXPECT_EQ(picture.GetSize(), CSize(240, 260));
    EXPECT_TRUE(coregui::CloseModalBox());
  };
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  CBitmap none;
  EXPECT_FALSE(coregui::DrawModalBox(none));
  const OpenWindow framed;
  EXPECT_GT(WidgetOf(&framed)->maximumWidth(), 10000);
}

TEST(DialogPlaces, RowsShareTheWidthAndButtonsStandRight) {
  coregui::DialogLayout layout(200);
  EXPECT_EQ(layout.Row(20), CRect(11, 11, 211, 31));
  EXPECT_EQ(layout.Columns(10, {50, 0, 0}),
            (std::vector{CRect(11, 38, 61, 48), CRect(68, 38, 136, 48), CRect(143, 38, 211, 48)}));
  const CRect last = layout.Buttons(2)[1];
  EXPECT_EQ(last.right, 211);
  EXPECT_EQ(layout.Size(), CSize(222, last.bottom + 11));
}

// --- Tips

TEST(TipTimes, FollowThePointerThroughTheAreas) {
  using Action = TipClock::Action;
  TipClock clock;
  const CRect a(0, 0, 10, 10);
  const CRect b(10, 0, 20, 10);
  const auto then = [&clock](Action done) { return std::pair(done, clock.Timer()); };
  EXPECT_EQ(then(clock.PointerAt(a)), std::pair(Action::none, 500U));
  EXPECT_EQ(then(clock.Elapsed()), std::pair(Action::show, 5000U));
  EXPECT_EQ(then(clock.PointerAt(b)), std::pair(Action::hide, 100U)) << "sooner when one was just shown";
  EXPECT_EQ(clock.Elapsed(), Action::show);
  EXPECT_EQ(clock.Elapsed(), Action::hide) << "it goes by itself";
  EXPECT_EQ(then(clock.PointerAt(b)), std::pair(Action::none, 0U)) << "and does not come again";
  clock.PointerAt(a);
  EXPECT_EQ(then(clock.Cancel()), std::pair(Action::none, 0U));
  clock.PointerAway();
  EXPECT_EQ(then(clock.PointerAt(a)), std::pair(Action::none, 500U));
}

TEST(TipWindow, AsksForItsTextOnlyWhenItShows) {
  OpenWindow window(CRect(50, 50, 150, 150));
  CToolTipCtrl tips;
  ASSERT_TRUE(tips.CreateTips(&window));
  int asked = 0;
  tips.AddTool(&window, [&asked](CPoint client, bool wantText, coregui::Tip& tip) {
    tip.area = CRect(0, client.y / 10 * 10, 100, client.y / 10 * 10 + 10);
    if (wantText) tip.text = CString::Formatted(L"cell %d", ++asked);
    return true;
  });
  for (const int x : {5, 6}) tips.RelayEvent({window.GetSafeHwnd(), WM_MOUSEMOVE, 0, MAKELPARAM(x, 5)});
  EXPECT_EQ(asked, 0);
  tips.SendMessage(WM_TIMER, 1);
  EXPECT_TRUE(tips.IsTipShown());
  EXPECT_EQ(tips.GetWindowTextString(), L"cell 1");
  tips.RelayEvent({window.GetSafeHwnd(), WM_KEYDOWN, VK_DOWN, 1});
  EXPECT_FALSE(tips.IsTipShown());
  const auto sizeOf = [&tips] {
    CRect place;
    tips.ShowTip(L"several words in one line", CPoint(10, 10));
    tips.GetWindowRect(&place);
    return place.Size();
  };
  const CSize one = sizeOf();
  tips.SetMaxTipWidth(60);
  EXPECT_GT(sizeOf().cy, one.cy);
  EXPECT_LE(sizeOf().cx, 70);
}

// --- Programs of the toolkit's own

TEST(DialogAndWindowInterop, AForeignWindowOwnsOurDialogAndTheWindowInItsLayoutWhichGoesWithIt) {
  auto host = std::make_unique<QWidget>();
  host->resize(300, 200);
  auto* rows = new QVBoxLayout(host.get());
  LogWindow inside;
  CWnd* parent = coregui::WindowOf(host.get());
  EXPECT_EQ(coregui::WindowOf(host.get()), parent);
  EXPECT_EQ(CWnd::FromHandle(coregui::HandleOf(host.get())), parent);
  ASSERT_TRUE(inside.OpenIn(*parent, CRect(0, 0, 10, 10)));
  rows->addWidget(WidgetOf(&inside));
  inside.logs = kStates;
  host->show();
  CWinApp::PumpPending();
  EXPECT_EQ(inside.GetClientRectangle().Width(), WidgetOf(&inside)->width());
  EXPECT_GT(inside.GetClientRectangle().Width(), 200);
  FormDialog dialog(parent);
  dialog.shown = [&] {
    EXPECT_EQ(WidgetOf(&dialog)->parentWidget(), host.get());
    EXPECT_TRUE(WidgetOf(&dialog)->isModal());
    dialog.EndDialog(42);
  };
  EXPECT_EQ(dialog.DoModal(), 42);
  inside.TakeLog();
  host.reset();
  EXPECT_EQ(inside.TakeLog(), "2 0 0,0;82 0 0,0;");
  EXPECT_FALSE(inside.HasWindow());
}

}  // namespace
