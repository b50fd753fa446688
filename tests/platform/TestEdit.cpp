#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "platform/CEdit.h"
#include "platform/Clipboard.h"
#include "tests/platform/ControlHost.h"

namespace {

using coregui::test::ControlHost;
using coregui::test::WidgetOf;

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

template <class Edit>
class EditHost : public ControlHost {
 public:
  explicit EditHost(DWORD style = 0) {
    edit.Create(WS_CHILD | WS_VISIBLE | style, CRect(5, 5, 150, 30), this, 7);
    edit.SetFocus();
    QCoreApplication::processEvents();
    TakeLog();
  }
  QWidget* Widget() { return WidgetOf(edit); }
  Edit edit;
};

std::pair<int, int> Selection(const CEdit& edit) {
  std::pair<int, int> sel;
  edit.GetSel(sel.first, sel.second);
  return sel;
}

TEST(Edit, EveryWayToPasteIsTheMessage) {
  EditHost<DigitEdit> host;
  coregui::SetClipboardText(L"99");
  QTest::keyClick(host.Widget(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(host.edit.pastes, 1);
  QTest::keyClick(host.Widget(), Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(host.edit.pastes, 2);
  host.edit.Paste();
  EXPECT_EQ(host.edit.pastes, 3);
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
  QContextMenuEvent ask(QContextMenuEvent::Mouse, QPoint(5, 5), host.Widget()->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(host.Widget(), &ask);
  EXPECT_EQ(host.edit.pastes, 4);
  EXPECT_EQ(host.edit.GetWindowTextString(), L"");
}

TEST(Edit, NotifiesOfChangesAndFocus) {
  EditHost<CEdit> host;
  CEdit other;
  other.Create(WS_CHILD | WS_VISIBLE, CRect(5, 40, 150, 60), &host, 8);
  QTest::keyClicks(host.Widget(), "ab");
  host.edit.SetWindowText(L"c");
  host.edit.SetSel(0, -1);
  host.edit.ReplaceSel(L"d");
  other.SetFocus();
  EXPECT_EQ(host.TakeLog(), L"7:300 7:300 7:300 7:300 7:200 8:100 ");
}

TEST(Edit, SelectionsCountCharactersNotUnits) {
  EditHost<CEdit> host;
  host.edit.SetWindowText(L"abcdef");
  host.edit.SetSel(1, 3);
  EXPECT_EQ(host.edit.LineLength(), 4) << "without the selection";
  EXPECT_EQ(host.edit.LineLength(0), 6);
  host.edit.SetWindowText(L"a\U0001F600bc");
  host.edit.SetSel(1, 2);
  host.edit.ReplaceSel(L"XY", TRUE);
  EXPECT_EQ(host.edit.GetWindowTextString(), L"aXYbc");
  EXPECT_EQ(Selection(host.edit), std::pair(3, 3));
  EXPECT_TRUE(host.edit.Undo());
  EXPECT_EQ(host.edit.GetWindowTextString(), L"a\U0001F600bc");
  host.edit.SetSel(2, -1);
  EXPECT_EQ(Selection(host.edit), std::pair(2, 4));
  host.edit.SetSel(-1, 0);
  EXPECT_EQ(Selection(host.edit), std::pair(4, 4));
  host.edit.SetSel(99, 99);
  EXPECT_EQ(Selection(host.edit), std::pair(4, 4));
  host.edit.ReplaceSel(L"!");
  EXPECT_FALSE(host.edit.CanUndo());
  EXPECT_EQ(host.edit.GetWindowTextString(), L"a\U0001F600bc!");
}

TEST(Edit, LimitReadOnlyAndPassword) {
  EditHost<CEdit> host;
  host.edit.SetLimitText(3);
  QTest::keyClicks(host.Widget(), "abcdef");
  EXPECT_EQ(host.edit.GetWindowTextString(), L"abc");
  host.edit.SetLimitText(0);
  host.edit.SetWindowText(CString(L'x', 40000));
  EXPECT_EQ(host.edit.GetWindowTextLength(), 40000);
  host.edit.SetWindowText(L"keep");
  EXPECT_FALSE(host.edit.GetModify());
  host.edit.SetReadOnly();
  coregui::SetClipboardText(L"99");
  QTest::keyClicks(host.Widget(), "z");
  host.edit.SetSel(0, 2);
  host.edit.Paste();
  host.edit.Cut();
  host.edit.Clear();
  EXPECT_EQ(host.edit.GetWindowTextString(), L"keep");
  host.edit.SetReadOnly(FALSE);
  host.edit.Cut();
  EXPECT_EQ(host.edit.GetWindowTextString(), L"ep");
  CString cut;
  EXPECT_TRUE(coregui::GetClipboardText(cut));
  EXPECT_EQ(cut, L"ke");
  host.edit.SetPassword(TRUE);
  EXPECT_NE(static_cast<QLineEdit*>(host.Widget())->displayText(), "ep");
  EXPECT_EQ(host.edit.GetWindowTextString(), L"ep");
}

TEST(Edit, LinesAreEditedUnderTheSameRules) {
  EditHost<DigitEdit> host(ES_MULTILINE | ES_WANTRETURN);
  host.edit.SetWindowText(L"12\n345");
  EXPECT_EQ(host.edit.GetLineCount(), 2);
  EXPECT_EQ(host.edit.LineLength(4), 3);
  host.edit.SetSel(6, 6);
  QTest::keyClicks(host.Widget(), "x");
  host.edit.SendMessage(WM_CHAR, L'z');
  host.edit.SendMessage(WM_CHAR, L'6');
  QTest::keyClick(host.Widget(), Qt::Key_Return);
  QTest::keyClicks(host.Widget(), "7");
  EXPECT_EQ(host.edit.GetWindowTextString(), L"12\n3456\n7");
  auto* view = host.Widget()->findChild<QWidget*>("qt_scrollarea_viewport");
  QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(1, 5));
  EXPECT_EQ(Selection(host.edit), std::pair(8, 8));  // scrolled to the last line
  QMimeData data;
  data.setText("8\nx9");
  QDragEnterEvent enter(QPoint(140, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &enter);
  QDropEvent drop(QPointF(140, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &drop);
  EXPECT_EQ(host.edit.GetWindowTextString(), L"12\n3456\n78\n9");
}

}  // namespace
