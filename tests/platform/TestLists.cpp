#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "platform/CComboBox.h"
#include "platform/CListBox.h"
#include "platform/CTreeCtrl.h"
#include "tests/support/ControlHost.h"

namespace {

using namespace coregui::test;

TEST(ListBox, KeepsItsOrderTextsAndData) {
  ControlHost host;
  CListBox list;
  list.Create(WS_CHILD | WS_VISIBLE | LBS_SORT, CRect(0, 0, 100, 100), &host, 2);
  for (const wchar_t* text : {L"pear", L"Apple", L"quince", L"apple"}) list.AddString(text);
  CString all;
  CString text;
  for (int i = 0; list.GetText(i, text) == text.GetLength(); ++i) all += text + L" ";
  EXPECT_EQ(all, L"Apple apple pear quince ");
  list.SetItemData(2, -7);
  EXPECT_EQ(list.InsertString(0, L"zebra"), 0);
  EXPECT_EQ(list.GetItemData(3), -7);
  EXPECT_EQ(list.InsertString(9, L"no"), LB_ERR);
  EXPECT_EQ(list.DeleteString(0), 4);
  EXPECT_EQ(list.DeleteString(4), LB_ERR);
  EXPECT_EQ(list.FindString(0, L"APP"), 1);
  EXPECT_EQ(list.FindString(1, L"app"), 0);  // goes round
  EXPECT_EQ(list.FindStringExact(-1, L"app"), LB_ERR);
  list.ResetContent();
  EXPECT_EQ(list.GetCount(), 0);
}

TEST(ListBox, OnlyAPersonNotifies) {
  ControlHost host;
  CListBox several;
  several.Create(WS_CHILD | LBS_MULTIPLESEL, PlaceAt(0), &host, 3);
  CListBox list;
  list.Create(kChild, CRect(0, 0, 100, 100), &host, 2);
  for (const wchar_t* text : {L"a", L"b"}) {
    list.AddString(text);
    several.SetSel(several.AddString(text));
  }
  EXPECT_EQ(several.GetSelCount(), 2);
  EXPECT_EQ(list.GetCurSel(), LB_ERR);
  EXPECT_EQ(list.SetCurSel(1), 1);
  EXPECT_EQ(list.SetCurSel(5), LB_ERR);
  EXPECT_EQ(host.TakeLog(), L"");
  auto* widget = static_cast<QListWidget*>(WidgetOf(&list));
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, widget->visualItemRect(widget->item(0)).center());
  EXPECT_EQ(list.GetCurSel(), 0);
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(list.GetCurSel(), 1);
  EXPECT_EQ(host.TakeLog(), L"2:1 2:1 ");
}

TEST(ComboBox, FillingChoosesNothingAndAPersonsChoiceIsTold) {
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
  combo.SetCurSel(1);
  combo.ShowDropDown();
  EXPECT_TRUE(combo.GetDroppedState());
  auto* view = static_cast<QComboBox*>(WidgetOf(&combo))->view();
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_FALSE(combo.GetDroppedState());
  EXPECT_EQ(combo.GetCurSel(), 2);
  EXPECT_THAT(host.TakeLog().ToUtf8(), testing::AllOf(testing::StartsWith("2:7 "), testing::HasSubstr("2:1 "),
                                                      testing::HasSubstr("2:8 ")));
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
  auto* line = static_cast<QComboBox*>(WidgetOf(&combo))->lineEdit();
  QTest::keyClicks(line, "axb");
  EXPECT_EQ(combo.GetWindowTextString(), L"ab");
  EXPECT_NE(host.TakeLog().Find(L"2:5 2:5 "), -1);
  combo.LimitText(3);
  QTest::keyClicks(line, "cd");
  EXPECT_EQ(combo.GetWindowTextString(), L"abc");
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
  std::vector<HTREEITEM> order;
  for (HTREEITEM at = tree.GetRootItem(); at != nullptr; at = tree.GetNextSiblingItem(at)) {
    order.push_back(at);
    if (HTREEITEM below = tree.GetChildItem(at)) order.push_back(below);
  }
  EXPECT_EQ(order, std::vector<HTREEITEM>({a, ab, b, x}));
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
  QTest::keyClick(WidgetOf(&tree), Qt::Key_Space);
  EXPECT_FALSE(tree.GetCheck(y));
  EXPECT_EQ(host.TakeLog(), L"2:3 ") << "a person's check is told";
  EXPECT_TRUE(tree.DeleteItem(b));
  EXPECT_EQ(tree.GetCount(), 2);
}

}  // namespace
