#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

#include "platform/CComboBox.h"
#include "platform/CDC.h"
#include "platform/CListBox.h"
#include "platform/CTreeCtrl.h"
#include "tests/platform/ControlHost.h"

namespace {

using coregui::test::ControlHost;
using coregui::test::WidgetOf;

TEST(ListBox, KeepsItsOrderTextsAndData) {
  ControlHost host;
  CListBox list;
  list.Create(WS_CHILD | WS_VISIBLE | LBS_SORT, CRect(0, 0, 100, 100), &host, 2);
  for (const wchar_t* text : {L"pear", L"Apple", L"quince", L"apple"}) list.AddString(text);
  CString all;
  for (int i = 0; i < list.GetCount(); ++i) {
    CString text;
    const int length = list.GetText(i, text);
    EXPECT_EQ(length, text.GetLength());
    all += text + L" ";
  }
  EXPECT_EQ(all, L"Apple apple pear quince ");
  list.SetItemData(2, -7);
  EXPECT_EQ(list.InsertString(0, L"zebra"), 0);
  EXPECT_EQ(list.GetItemData(3), -7);
  EXPECT_EQ(list.InsertString(9, L"no"), LB_ERR);
  EXPECT_EQ(list.DeleteString(0), 4);
  EXPECT_EQ(list.DeleteString(4), LB_ERR);
  EXPECT_EQ(list.GetText(4, all), LB_ERR);
  EXPECT_EQ(list.FindString(0, L"APP"), 1);
  EXPECT_EQ(list.FindString(1, L"app"), 0);  // goes round
  EXPECT_EQ(list.FindStringExact(-1, L"app"), LB_ERR);
  list.ResetContent();
  EXPECT_EQ(list.GetCount(), 0);
}

TEST(ListBox, OnlyAPersonNotifies) {
  ControlHost host;
  CListBox list;
  list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &host, 2);
  list.AddString(L"a");
  list.AddString(L"b");
  EXPECT_EQ(list.GetCurSel(), LB_ERR);
  EXPECT_EQ(list.SetCurSel(1), 1);
  EXPECT_EQ(list.SetCurSel(5), LB_ERR);
  EXPECT_EQ(host.TakeLog(), L"");
  auto* widget = static_cast<QListWidget*>(WidgetOf(list));
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, widget->visualItemRect(widget->item(0)).center());
  EXPECT_EQ(host.TakeLog(), L"2:1 ");
  EXPECT_EQ(list.GetCurSel(), 0);
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(host.TakeLog(), L"2:1 ");
  EXPECT_EQ(list.GetCurSel(), 1);
}

TEST(ListBox, SeveralMayBeChosen) {
  ControlHost host;
  CListBox list;
  list.Create(WS_CHILD | WS_VISIBLE | LBS_MULTIPLESEL, CRect(0, 0, 100, 100), &host, 2);
  for (const wchar_t* text : {L"a", L"b", L"c"}) list.AddString(text);
  list.SetSel(0);
  list.SetSel(2);
  EXPECT_EQ(list.GetSelCount(), 2);
  EXPECT_TRUE(list.GetSel(2));
  list.SetSel(0, FALSE);
  EXPECT_EQ(list.GetSelCount(), 1);
  EXPECT_EQ(host.TakeLog(), L"");
}

TEST(ComboBox, FillingChoosesNothing) {
  ControlHost host;
  CComboBox combo;
  combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 100, 24), &host, 2);
  combo.AddString(L"one");
  combo.AddString(L"two");
  EXPECT_EQ(combo.GetCurSel(), CB_ERR);
  EXPECT_EQ(combo.SelectString(-1, L"TW"), 1);
  EXPECT_EQ(combo.GetWindowTextString(), L"two");
  EXPECT_EQ(combo.SetCurSel(9), CB_ERR);
  EXPECT_EQ(host.TakeLog(), L"");
  combo.SetItemData(1, 42);
  combo.InsertString(0, L"zero");
  EXPECT_EQ(combo.GetItemData(2), 42);
  EXPECT_EQ(combo.DeleteString(7), CB_ERR);
}

TEST(ComboBox, ChoosingFromTheListNotifies) {
  ControlHost host;
  CComboBox combo;
  combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 100, 24), &host, 2);
  combo.AddString(L"one");
  combo.AddString(L"two");
  combo.SetCurSel(0);
  combo.ShowDropDown();
  EXPECT_TRUE(combo.GetDroppedState());
  auto* view = static_cast<QComboBox*>(WidgetOf(combo))->view();
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_FALSE(combo.GetDroppedState());
  EXPECT_EQ(combo.GetCurSel(), 1);
  const CString log = host.TakeLog();
  EXPECT_EQ(log.Find(L"2:7 "), 0) << log.ToUtf8();
  EXPECT_GT(log.Find(L"2:1 "), 0) << log.ToUtf8();
  EXPECT_GT(log.Find(L"2:8 "), 0) << log.ToUtf8();
}

/// Refuses the letter x.
class PickyCombo : public CComboBox {
 public:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_CHAR && wParam == L'x') return 0;
    return CComboBox::WindowProc(message, wParam, lParam);
  }
};

TEST(ComboBox, TypedCharactersPassTheWindowFirst) {
  ControlHost host;
  PickyCombo combo;
  combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 24), &host, 2);
  combo.AddString(L"one");
  EXPECT_EQ(combo.GetWindowTextString(), L"");
  auto* line = static_cast<QComboBox*>(WidgetOf(combo))->lineEdit();
  QTest::keyClicks(line, "axb");
  EXPECT_EQ(combo.GetWindowTextString(), L"ab");
  EXPECT_NE(host.TakeLog().Find(L"2:5 2:5 "), -1);
  combo.LimitText(3);
  QTest::keyClicks(line, "cd");
  EXPECT_EQ(combo.GetWindowTextString(), L"abc");
}

/// Fills its items with a colour.
class PaintedCombo : public CComboBox {
 protected:
  void DrawItem(CDC& dc, const RECT& rect, int index, bool /*selected*/) override {
    dc.FillSolidRect(rect, RGB(10 * index, 0, 200));
  }
  int GetItemHeight() const override { return 31; }
};

TEST(ComboBox, ItemsAreDrawnByTheOwner) {
  ControlHost host;
  PaintedCombo combo;
  combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, CRect(0, 0, 100, 24), &host, 2);
  combo.AddString(L"one");
  combo.AddString(L"two");
  combo.ShowDropDown();
  auto* view = static_cast<QComboBox*>(WidgetOf(combo))->view();
  const QRect second = view->visualRect(view->model()->index(1, 0));
  EXPECT_EQ(second.height(), 31);
  const QImage picture = view->viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(second.center() * picture.devicePixelRatio()), QColor(10, 0, 200));
  combo.ShowDropDown(FALSE);
}

TEST(Tree, ItemsStandWhereTheyWerePut) {
  ControlHost host;
  CTreeCtrl tree;
  tree.Create(WS_CHILD | WS_VISIBLE | TVS_CHECKBOXES, CRect(0, 0, 100, 100), &host, 2);
  const HTREEITEM b = tree.InsertItem(L"b");
  const HTREEITEM a = tree.InsertItem(L"a", nullptr, TreePlace::first);
  const HTREEITEM ab = tree.InsertItemAfter(L"ab", a);
  const HTREEITEM y = tree.InsertItem(L"y", b);
  const HTREEITEM x = tree.InsertItem(L"X", b, TreePlace::sorted);
  EXPECT_EQ(tree.GetRootItem(), a);
  EXPECT_EQ(tree.GetNextSiblingItem(a), ab);
  EXPECT_EQ(tree.GetNextSiblingItem(ab), b);
  EXPECT_EQ(tree.GetNextSiblingItem(b), nullptr);
  EXPECT_EQ(tree.GetChildItem(b), x);
  EXPECT_EQ(tree.GetParentItem(y), b);
  EXPECT_EQ(tree.GetParentItem(b), nullptr);
  tree.SetItemData(y, 5);
  tree.SetItemText(y, L"why");
  tree.SetCheck(y);
  EXPECT_EQ(tree.GetItemData(y), 5);
  EXPECT_TRUE(tree.GetCheck(y));
  EXPECT_EQ(host.TakeLog(), L"");
  tree.SelectItem(y);
  EXPECT_EQ(tree.GetSelectedItem(), y);
  EXPECT_NE(host.TakeLog().Find(L"2:1 "), -1);
  EXPECT_TRUE(tree.DeleteItem(b));
  EXPECT_EQ(tree.GetCount(), 2);
}

TEST(Tree, APersonsCheckIsTold) {
  ControlHost host;
  CTreeCtrl tree;
  tree.Create(WS_CHILD | WS_VISIBLE | TVS_CHECKBOXES, CRect(0, 0, 100, 100), &host, 2);
  const HTREEITEM item = tree.InsertItem(L"a");
  tree.SelectItem(item);
  host.TakeLog();
  QTest::keyClick(WidgetOf(tree), Qt::Key_Space);
  EXPECT_TRUE(tree.GetCheck(item));
  EXPECT_EQ(host.TakeLog(), L"2:3 ");
}

}  // namespace
