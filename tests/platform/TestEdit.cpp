#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "platform/CEdit.h"
#include "platform/Clipboard.h"
#include "tests/support/ControlHost.h"

namespace {

using namespace coregui::test;

/// Lets only digits in, and notes what arrives.
class DigitEdit : public CEdit {
 public:
  const coregui::MessageTable& GetMessageTable() const override {
    static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                   .On<WM_CHAR>(&DigitEdit::HandleChar)
                                                   .On<WM_PASTE>(&DigitEdit::HandlePaste);
    return table;
  }
  int pastes = 0;

 private:
  void HandleChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
    if (character < L' ' || (character >= L'0' && character <= L'9')) Default();
  }
  LRESULT HandlePaste(WPARAM /*w*/, LPARAM /*l*/) {
    ++pastes;
    return 0;
  }
};

struct Edit : EditTest<CEdit> {
  QWidget* Widget() { return WidgetOf(&edit); }
};
struct DigitsOnly : EditTest<DigitEdit> {
  QWidget* Widget() { return WidgetOf(&edit); }
};

std::pair<int, int> Selection(const CEdit& edit) {
  std::pair<int, int> sel;
  edit.GetSel(sel.first, sel.second);
  return sel;
}

TEST_F(DigitsOnly, EveryWayToPasteIsTheMessage) {
  coregui::SetClipboardText(L"99");
  QTest::keyClick(Widget(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(edit.pastes, 1);
  QTest::keyClick(Widget(), Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(edit.pastes, 2);
  edit.Paste();
  EXPECT_EQ(edit.pastes, 3);
  QTimer::singleShot(0, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (action->text() == "&Paste") {
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        return;
      }
    }
  });
  QContextMenuEvent ask(QContextMenuEvent::Mouse, QPoint(5, 5), Widget()->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(Widget(), &ask);
  EXPECT_EQ(edit.pastes, 4);
  EXPECT_EQ(edit.GetWindowTextString(), L"");
}

TEST_F(Edit, NotifiesOfChangesAndFocus) {
  QTest::keyClicks(Widget(), "ab");
  edit.SetWindowText(L"c");
  edit.SetSel(0, -1);
  edit.ReplaceSel(L"d");
  other.SetFocus();
  EXPECT_EQ(host.TakeLog(), L"7:300 7:300 7:300 7:300 7:200 8:100 ");
}

TEST_F(Edit, SelectionsCountCharactersNotUnits) {
  edit.SetWindowText(L"abcdef");
  edit.SetSel(1, 3);
  EXPECT_EQ(edit.LineLength(), 4) << "without the selection";
  EXPECT_EQ(edit.LineLength(0), 6);
  edit.SetWindowText(L"a\U0001F600bc");
  edit.SetSel(1, 2);
  edit.ReplaceSel(L"XY", TRUE);
  EXPECT_EQ(edit.GetWindowTextString(), L"aXYbc");
  EXPECT_EQ(Selection(edit), std::pair(3, 3));
  EXPECT_TRUE(edit.Undo());
  EXPECT_EQ(edit.GetWindowTextString(), L"a\U0001F600bc");
  edit.SetSel(2, -1);
  EXPECT_EQ(Selection(edit), std::pair(2, 4));
  edit.SetSel(-1, 0);
  EXPECT_EQ(Selection(edit), std::pair(4, 4));
  edit.SetSel(99, 99);
  EXPECT_EQ(Selection(edit), std::pair(4, 4));
  edit.ReplaceSel(L"!");
  EXPECT_FALSE(edit.CanUndo());
  EXPECT_EQ(edit.GetWindowTextString(), L"a\U0001F600bc!");
}

TEST_F(Edit, LimitReadOnlyAndPassword) {
  edit.SetLimitText(3);
  QTest::keyClicks(Widget(), "abcdef");
  EXPECT_EQ(edit.GetWindowTextString(), L"abc");
  edit.SetLimitText(0);
  edit.SetWindowText(CString(L'x', 40000));
  EXPECT_EQ(edit.GetWindowTextLength(), 40000);
  edit.SetWindowText(L"keep");
  EXPECT_FALSE(edit.GetModify());
  edit.SetReadOnly();
  coregui::SetClipboardText(L"99");
  QTest::keyClicks(Widget(), "z");
  edit.SetSel(0, 2);
  edit.Paste();
  edit.Cut();
  edit.Clear();
  EXPECT_EQ(edit.GetWindowTextString(), L"keep");
  edit.SetReadOnly(FALSE);
  edit.Cut();
  EXPECT_EQ(edit.GetWindowTextString(), L"ep");
  CString cut;
  EXPECT_TRUE(coregui::GetClipboardText(cut));
  EXPECT_EQ(cut, L"ke");
  edit.SetPassword(TRUE);
  EXPECT_NE(static_cast<QLineEdit*>(Widget())->displayText(), "ep");
  EXPECT_EQ(edit.GetWindowTextString(), L"ep");
}

TEST_F(DigitsOnly, LinesAreEditedUnderTheSameRules) {
  Start(ES_MULTILINE | ES_WANTRETURN);
  edit.MoveWindow(5, 5, 145, 25);
  edit.SetWindowText(L"12\n345");
  EXPECT_EQ(edit.GetLineCount(), 2);
  EXPECT_EQ(edit.LineLength(4), 3);
  edit.SetSel(6, 6);
  QTest::keyClicks(Widget(), "x");
  edit.SendMessage(WM_CHAR, L'z');
  edit.SendMessage(WM_CHAR, L'6');
  QTest::keyClick(Widget(), Qt::Key_Return);
  QTest::keyClicks(Widget(), "7");
  EXPECT_EQ(edit.GetWindowTextString(), L"12\n3456\n7");
  auto* view = Widget()->findChild<QWidget*>("qt_scrollarea_viewport");
  QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(1, 5));
  EXPECT_EQ(Selection(edit), std::pair(8, 8));  // scrolled to the last line
  QMimeData data;
  data.setText("8\nx9");
  QDragEnterEvent enter(QPoint(140, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &enter);
  QDropEvent drop(QPointF(140, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &drop);
  EXPECT_EQ(edit.GetWindowTextString(), L"12\n3456\n78\n9");
}

}  // namespace
