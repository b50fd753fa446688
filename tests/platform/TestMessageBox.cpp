#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "platform/CMenu.h"
#include "platform/MessageBox.h"
#include "tests/support/ControlHost.h"

namespace {

using coregui::MessageBoxParams;
using coregui::ShowMessageBox;
using namespace coregui::test;

/// Does something with the box once it is shown.
template <class Widget>
void WhenShown(std::function<void(Widget&)> act) {
  QTimer::singleShot(0, [act = std::move(act)] {
    QWidget* shown = QApplication::activeModalWidget();
    if (shown == nullptr) shown = QApplication::activePopupWidget();
    auto* widget = qobject_cast<Widget*>(shown);
    ASSERT_NE(widget, nullptr);
    act(*widget);
  });
}

/// From left to right.
QList<QAbstractButton*> ButtonsOf(const QMessageBox& box) {
  QList<QAbstractButton*> buttons = box.buttons();
  std::sort(buttons.begin(), buttons.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
  return buttons;
}

std::string Buttons(const QMessageBox& box) {
  std::string texts;
  for (const QAbstractButton* button : ButtonsOf(box))
    texts += button->text().remove('&').toStdString() + " ";
  return texts;
}

TEST(MessageBox, ShowsItsStyleAndAnswersTheWellKnownNumbers) {
  struct Row {
    UINT style;
    const char* buttons;
    int first;
    int escape;  ///< 0: Esc does nothing
    int last;
    QMessageBox::Icon icon;
  };
  constexpr Row rows[] = {
      {MB_OK | MB_ICONSTOP, "OK ", IDOK, IDOK, IDOK, QMessageBox::Critical},
      {MB_OKCANCEL | MB_ICONWARNING, "OK Cancel ", IDOK, IDCANCEL, IDCANCEL, QMessageBox::Warning},
      {MB_ABORTRETRYIGNORE, "Abort Retry Ignore ", IDABORT, 0, IDIGNORE, QMessageBox::NoIcon},
      {MB_YESNOCANCEL | MB_ICONQUESTION, "Yes No Cancel ", IDYES, IDCANCEL, IDCANCEL, QMessageBox::Question},
      {MB_YESNO | MB_ICONINFORMATION, "Yes No ", IDYES, 0, IDNO, QMessageBox::Information},
      {MB_YESNOCANCEL | MB_DEFBUTTON2, "Yes No Cancel ", IDNO, IDCANCEL, IDCANCEL, QMessageBox::NoIcon},
      {MB_RETRYCANCEL, "Retry Cancel ", IDRETRY, IDCANCEL, IDCANCEL, QMessageBox::NoIcon}};
  for (const Row& row : rows) {
    MessageBoxParams params;
    params.text = L"100% <b>sure</b>?";
    params.caption = L"Caption";
    params.style = row.style;
    WhenShown<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(Buttons(box), row.buttons);
      EXPECT_EQ(box.icon(), row.icon);
      EXPECT_EQ(box.windowTitle(), "Caption");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(ShowMessageBox(params), row.first) << row.style;
    WhenShown<QMessageBox>([&](QMessageBox& box) {
      QTest::keyClick(&box, Qt::Key_Escape);
      if (row.escape == 0) {
        EXPECT_TRUE(box.isVisible()) << row.style;
        box.close();
        EXPECT_TRUE(box.isVisible()) << row.style;
        ButtonsOf(box).last()->click();
      }
    });
    const int answer = ShowMessageBox(params);
    EXPECT_EQ(answer, row.escape != 0 ? row.escape : row.last) << row.style;
  }
}

TEST(MessageBox, AtMostFourButtonsOfTheCallers) {
  MessageBoxParams params;
  for (UINT i = 0; i < 6; ++i) params.buttons.push_back({100 + i, CString::Formatted(L"B%u", i)});
  WhenShown<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(Buttons(box), "B0 B1 B2 B3 ");
    ButtonsOf(box)[2]->click();
  });
  EXPECT_EQ(ShowMessageBox(params), 102);
}

TEST(MessageBox, ALongTextIsScrolledAndLeavesTheButtonsOnTheScreen) {
  MessageBoxParams params;
  params.style = MB_YESNO | MB_ICONSTOP;
  for (const int lines : {3, 400}) {
    params.text = L"First";
    for (int i = 0; i < lines; ++i) params.text.AppendFormat(L"\nRow %d is not a number", i);
    WhenShown<QMessageBox>([&](QMessageBox& box) {
      EXPECT_LE(box.height(), box.screen()->availableSize().height());
      EXPECT_EQ(box.text().count('\n'), lines);
      for (const QAbstractButton* button : box.buttons()) {
        const QRect place(button->mapTo(&box, QPoint()), button->size());
        EXPECT_TRUE(box.rect().contains(place));
      }
      const auto* area = box.findChild<QScrollArea*>();
      const int scrolls = area == nullptr ? 0 : area->verticalScrollBar()->maximum();
      EXPECT_EQ(scrolls > 1000, lines > 3) << scrolls;
      ButtonsOf(box).last()->click();
    });
    EXPECT_EQ(ShowMessageBox(params), IDNO);
  }
}

TEST(Menu, AnswersTheChosenCommand) {
  ControlHost host;
  CMenu menu;
  menu.CreatePopupMenu();
  menu.AppendMenu(MF_STRING, 10, L"&Open\tCtrl+O");
  menu.AppendMenu(MF_SEPARATOR);
  menu.AppendMenu(MF_STRING | MF_GRAYED, 11, L"Shut");
  CMenu* below = menu.AppendSubMenu(L"More");
  below->AppendMenu(MF_STRING | MF_CHECKED, 12, L"Deep");
  const auto choose = [](int downs) {
    WhenShown<QMenu>([downs](QMenu& shown) {
      EXPECT_TRUE(shown.actions()[1]->isSeparator());
      EXPECT_FALSE(shown.actions()[2]->isEnabled());
      EXPECT_TRUE(shown.actions()[3]->menu()->actions()[0]->isChecked());
      for (int i = 0; i < downs; ++i) QTest::keyClick(&shown, Qt::Key_Down);
      QTest::keyClick(&shown, downs == 0 ? Qt::Key_Escape : Qt::Key_Return);
    });
  };
  choose(1);
  EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 50, 50, &host), 10);
  choose(1);
  EXPECT_EQ(menu.TrackPopupMenu(0, 50, 50, &host), 1);
  EXPECT_EQ(host.TakeLog(), L"a:0 ");
  choose(0);
  EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 50, 50, &host), 0);
}

TEST(Menu, ItemsAreFoundByIdBelowTooAndByPositionHere) {
  CMenu menu;
  menu.AppendMenu(MF_STRING, 10, L"a");
  menu.AppendSubMenu(L"b")->AppendMenu(MF_STRING, 12, L"c");
  EXPECT_EQ(menu.CheckMenuItem(12, MF_CHECKED), MF_UNCHECKED);
  EXPECT_EQ(menu.CheckMenuItem(12, MF_UNCHECKED), MF_CHECKED);
  EXPECT_EQ(menu.EnableMenuItem(99, MF_GRAYED), static_cast<UINT>(-1));
  EXPECT_EQ(menu.EnableMenuItem(0, MF_BYPOSITION | MF_GRAYED), MF_ENABLED);
  EXPECT_EQ(menu.GetMenuState(10, MF_BYCOMMAND), MF_GRAYED);
  EXPECT_TRUE(menu.InsertMenu(12, MF_BYCOMMAND, 13, L"d"));
  EXPECT_EQ(menu.GetSubMenu(1)->GetMenuItemID(0), 13U);
  EXPECT_EQ(menu.GetMenuItemID(1), static_cast<UINT>(-1));
  EXPECT_TRUE(menu.DeleteMenu(0, MF_BYPOSITION));
  EXPECT_EQ(menu.GetMenuItemCount(), 1);
  CString text;
  EXPECT_EQ(menu.GetMenuString(0, text, MF_BYPOSITION), 1);
  EXPECT_EQ(text, L"b");
}

}  // namespace
