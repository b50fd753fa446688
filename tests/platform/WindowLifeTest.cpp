#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

#include "platform/CDialog.h"
#include "platform/CWinApp.h"
#include "platform/WindowState.h"
#include "platform/qt/QtWindow.h"
#include "tests/platform/LogWindow.h"

using namespace coregui::test;

namespace {

// --- Without a native window

TEST(WindowWithoutNative, KeepsPlaceFamilyTextAndUpdateRegion) {
  LogWindow parent;
  LogWindow child;
  child.SetParent(&parent);
  parent.logs = kStates;
  parent.MoveWindow(100, 50, 400, 300);
  child.MoveWindow(10, 20, 30, 40);
  child.SetDlgCtrlID(5);
  child.SetWindowText(L"text");
  EXPECT_EQ(parent.TakeLog(), "3 0 100,50;5 0 400,300;");
  EXPECT_EQ(parent.GetDlgItem(5), &child);
  EXPECT_EQ(child.GetTopLevelParent(), &parent);
  EXPECT_EQ(child.GetWindowTextString(), L"text");
  POINT point{1, 2};
  child.ClientToScreen(&point);
  EXPECT_EQ(CPoint(point), CPoint(111, 72));
  child.ValidateRect(nullptr);
  const RECT outside{-5, -5, 3, 4};
  child.InvalidateRect(&outside);
  RECT update;
  EXPECT_TRUE(child.GetUpdateRect(&update));
  EXPECT_EQ(CRect(update), CRect(0, 0, 3, 4));
  EXPECT_EQ(child.SetFocus(), nullptr);
  EXPECT_EQ(CWnd::GetFocus(), &child);
  EXPECT_FALSE(child.HasWindow());
  EXPECT_FALSE(child.DestroyWindow());
  {
    LogWindow brief;
    child.SetParent(&brief);
    EXPECT_EQ(brief.SetParent(&child), nullptr) << "no window is inside itself";
  }
  EXPECT_EQ(child.GetParent(), nullptr) << "a parent that goes lets its children go";
}

// --- Creation and destruction

TEST(WindowLife, CreationAndDestructionSendTheirMessagesInOrder) {
  LogWindow window;
  window.logs = kStates;
  ASSERT_TRUE(window.Open(CRect(5, 6, 105, 56)));
  EXPECT_EQ(window.TakeLog(), "1 0 0,0;5 0 100,50;3 0 5,6;18 1 0,0;");
  EXPECT_FALSE(window.Open()) << "it exists already";
  const HWND handle = window.GetSafeHwnd();
  EXPECT_EQ(CWnd::FromHandle(handle), &window);
  LogWindow child;
  child.logs = kStates;
  ASSERT_TRUE(child.OpenIn(window, CRect(0, 0, 9, 9)));
  child.TakeLog();
  EXPECT_TRUE(window.DestroyWindow());
  EXPECT_EQ(window.TakeLog(), "2 0 0,0;82 0 0,0;");
  EXPECT_EQ(child.TakeLog(), "2 0 0,0;82 0 0,0;");
  EXPECT_FALSE(child.HasWindow());
  EXPECT_FALSE(IsWindow(handle));
  ASSERT_TRUE(window.Open()) << "and may be created again";
  EXPECT_NE(window.GetSafeHwnd(), handle) << "a handle is never used twice";
}

TEST(WindowLife, AChildNeedsAParentWithAWindowAndMayBeRefused) {
  LogWindow parent;
  LogWindow child;
  EXPECT_FALSE(child.OpenIn(parent, CRect(0, 0, 9, 9)));
  class Refusing : public CWnd {
    BOOL PreCreateWindow(CREATESTRUCT& /*create*/) override { return FALSE; }
  } refusing;
  EXPECT_FALSE(refusing.Create(L"", L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
  class Late : public CWnd {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      return message == WM_CREATE ? -1 : CWnd::WindowProc(message, wParam, lParam);
    }
  } late;
  EXPECT_FALSE(late.Create(L"", L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
  EXPECT_FALSE(late.HasWindow());
}

/// In the middle of a real press, a real key and a message, the window or its parent goes.
TEST(WindowLife, MayEndInItsOwnHandlerByItselfOrWithItsObjectOrParent) {
  std::unique_ptr<LogWindow> parent;
  std::unique_ptr<LogWindow> child;
  QPointer<QWidget> widget;
  const auto pressKey = [&] { QTest::keyPress(widget, Qt::Key_A); };
  const std::pair<UINT, std::function<void()>> rows[] = {
      {WM_LBUTTONDOWN, [&] { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(3, 3)); }},
      {WM_KEYDOWN, pressKey},
      {WM_CHAR, pressKey},
      {WM_MOUSEWHEEL, [&] { child->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0); }},
      {WM_SETFOCUS, [&] { child->SetFocus(); }},
      {WM_SIZE, [&] { child->MoveWindow(0, 0, 60, 40); }},
      {WM_PAINT, [&] { child->Invalidate(), CWinApp::PumpPending(); }},
      {WM_DESTROY, [&] { parent->DestroyWindow(); }}};
  for (int end = 0; end < 4 * static_cast<int>(std::size(rows)); ++end) {
    const bool deletesObject = end % 2 != 0;
    const bool deletesParent = end / 2 % 2 != 0;
    const auto& [when, act] = rows[end / 4];
    SCOPED_TRACE(testing::Message() << when << (deletesObject ? " object" : "")
                                    << (deletesParent ? " parent" : ""));
    parent = std::make_unique<LogWindow>();
    child = std::make_unique<LogWindow>();
    ASSERT_TRUE(parent->Open());
    ASSERT_TRUE(child->OpenIn(*parent, CRect(0, 0, 50, 50)));
    CWinApp::PumpPending();
    bool done = false;
    child->onMessage = [&, wanted = when](UINT message) {
      if (message != wanted || std::exchange(done, true)) return;
      if (deletesParent) parent.reset();
      if (deletesObject) return child.reset();
      child->DestroyWindow();
    };
    widget = WidgetOf(child.get());
    const HWND handles[] = {parent->GetSafeHwnd(), child->GetSafeHwnd()};
    act();
    EXPECT_TRUE(done);
    EXPECT_FALSE(child != nullptr && child->HasWindow());
    EXPECT_FALSE(IsWindow(handles[1]));
    EXPECT_EQ(IsWindow(handles[0]), parent != nullptr && parent->HasWindow());
    CWinApp::PumpPending();
    EXPECT_TRUE(widget.isNull()) << "the widget goes when the event is over";
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
  }
}

// --- Family and state

TEST(WindowFamily, SiblingsKeepTheirOrderAsTheyAreRaisedAndPlaced) {
  OpenWindow parent;
  OpenWindow a(parent, CRect(0, 0, 20, 20));
  OpenWindow b(parent, CRect(0, 0, 20, 20));
  OpenWindow c(parent, CRect(0, 0, 20, 20));
  const auto order = [&] {
    std::vector<CWnd*> found;
    for (CWnd* at = parent.GetWindow(GW_CHILD); at != nullptr; at = at->GetWindow(GW_HWNDNEXT))
      found.push_back(at);
    std::vector<CWnd*> widgets;
    for (QObject* widget : WidgetOf(&parent)->children()) {
      widgets.insert(widgets.begin(), coregui::WindowOf(static_cast<QWidget*>(widget)));
    }
    EXPECT_EQ(widgets, found) << "what is seen is what is said";
    return found;
  };
  EXPECT_EQ(order(), (std::vector<CWnd*>{&c, &b, &a}));
  a.BringWindowToTop();
  EXPECT_EQ(order(), (std::vector<CWnd*>{&a, &c, &b}));
  a.SetWindowPos(&c, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_EQ(order(), (std::vector<CWnd*>{&c, &a, &b}));
  EXPECT_EQ(b.GetWindow(GW_HWNDPREV), &a);
  POINT screen{5, 5};
  parent.ClientToScreen(&screen);
  EXPECT_EQ(CWnd::WindowFromPoint(screen), &c);
  c.ShowWindow(SW_HIDE);
  EXPECT_EQ(CWnd::WindowFromPoint(screen), &a);
}

TEST(WindowFamily, AWindowMovesUnderAnotherParent) {
  OpenWindow first;
  OpenWindow second;
  OpenWindow child(first, CRect(7, 8, 27, 28), 3);
  EXPECT_EQ(child.SetParent(&second), &first);
  EXPECT_EQ(WidgetOf(&child)->parentWidget(), WidgetOf(&second));
  EXPECT_EQ(WidgetOf(&child)->geometry(), QRect(7, 8, 20, 20));
  EXPECT_TRUE(WidgetOf(&child)->isVisible());
  EXPECT_EQ(first.GetDlgItem(3), nullptr);
  first.DestroyWindow();
  EXPECT_TRUE(child.HasWindow());
  second.ShowWindow(SW_HIDE);
  EXPECT_FALSE(child.IsWindowVisible()) << "visible means every parent, too";
  EXPECT_TRUE((child.GetStyle() & WS_VISIBLE) != 0);
}

TEST(WindowPlace, WhatThePersonDoesWithTheFrameArrivesAsSizeAndMove) {
  OpenWindow window(CRect(10, 10, 110, 60));
  window.logs = kStates;
  WidgetOf(&window)->setGeometry(20, 30, 200, 90);
  EXPECT_EQ(window.TakeLog(), "3 0 20,30;5 0 200,90;");
  window.MoveWindow(20, 30, 300, 90);
  CWinApp::PumpPending();
  EXPECT_EQ(window.TakeLog(), "5 0 300,90;") << "once, though the toolkit reports it back";
  EXPECT_EQ(WidgetOf(&window)->width(), 300);
  WidgetOf(&window)->setMinimumWidth(80);
  window.MoveWindow(40, 30, 50, 70);
  CWinApp::PumpPending();
  EXPECT_EQ(window.TakeLog(), "3 0 40,30;5 0 80,70;") << "what the toolkit made of it";
}

TEST(WindowPlace, MaximisedMinimisedAndRestoredSayOnceWhichAndHowLarge) {
  OpenWindow window(CRect(10, 10, 110, 60));
  window.logs = {WM_SIZE};
  const auto show = [&window](int how) {
    window.TakeLog();
    window.ShowWindow(how);
    CWinApp::PumpPending();
    return window.TakeLog();
  };
  const std::string log = show(SW_SHOWMAXIMIZED);
  const CSize large = window.GetClientRectangle().Size();
  EXPECT_GT(large.cx, 300);
  EXPECT_EQ(log, CString::Formatted(L"5 2 %d,%d;", large.cx, large.cy).ToUtf8());
  EXPECT_EQ(show(SW_MINIMIZE), "5 1 0,0;");
  EXPECT_EQ(window.GetClientRectangle().Size(), large) << "its place waits";
  EXPECT_EQ(show(SW_SHOWNORMAL), "5 0 100,50;");
  window.logs = kStates;
  EXPECT_EQ(show(SW_MINIMIZE), "5 1 0,0;");
  EXPECT_EQ(show(SW_SHOWNORMAL), "5 0 100,50;") << "the size is what it was";
}

// --- Focus and capture

class FocusPair : public testing::Test {
 protected:
  FocusPair() {
    a.name = "a";
    b.name = "b";
    a.journal = b.journal = &journal;
    WidgetOf(&top)->activateWindow();
    CWinApp::PumpPending();
    journal.clear();
  }
  std::string journal;
  OpenWindow top;
  OpenWindow a{top, CRect(0, 0, 50, 50)};
  OpenWindow b{top, CRect(50, 0, 100, 50)};
};

TEST_F(FocusPair, BothWindowsLearnOfEachOther) {
  a.SetFocus();
  EXPECT_EQ(b.SetFocus(), &a);
  CWinApp::PumpPending();
  EXPECT_EQ(journal, "a gets from -;a gives to b;b gets from a;");
  EXPECT_TRUE(WidgetOf(&b)->hasFocus());
  journal.clear();
  WidgetOf(&a)->setFocus();
  EXPECT_EQ(journal, "b gives to a;a gets from b;") << "the toolkit's own change takes the same road";
  journal.clear();
  a.DestroyWindow();
  EXPECT_EQ(journal, "a gives to -;");
  EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(FocusPair, AHandlerMayMoveTheFocusOn) {
  a.onMessage = [this](UINT message) {
    if (message == WM_SETFOCUS) b.SetFocus();
  };
  a.SetFocus();
  CWinApp::PumpPending();
  EXPECT_EQ(CWnd::GetFocus(), &b);
  EXPECT_TRUE(WidgetOf(&b)->hasFocus());
}

TEST_F(FocusPair, CaptureBringsTheMouseUntilItIsReleasedOrLost) {
  a.SetCapture();
  QTest::mousePress(WidgetOf(&b), Qt::LeftButton, Qt::NoModifier, QPoint(5, 6));
  QTest::mouseMove(WidgetOf(&b), QPoint(-60, 8));
  QTest::mouseRelease(WidgetOf(&b), Qt::LeftButton, Qt::NoModifier, QPoint(5, 6));
  EXPECT_EQ(a.TakeLog(), "201 1 55,6;200 1 -10,8;202 0 55,6;");
  EXPECT_EQ(b.TakeLog(), "");
  HWND taker = nullptr;
  a.captureLost = [&taker](HWND to) { taker = to; };
  EXPECT_EQ(b.SetCapture(), &a);
  EXPECT_EQ(taker, b.GetSafeHwnd());
  b.DestroyWindow();
  EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST_F(FocusPair, ADragWithoutCaptureGoesToTheWindowUnderThePointer) {
  QTest::mousePress(WidgetOf(&a), Qt::LeftButton, Qt::NoModifier, QPoint(5, 6));
  QMouseEvent away(QEvent::MouseMove, QPointF(70, 9), WidgetOf(&a)->mapToGlobal(QPointF(70, 9)), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(WidgetOf(&a), &away);
  EXPECT_EQ(a.TakeLog(), "201 1 5,6;");
  EXPECT_EQ(b.TakeLog(), "200 1 20,9;");
  QTest::mouseRelease(WidgetOf(&a), Qt::LeftButton, Qt::NoModifier, QPoint(5, 6));
}

TEST_F(FocusPair, TheFirstPressAsksWhetherToActivateTheWindow) {
  for (const int answer : {MA_ACTIVATE, MA_ACTIVATEANDEAT, MA_NOACTIVATE, MA_NOACTIVATEANDEAT}) {
    SCOPED_TRACE(answer);
    const bool activates = answer == MA_ACTIVATE || answer == MA_ACTIVATEANDEAT;
    const bool delivers = answer == MA_ACTIVATE || answer == MA_NOACTIVATE;
    OpenWindow other;
    other.SetActiveWindow();
    CWinApp::PumpPending();
    ASSERT_EQ(CWnd::GetActiveWindow(), &other);
    int asked = 0;
    top.activate = [&](WPARAM wParam, LPARAM lParam) {
      ++asked;
      EXPECT_EQ(reinterpret_cast<HWND>(wParam), top.GetSafeHwnd());
      EXPECT_EQ(HIWORD(lParam), WM_LBUTTONDOWN);
      return answer;
    };
    a.TakeLog();
    QTest::mouseClick(WidgetOf(&a), Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    EXPECT_EQ(asked, 1) << "the child's default asks its parent";
    EXPECT_EQ(a.TakeLog(), delivers ? "201 1 3,4;202 0 3,4;" : "202 0 3,4;");
    EXPECT_EQ(CWnd::GetActiveWindow(), activates ? &top : &other);
    QTest::mouseClick(WidgetOf(&a), Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    EXPECT_EQ(asked, activates ? 1 : 2) << "only while it is not active";
    WidgetOf(&other)->activateWindow();
    CWinApp::PumpPending();
    EXPECT_EQ(CWnd::GetActiveWindow(), &other) << "as the desktop does it";
  }
}

// --- Timers

TEST(WindowTimers, RunUntilKilledAndSayWhich) {
  OpenWindow window;
  std::vector<UINT> ids;
  window.timer = [&](UINT id) {
    ids.push_back(id);
    if (ids.size() == 3) {
      EXPECT_TRUE(window.KillTimer(7));
      window.PostMessage(WM_CLOSE);
    }
  };
  EXPECT_EQ(window.SetTimer(7, 1), 7U);
  EXPECT_EQ(window.SetTimer(8, 3600000), 8U);
  while (window.HasWindow()) CWinApp::PumpMessage();
  EXPECT_EQ(ids, (std::vector<UINT>{7, 7, 7}));
  EXPECT_FALSE(window.KillTimer(7));
}

// --- Controls over widgets

/// A line edit behind a window, as the edit controls are.
class EditWindow : public LogWindow {
 protected:
  std::unique_ptr<coregui::NativeWindow> MakeNative(const CREATESTRUCT& create) override {
    return std::make_unique<coregui::QtWindow>(*this, create, std::make_unique<QLineEdit>());
  }
};

TEST(WidgetControl, GetsTheEventOnceBehindTheMessage) {
  OpenWindow top;
  EditWindow edit;
  ASSERT_TRUE(edit.OpenIn(top, CRect(0, 0, 150, 25), 4));
  CWinApp::PumpPending();
  edit.TakeLog();
  edit.passes = true;
  auto& line = static_cast<QLineEdit&>(*WidgetOf(&edit));
  QTest::keyClicks(&line, QStringLiteral("ab"));
  QTest::keyClick(&line, Qt::Key_Backspace);
  EXPECT_EQ(edit.TakeLog(), "100 65;102 97;101 65;100 66;102 98;101 66;100 8;102 8;101 8;");
  EXPECT_EQ(line.text(), QStringLiteral("a"));
  edit.SendMessage(WM_KEYDOWN, 'X', 1);
  edit.SendMessage(WM_CHAR, 'x', 1);
  edit.SendMessage(WM_KEYDOWN, VK_LEFT, 1);
  EXPECT_EQ(line.text(), QStringLiteral("ax")) << "what is sent types as well";
  EXPECT_EQ(line.cursorPosition(), 1);
  edit.passes = false;
  QTest::keyClick(&line, Qt::Key_Z);
  EXPECT_EQ(line.text(), QStringLiteral("ax")) << "a handler keeps a key from the widget";
}

TEST(WindowLife, ScreenReadersLearnWhatAPaintedWindowIs) {
  OpenWindow window;
  OpenWindow table(window, CRect(0, 0, 90, 60));
  table.SetAccessibleName(L"Survey table");
  OpenWindow body(table, CRect(0, 0, 90, 60));
  const auto spoken = [](const CWnd& told) {
    return QAccessible::queryAccessibleInterface(coregui::WidgetOf(&told));
  };
  EXPECT_EQ(spoken(window)->role(), QAccessible::Window);
  EXPECT_EQ(spoken(table)->role(), QAccessible::Canvas);
  EXPECT_EQ(spoken(body)->role(), QAccessible::Pane);
  EXPECT_EQ(spoken(body)->text(QAccessible::Name), "");
  EXPECT_FALSE(spoken(body)->state().focusable);
  body.SetFocus();
  EXPECT_EQ(spoken(body)->text(QAccessible::Name), "Survey table");
  EXPECT_TRUE(spoken(body)->state().focusable && spoken(body)->state().focused);
  LogWindow dialog;
  dialog.Create(L"", L"ask", WS_POPUP | WS_CAPTION | WS_VISIBLE, CRect(0, 0, 90, 60), &window, 0);
  EXPECT_EQ(spoken(dialog)->role(), QAccessible::Dialog);
  EXPECT_EQ(spoken(dialog)->text(QAccessible::Name), "ask");
}

}  // namespace
