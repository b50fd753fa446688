#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "platform/CButton.h"
#include "platform/CComboBox.h"
#include "platform/CEdit.h"
#include "platform/CListBox.h"
#include "platform/CScrollBar.h"
#include "platform/CSliderCtrl.h"
#include "platform/CSpinButtonCtrl.h"
#include "platform/CTreeCtrl.h"
#include "platform/Clipboard.h"
#include "tests/support/ControlHost.h"

namespace {

using namespace coregui::test;

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
