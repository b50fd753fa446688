#include <gtest/gtest.h>

#include <QNativeGestureEvent>
#include <QTest>
#include <QWheelEvent>
#include <tuple>
#include <type_traits>

#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/System.h"
#include "tests/platform/LogWindow.h"

using coregui::MessageTable;
using namespace coregui::test;

namespace {

class WindowRoad : public testing::Test {
 protected:
  QWidget* Widget() { return coregui::WidgetOf(&window); }
  /// What a step of a wheel or a touchpad brings.
  std::string Scroll(QPoint pixels, QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
    const QPointF at(20, 10);
    QWheelEvent event(at, Widget()->mapToGlobal(at), pixels, angle, Qt::NoButton, Qt::NoModifier, phase,
                      false);
    QCoreApplication::sendEvent(Widget(), &event);
    return window.TakeLog();
  }
  OpenWindow window;
};

/// What a person's double click brings: the toolkit's test driver gives only the second press.
void DoubleClick(QWidget* widget, Qt::MouseButton button, QPoint at) {
  QTest::mouseClick(widget, button, Qt::NoModifier, at);
  QTest::mouseDClick(widget, button, Qt::NoModifier, at);
  QTest::mouseRelease(widget, button, Qt::NoModifier, at);
}

TEST_F(WindowRoad, AHandAndAMessageReachTheSameHandlerWithTheSameArguments) {
  const std::tuple<Qt::MouseButton, UINT, UINT> rows[] = {{Qt::LeftButton, WM_LBUTTONDOWN, MK_LBUTTON},
                                                          {Qt::RightButton, WM_RBUTTONDOWN, MK_RBUTTON},
                                                          {Qt::MiddleButton, WM_MBUTTONDOWN, MK_MBUTTON}};
  for (const auto& [button, down, flag] : rows) {
    const LPARAM at = MAKELPARAM(12, 34);
    QTest::mousePress(Widget(), button, Qt::ControlModifier, QPoint(12, 34));
    QTest::mouseRelease(Widget(), button, Qt::ShiftModifier, QPoint(12, 34));
    DoubleClick(Widget(), button, QPoint(12, 34));
    const std::string byHand = window.TakeLog();
    window.SendMessage(down, flag | MK_CONTROL, at);
    window.SendMessage(down + 1, MK_SHIFT, at);
    for (const UINT message : {down, down + 1, down + 2, down + 1}) {
      window.SendMessage(message, message == down + 1 ? 0 : flag, at);
    }
    EXPECT_EQ(byHand, window.TakeLog()) << down;
  }
}

TEST_F(WindowRoad, AMoveAsksForTheCursorFirst) {
  window.logs = {WM_SETCURSOR};
  QMouseEvent move(QEvent::MouseMove, QPointF(30, 40), Widget()->mapToGlobal(QPointF(30, 40)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(Widget(), &move);
  EXPECT_EQ(window.TakeLog(), "cursor 1,512;200 0 30,40;");
}

TEST_F(WindowRoad, KeysGiveTheirCodesAndCharactersAndSoDoesAnInputMethod) {
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> rows[] = {
      {Qt::Key_A, Qt::NoModifier, "100 65;102 97;101 65;"},
      {Qt::Key_V, Qt::ControlModifier, "100 17;100 86;102 22;101 86;101 17;"},
      {Qt::Key_Left, Qt::NoModifier, "100 37;101 37;"},
      {Qt::Key_Delete, Qt::NoModifier, "100 46;101 46;"},
      {Qt::Key_Backspace, Qt::NoModifier, "100 8;102 8;101 8;"},
      {Qt::Key_Return, Qt::NoModifier, "100 13;102 13;101 13;"},
      {Qt::Key_Enter, Qt::KeypadModifier, "100 13;102 13;101 13;"},
      {Qt::Key_Escape, Qt::NoModifier, "100 27;102 27;101 27;"},
      {Qt::Key_Tab, Qt::NoModifier, "100 9;102 9;101 9;"},
      {Qt::Key_Backtab, Qt::ShiftModifier, "100 16;100 9;102 9;101 9;101 16;"},
      {Qt::Key_7, Qt::KeypadModifier, "100 103;102 55;101 103;"},
      {Qt::Key_F2, Qt::NoModifier, "100 113;101 113;"},
      {Qt::Key_Home, Qt::ControlModifier, "100 17;100 36;101 36;101 17;"},
      {Qt::Key_X, Qt::AltModifier, "104 18;104 88;101 88;101 18;"},
  };
  short shift = 0;  // the key state is that of the message at hand
  window.onMessage = [&shift](UINT message) {
    if (message == WM_KEYDOWN) shift = GetKeyState(VK_SHIFT);
  };
  for (const auto& [key, modifiers, log] : rows) {
    QTest::keyClick(Widget(), key, modifiers);
    EXPECT_EQ(window.TakeLog(), log) << key;
    EXPECT_EQ(shift < 0, modifiers == Qt::ShiftModifier) << key;
  }
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("ü€"));
  QCoreApplication::sendEvent(Widget(), &composed);
  EXPECT_EQ(window.TakeLog(), "102 252;102 8364;");
}

TEST_F(WindowRoad, SmallWheelMovesAreGatheredIntoNotchesPerAxis_ATouchpadPansWhereThatIsWanted) {
  const QPoint screen = Widget()->mapToGlobal(QPoint(20, 10));
  const std::string at = CString::Formatted(L"%d,%d;", screen.x(), screen.y()).ToUtf8();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Scroll({}, {0, 35}), "");
  EXPECT_EQ(Scroll({}, {60, 0}), "");
  EXPECT_EQ(Scroll({}, {0, 35}), "wheel 120 " + at);
  EXPECT_EQ(Scroll({}, {0, -119}), "") << "what was left of the other direction is dropped";
  EXPECT_EQ(Scroll({}, {0, -241}), "wheel -120 " + at + "wheel -120 " + at + "wheel -120 " + at);
  EXPECT_EQ(Scroll({}, {60, 0}), "hwheel -120 " + at) << "positive is to the right";
  window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 60), MAKELPARAM(screen.x(), screen.y()));
  EXPECT_EQ(window.TakeLog(), "wheel 60 " + at) << "what code sends arrives as sent";
  EXPECT_EQ(Scroll({-7, 9}, {0, 120}, Qt::ScrollUpdate), "wheel 120 " + at);
  window.wantsPan = true;
  EXPECT_EQ(Scroll({-7, 9}, {0, 120}, Qt::ScrollUpdate), "pan -7,9;");
  EXPECT_EQ(Scroll({}, {0, 120}), "wheel 120 " + at) << "a wheel is no touchpad";
}

TEST_F(WindowRoad, APinchGivesItsFactorAndPlace) {
  QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, QPointF(5, 6),
                            QPointF(5, 6), Widget()->mapToGlobal(QPointF(5, 6)), 0.25, QPointF());
  QCoreApplication::sendEvent(Widget(), &pinch);
  EXPECT_EQ(window.TakeLog(), "pinch 81920 5,6;");
}

TEST_F(WindowRoad, TheMenuIsAskedForByTheRightButtonAndByKey) {
  window.logs = {WM_CONTEXTMENU};
  window.passes = true;
  const QPoint screen = Widget()->mapToGlobal(QPoint(3, 4));
  QTest::mouseClick(Widget(), Qt::RightButton, Qt::NoModifier, QPoint(3, 4));
  EXPECT_EQ(window.TakeLog(),
            "204 2 3,4;205 0 3,4;" + CString::Formatted(L"menu %d,%d;", screen.x(), screen.y()).ToUtf8());
  QTest::keyPress(Widget(), Qt::Key_Menu);
  EXPECT_EQ(window.TakeLog(), "100 93;menu -1,-1;");
}

TEST_F(WindowRoad, TheLeaveMessageComesOnceAndOnlyWhenAskedFor) {
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(Widget(), &leave);
  EXPECT_EQ(window.TakeLog(), "");
  window.TrackMouseLeave();
  QCoreApplication::sendEvent(Widget(), &leave);
  QCoreApplication::sendEvent(Widget(), &leave);
  EXPECT_EQ(window.TakeLog(), "leave;");
}

TEST_F(WindowRoad, ADisabledChildLetsTheMouseThroughToItsParent) {
  OpenWindow child(window, CRect(10, 20, 60, 60));
  child.EnableWindow(FALSE);
  QTest::mouseClick(coregui::WidgetOf(&child), Qt::LeftButton, Qt::NoModifier, QPoint(1, 2));
  EXPECT_EQ(window.TakeLog(), "201 1 11,22;202 0 11,22;");
}

TEST_F(WindowRoad, MessagesAreOfferedFromTheTargetUpwardsBeforeTheyAreSent) {
  OpenWindow child(window, CRect(10, 20, 60, 60));
  CString order;
  child.preTranslate = [&](const MSG&) { return order += L"child ", false; };
  window.preTranslate = [&](const MSG& message) {
    order += L"parent ";
    return message.message == WM_KEYDOWN && message.wParam == 'Q';
  };
  QTest::keyClick(coregui::WidgetOf(&child), Qt::Key_A);
  EXPECT_EQ(order, L"child parent child parent child parent ");
  EXPECT_EQ(child.TakeLog(), "100 65;102 97;101 65;");
  QTest::keyPress(coregui::WidgetOf(&child), Qt::Key_Q);
  EXPECT_EQ(child.TakeLog(), "") << "a key that was taken types nothing";
  order.Empty();
  child.SendMessage(WM_KEYDOWN, 'Q', 1);
  EXPECT_EQ(order, L"") << "what is sent is not queued";
  child.PostMessage(WM_KEYDOWN, 'Q', 1);
  CWinApp::PumpPending();
  EXPECT_EQ(order, L"child parent ");
}

TEST_F(WindowRoad, PostedMessagesArriveInOrderAndNotAtDestroyedWindows) {
  auto gone = std::make_unique<OpenWindow>();
  gone->PostMessage(WM_APP, 1, 0);
  window.PostMessage(WM_APP, 1, 0);
  window.PostMessage(WM_APP, 2, 0);
  gone.reset();
  EXPECT_EQ(window.TakeLog(), "");
  CWinApp::PumpPending();
  EXPECT_EQ(window.TakeLog(), "app 1;app 2;");
}

TEST_F(WindowRoad, AThemeChangeTellsEveryWindowWhenItsColoursAreReady) {
  COLORREF seen = RGB(255, 255, 255);
  window.onMessage = [&seen](UINT message) {
    if (message == WM_SYSCOLORCHANGE) seen = GetSysColor(COLOR_WINDOW);
  };
  SetDarkTheme(true);
  CWinApp::PumpPending();
  EXPECT_LT(GetRValue(seen), 64);
  SetDarkTheme(false);
  CWinApp::PumpPending();
}

// --- The table

class TableBase : public CWnd {
 public:
  const MessageTable& GetMessageTable() const override {
    static const MessageTable table = MessageTable(CWnd::Messages())
                                          .On<WM_SETFOCUS>(&TableBase::HandleFocus)
                                          .OnCommand(7, BN_CLICKED, &TableBase::HandleSeven)
                                          .OnCommand(-1, EN_CHANGE, &TableBase::HandleAnyChange);
    return table;
  }
  void HandleFocus(CWnd* other) { log.AppendFormat(L"base %d;", other == this ? 1 : 0); }
  void HandleSeven() { log += L"seven;"; }
  void HandleAnyChange() { log += L"change;"; }
  CString log;
};

class TableDerived : public TableBase {
 public:
  const MessageTable& GetMessageTable() const override {
    static const MessageTable table = MessageTable(TableBase::GetMessageTable())
                                          .On<WM_SETFOCUS>(&TableDerived::HandleFocusToo)
                                          .OnMessage(WM_USER + 1, &TableDerived::HandleUser);
    return table;
  }
  void HandleFocusToo(CWnd* /*other*/) { log += L"derived;"; }
  LRESULT HandleUser(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * lParam; }
};

template <UINT message, class Handler>
concept Accepts = requires(MessageTable table, Handler handler) {
  std::move(table).template On<message>(handler);
};

static_assert(Accepts<WM_SIZE, void (TableBase::*)(UINT, int, int)>);
static_assert(!Accepts<WM_SIZE, void (TableBase::*)(UINT, CPoint)>);
static_assert(!Accepts<WM_MOUSEWHEEL, void (TableBase::*)(UINT, short, CPoint)>, "the result is required");
static_assert(!Accepts<WM_PAINT, void (TableBase::*)(CDC*)>);
static_assert(!Accepts<WM_USER, void (TableBase::*)()>);

TEST(MessageTables, TheMostDerivedRowAnswersAndCommandsMatchIdAndCode) {
  TableDerived window;
  window.SendMessage(WM_SETFOCUS);
  for (const auto& [id, code] :
       {std::pair(7, BN_CLICKED), {8, BN_CLICKED}, {7, EN_SETFOCUS}, {99, EN_CHANGE}}) {
    window.SendMessage(WM_COMMAND, MAKEWPARAM(id, code));
  }
  EXPECT_EQ(window.log, L"derived;seven;change;");
  EXPECT_EQ(window.SendMessage(WM_USER + 1, 6, -7), -42);
}

}  // namespace
