// Buttons, labels and what has a range; what all controls keep to.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QScrollBar>
#include <QTest>
#include <limits>
#include <tuple>

#include "platform/CButton.h"
#include "platform/CComboBox.h"
#include "platform/CEdit.h"
#include "platform/CListBox.h"
#include "platform/CProgressCtrl.h"
#include "platform/CScrollBar.h"
#include "platform/CSliderCtrl.h"
#include "platform/CSpinButtonCtrl.h"
#include "platform/CStatic.h"
#include "platform/CTreeCtrl.h"
#include "platform/Clipboard.h"
#include "tests/support/ControlHost.h"
#include "tests/support/Hand.h"

namespace {

using namespace coregui::test;

// --- Buttons and labels

TEST(Button, EveryKindNotifiesOfAClick) {
  ControlHost host;
  constexpr std::tuple<DWORD, int, int> kinds[] = {
      // the state after one click, and after a press of the space bar
      {BS_PUSHBUTTON, BST_UNCHECKED, BST_UNCHECKED},   {BS_DEFPUSHBUTTON, BST_UNCHECKED, BST_UNCHECKED},
      {BS_CHECKBOX, BST_UNCHECKED, BST_UNCHECKED},     {BS_AUTOCHECKBOX, BST_CHECKED, BST_UNCHECKED},
      {BS_AUTO3STATE, BST_INDETERMINATE, BST_CHECKED}, {BS_AUTORADIOBUTTON, BST_CHECKED, BST_CHECKED}};
  for (const auto& [style, state, next] : kinds) {
    CButton button;
    ASSERT_TRUE(button.Create(L"&Go", WS_CHILD | WS_VISIBLE | style, CRect(5, 5, 100, 30), &host, 9));
    QTest::mouseClick(WidgetOf(&button), Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_EQ(host.TakeLog(), L"9:0 ") << style;
    EXPECT_EQ(button.GetCheck(), state) << style;
    button.SetCheck(state);
    EXPECT_EQ(host.TakeLog(), L"") << style;
    QTest::keyClick(WidgetOf(&button), Qt::Key_Space);
    EXPECT_EQ(host.TakeLog(), L"9:0 ") << style;
    EXPECT_EQ(button.GetCheck(), next) << style;
    button.EnableWindow(FALSE);
    button.Click();
    EXPECT_EQ(host.TakeLog(), L"") << style;
  }
}

TEST(Button, RadioButtonsExcludeEachOtherWithinTheirGroup) {
  ControlHost host;
  CButton buttons[4];
  for (int i = 0; i < 4; ++i) {
    const DWORD group = i % 2 == 0 ? WS_GROUP : 0;
    buttons[i].Create(L"r", kChild | BS_AUTORADIOBUTTON | group, PlaceAt(i), &host, static_cast<UINT>(i));
  }
  for (const int pressed : {0, 3, 1, 1}) buttons[pressed].Click();
  std::string checks;
  for (const CButton& button : buttons) checks += std::to_string(button.GetCheck());
  EXPECT_EQ(checks, "0101");
  buttons[1].SetCheck(BST_UNCHECKED);
  EXPECT_EQ(buttons[1].GetCheck(), BST_UNCHECKED);
}

TEST(Static, NamesTheControlBehindItWhereItsHiddenAccessKeyLeadsAndTellsOfClicks) {
  ControlHost host;
  CStatic title;
  CStatic label;
  CEdit edit;
  CStatic last;
  CButton button;
  title.Create(L"&Names", kChild, PlaceAt(0), &host, 1);
  label.Create(L"&Name && kind", kChild, PlaceAt(1), &host, 2);
  edit.Create(kChild, PlaceAt(2), &host, 3);
  last.Create(L"&Go", kChild, PlaceAt(3), &host, 4);
  button.Create(L"&Start", kChild, PlaceAt(4), &host, 5);
  const auto spoken = [](CWnd& window) {
    return QAccessible::queryAccessibleInterface(WidgetOf(&window))->text(QAccessible::Name);
  };
  EXPECT_EQ(spoken(edit), "Name & kind");
  EXPECT_EQ(spoken(button), "Start") << "a button bears its own name";
  QCoreApplication::processEvents();
  for (const auto& [text, key] : {std::pair(L"&Name && kind", Qt::Key_N), {L"K&ind", Qt::Key_I}}) {
    label.SetWindowText(text);
    button.SetFocus();
    QTest::keyClick(WidgetOf(&button), key, Qt::AltModifier);
    EXPECT_EQ(CWnd::GetFocus(), &edit);
  }
  edit.DestroyWindow();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(static_cast<QLabel*>(WidgetOf(&label))->text(), "Kind");
  CStatic text;
  text.Create(L"<b>&Find</b> && go", kChild | SS_NOTIFY, PlaceAt(5), &host, 6);
  EXPECT_EQ(static_cast<QLabel*>(WidgetOf(&text))->text(), "<b>Find</b> & go");
  EXPECT_EQ(text.GetWindowTextString(), L"<b>&Find</b> && go");
  host.TakeLog();
  QTest::mouseClick(WidgetOf(&text), Qt::LeftButton);
  EXPECT_EQ(host.TakeLog(), L"6:0 ");
}

// --- Scroll bars

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

TEST(ScrollBar, OnlyTheParentMovesByAKeyOrTheWheelOrAllThe32BitsOfADrag) {
  Follower host;
  CScrollBar bar;
  bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 200), &host, 3);
  auto& widget = static_cast<QScrollBar&>(*WidgetOf(&bar));
  for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_End}) QTest::keyClick(&widget, key);
  EXPECT_EQ(host.TakeLog(), L"v:3 v:8 v:7 v:8 ");
  EXPECT_EQ(bar.GetScrollPos(), 0);
  EXPECT_EQ(widget.value(), 0);
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
  EXPECT_EQ(widget.value(), dropped);
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_EQ(bar.GetScrollPos(), dropped + 1) << "an answered step moves by one";
  bar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
  EXPECT_EQ(host.TakeLog(), L"v:1 v:8 v:1 v:1 v:1 v:8 ");
}

// --- Sliders, spin buttons, progress bars

TEST(Slider, MovesByItselfAndTells) {
  ControlHost host;
  CSliderCtrl slider;
  slider.Create(kChild, PlaceAt(0), &host, 2);
  slider.SetRange(-10, 10);
  slider.SetPos(99);
  QTest::keyClick(WidgetOf(&slider), Qt::Key_Left);
  EXPECT_EQ(slider.GetPos(), 9);
  EXPECT_EQ(host.TakeLog(), L"h:0 h:8 ");
}

/// Refuses to go down.
class UpOnly : public CSpinButtonCtrl {
 protected:
  bool OnDeltaPos(int /*position*/, int delta) override { return delta > 0; }
};

TEST(SpinButton, StepsShowInTheBuddy) {
  ControlHost host;
  CEdit buddy;
  buddy.Create(kChild, PlaceAt(0), &host, 1);
  UpOnly spin;
  spin.Create(kChild | UDS_SETBUDDYINT | UDS_WRAP, PlaceAt(1), &host, 2);
  spin.SetBuddy(&buddy);
  spin.SetRange32(5, 3);
  spin.SetPos32(4);
  host.TakeLog();
  const auto press = [&](Qt::Key key) {
    return QTest::keyClick(WidgetOf(&spin), key), buddy.GetWindowTextString();
  };
  EXPECT_EQ(press(Qt::Key_Up), L"5");
  EXPECT_NE(host.TakeLog().Find(L"v:4 v:8 "), -1);
  EXPECT_EQ(press(Qt::Key_Down), L"5");
  EXPECT_EQ(press(Qt::Key_Up), L"3");
  EXPECT_EQ(spin.GetPos32(), 3);
}

TEST(Progress, KeepsThePositionAndShowsTheRange) {
  ControlHost host;
  CProgressCtrl bar;
  bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 24), &host, 2);
  bar.SetRange32(0, 200);
  EXPECT_EQ(bar.SetPos(201), 0);
  EXPECT_EQ(bar.GetPos(), 201);
  EXPECT_EQ(static_cast<QProgressBar*>(WidgetOf(&bar))->value(), 200);
  bar.SetPos(195);
  bar.StepIt();
  EXPECT_EQ(bar.GetPos(), 0);
}

// --- All controls

class ControlLife : public testing::Test {
 protected:
  ~ControlLife() override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  /// One control, used by a person, that is gone afterwards.
  template <class Control, class Use>
  void Destroy(DWORD style, Use use) {
    ControlHost host;
    host.destroys = true;
    Control control;
    ASSERT_TRUE(control.Create(L"", L"", WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 150, 60), &host, 1));
    use(control);
    EXPECT_FALSE(control.HasWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(control.Create(L"", L"", WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 150, 60), &host, 1));
  }
};

TEST_F(ControlLife, TheParentMayDestroyAControlThatTellsIt) {
  coregui::SetClipboardText(L"text");
  Destroy<CEdit>(0, [](CEdit& edit) { QTest::keyClick(WidgetOf(&edit), Qt::Key_A); });
  Destroy<CEdit>(0, [](CEdit& edit) { edit.Paste(); });
  Destroy<CEdit>(0, [](CEdit& edit) { edit.ReplaceSel(L"x"); });
  Destroy<CEdit>(ES_MULTILINE, [](CEdit& edit) { QTest::keyClick(WidgetOf(&edit), Qt::Key_A); });
  for (const DWORD kind : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON}) {
    Destroy<CButton>(kind, [](CButton& button) { QTest::keyClick(WidgetOf(&button), Qt::Key_Space); });
  }
  Destroy<CScrollBar>(SBS_VERT, [](CScrollBar& bar) { QTest::keyClick(WidgetOf(&bar), Qt::Key_Down); });
  Destroy<CScrollBar>(
      0, [](CScrollBar& bar) { QTest::mouseClick(WidgetOf(&bar), Qt::LeftButton, {}, QPoint(145, 30)); });
  Destroy<CSliderCtrl>(0, [](CSliderCtrl& slider) { QTest::keyClick(WidgetOf(&slider), Qt::Key_Right); });
  Destroy<CSpinButtonCtrl>(0, [](CSpinButtonCtrl& spin) { QTest::keyClick(WidgetOf(&spin), Qt::Key_Up); });
  Destroy<CListBox>(0, [](CListBox& list) {
    list.AddString(L"a");
    auto* widget = static_cast<QListWidget*>(WidgetOf(&list));
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, {},
                      widget->visualItemRect(widget->item(0)).center());
  });
  Destroy<CTreeCtrl>(0, [](CTreeCtrl& tree) { tree.SelectItem(tree.InsertItem(L"a")); });
  Destroy<CComboBox>(CBS_DROPDOWNLIST, [](CComboBox& combo) {
    combo.AddString(L"a");
    combo.AddString(L"b");
    combo.SetCurSel(0);
    QTest::keyClick(WidgetOf(&combo), Qt::Key_Down);
  });
  Destroy<CComboBox>(CBS_DROPDOWN, [](CComboBox& combo) {
    QTest::keyClick(static_cast<QComboBox*>(WidgetOf(&combo))->lineEdit(), Qt::Key_A);
  });
}

TEST_F(ControlLife, KeysThatAControlKeepsFromItsDialog) {
  ControlHost host;
  const auto code = [&host](auto&& control, DWORD style, UINT key) {
    control.Create(L"", L"", WS_CHILD | style, CRect(0, 0, 50, 20), &host, 1);
    return static_cast<UINT>(control.SendMessage(WM_GETDLGCODE, key));
  };
  EXPECT_EQ(code(CEdit(), 0, VK_RETURN) & DLGC_WANTALLKEYS, 0U);
  EXPECT_EQ(code(CEdit(), ES_MULTILINE | ES_WANTRETURN, VK_RETURN) & DLGC_WANTALLKEYS, DLGC_WANTALLKEYS);
  EXPECT_EQ(code(CEdit(), ES_MULTILINE | ES_WANTRETURN, VK_TAB) & DLGC_WANTALLKEYS, 0U);
  EXPECT_EQ(code(CButton(), BS_PUSHBUTTON, VK_RETURN), DLGC_BUTTON);
  EXPECT_EQ(code(CButton(), BS_AUTOCHECKBOX, VK_RETURN), 0U);
  EXPECT_EQ(code(CListBox(), 0, VK_DOWN), DLGC_WANTARROWS);
}

}  // namespace
