#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "platform/CButton.h"
#include "platform/CEdit.h"
#include "platform/CStatic.h"
#include "tests/support/ControlHost.h"

namespace {

using namespace coregui::test;

TEST(Button, EveryKindNotifiesOfAClick) {
  ControlHost host;
  struct Kind {
    DWORD style;
    int state;  ///< after one click
    int next;   ///< and after a press of the space bar
  };
  constexpr Kind kinds[] = {
      {BS_PUSHBUTTON, BST_UNCHECKED, BST_UNCHECKED},   {BS_DEFPUSHBUTTON, BST_UNCHECKED, BST_UNCHECKED},
      {BS_CHECKBOX, BST_UNCHECKED, BST_UNCHECKED},     {BS_AUTOCHECKBOX, BST_CHECKED, BST_UNCHECKED},
      {BS_AUTO3STATE, BST_INDETERMINATE, BST_CHECKED}, {BS_AUTORADIOBUTTON, BST_CHECKED, BST_CHECKED}};
  for (const Kind& kind : kinds) {
    CButton button;
    ASSERT_TRUE(button.Create(L"&Go", WS_CHILD | WS_VISIBLE | kind.style, CRect(5, 5, 100, 30), &host, 9));
    QTest::mouseClick(WidgetOf(&button), Qt::LeftButton, {}, QPoint(8, 12));
    EXPECT_EQ(host.TakeLog(), L"9:0 ") << kind.style;
    EXPECT_EQ(button.GetCheck(), kind.state) << kind.style;
    button.SetCheck(kind.state);
    EXPECT_EQ(host.TakeLog(), L"") << kind.style;
    QTest::keyClick(WidgetOf(&button), Qt::Key_Space);
    EXPECT_EQ(host.TakeLog(), L"9:0 ") << kind.style;
    EXPECT_EQ(button.GetCheck(), kind.next) << kind.style;
    button.EnableWindow(FALSE);
    button.Click();
    EXPECT_EQ(host.TakeLog(), L"") << kind.style;
  }
}

TEST(Button, RadioButtonsExcludeEachOtherWithinTheirGroup) {
  ControlHost host;
  CButton buttons[4];
  for (int i = 0; i < 4; ++i) {
    const DWORD group = i % 2 == 0 ? WS_GROUP : 0;
    buttons[i].Create(L"r", WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | group,
                      CRect(5, 5 + 20 * i, 100, 22 + 20 * i), &host, static_cast<UINT>(i));
  }
  const auto checks = [&buttons] {
    std::string text;
    for (const CButton& button : buttons) text += std::to_string(button.GetCheck());
    return text;
  };
  for (const int pressed : {0, 3, 1, 1}) buttons[pressed].Click();
  EXPECT_EQ(checks(), "0101");
  buttons[1].SetCheck(BST_UNCHECKED);
  EXPECT_EQ(checks(), "0001");
}

TEST(Static, NamesTheControlBehindItAndItsAccessKeyLeadsThere) {
  ControlHost host;
  const CRect place(5, 5, 100, 30);
  const DWORD style = WS_CHILD | WS_VISIBLE;
  CStatic title;
  CStatic label;
  CEdit edit;
  CStatic last;
  CButton button;
  title.Create(L"&Names", style, place, &host, 1);
  label.Create(L"&Name && kind", style, place, &host, 2);
  edit.Create(style, place, &host, 3);
  last.Create(L"&Go", style, place, &host, 4);
  button.Create(L"&Start", style, place, &host, 5);
  const auto spoken = [](CWnd& window) {
    return QAccessible::queryAccessibleInterface(WidgetOf(&window))->text(QAccessible::Name);
  };
  EXPECT_EQ(spoken(edit), "Name & kind");
  EXPECT_EQ(spoken(button), "Start") << "a button bears its own name";
  QCoreApplication::processEvents();
  button.SetFocus();
  QTest::keyClick(WidgetOf(&button), Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(CWnd::GetFocus(), &edit);
  label.SetWindowText(L"K&ind");
  button.SetFocus();
  QTest::keyClick(WidgetOf(&button), Qt::Key_I, Qt::AltModifier);
  EXPECT_EQ(CWnd::GetFocus(), &edit);
  edit.DestroyWindow();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(static_cast<QLabel*>(WidgetOf(&label))->text(), "Kind");
}

TEST(Static, HidesTheMarkOfItsAccessKeyAndTellsOfClicks) {
  ControlHost host;
  CStatic text;
  text.Create(L"&Find && go", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(5, 5, 100, 30), &host, 4);
  const auto* label = static_cast<QLabel*>(WidgetOf(&text));
  EXPECT_EQ(label->text(), "Find & go");
  EXPECT_EQ(text.GetWindowTextString(), L"&Find && go");
  QTest::mouseClick(WidgetOf(&text), Qt::LeftButton);
  EXPECT_EQ(host.TakeLog(), L"4:0 ");
  text.SetWindowText(L"<b>5</b>");
  EXPECT_EQ(label->text(), "<b>5</b>");
}

}  // namespace
