// Message boxes, menus, file dialogs, finding and replacing.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/CEdit.h"
#include "platform/CFileDialog.h"
#include "platform/CFindReplaceDialog.h"
#include "platform/CMenu.h"
#include "platform/CWinApp.h"
#include "platform/DialogIds.h"
#include "platform/MessageBox.h"
#include "tests/support/ControlHost.h"
#include "tests/support/FolderTest.h"
#include "tests/support/ShownWindow.h"

namespace {

using coregui::MessageBoxParams;
using coregui::ShowMessageBox;
using namespace coregui::test;

TEST(MessageBox, ShowsItsStyleAndAnswersTheWellKnownNumbers) {
  using Texts = std::vector<std::string>;
  // What Enter and Esc answer; 0: neither Esc nor closing does anything.
  const std::tuple<UINT, Texts, const char*, int, int> rows[] = {
      {MB_OK | MB_ICONSTOP, {"OK"}, "stop", IDOK, IDOK},
      {MB_OKCANCEL | MB_ICONWARNING, {"OK", "Cancel"}, "warning", IDOK, IDCANCEL},
      {MB_ABORTRETRYIGNORE, {"Abort", "Retry", "Ignore"}, "none", IDABORT, 0},
      {MB_YESNOCANCEL | MB_ICONQUESTION, {"Yes", "No", "Cancel"}, "question", IDYES, IDCANCEL},
      {MB_YESNO | MB_ICONINFORMATION, {"Yes", "No"}, "information", IDYES, 0},
      {MB_YESNOCANCEL | MB_DEFBUTTON2, {"Yes", "No", "Cancel"}, "none", IDNO, IDCANCEL},
      {MB_RETRYCANCEL, {"Retry", "Cancel"}, "none", IDRETRY, IDCANCEL}};
  MessageBoxParams params;
  params.caption = L"Caption";
  params.text = L"100% <b>sure</b>?";
  for (const auto& [style, buttons, icon, first, escape] : rows) {
    SCOPED_TRACE(style);
    params.style = style;
    {
      const NextWindow next([&, &buttons = buttons, &icon = icon](ShownWindow& box) {
        EXPECT_EQ(box.Buttons(), buttons);
        EXPECT_EQ(box.Icon(), icon);
        EXPECT_EQ(box.Title(), "Caption");
        EXPECT_EQ(static_cast<QMessageBox*>(QApplication::activeModalWidget())->textFormat(), Qt::PlainText);
        box.Key(VK_RETURN);
      });
      EXPECT_EQ(ShowMessageBox(params), first);
    }
    const NextWindow next([&, &buttons = buttons, answer = escape](ShownWindow& box) {
      box.Key(VK_ESCAPE);
      if (answer != 0) return;
      box.Close();
      EXPECT_TRUE(box.IsOpen());
      box.Key(static_cast<UINT>(buttons[1][0]));  // its access key
    });
    EXPECT_EQ(ShowMessageBox(params), escape != 0 ? escape : first + 1);
  }
}

TEST(MessageBox, AtMostFourButtonsOfTheCallers) {
  MessageBoxParams params;
  for (UINT i = 0; i < 6; ++i) params.buttons.push_back({100 + i, CString::Formatted(L"B%u", i)});
  const NextWindow next([](ShownWindow& box) {
    EXPECT_EQ(box.Buttons(), (std::vector<std::string>{"B0", "B1", "B2", "B3"}));
    box.Click("B2");
  });
  EXPECT_EQ(ShowMessageBox(params), 102);
}

TEST(MessageBox, ALongTextIsScrolledAndLeavesTheButtonsOnTheScreen) {
  MessageBoxParams params;
  params.style = MB_YESNO | MB_ICONSTOP;
  for (const int lines : {3, 400}) {
    params.text = L"First";
    for (int i = 0; i < lines; ++i) params.text.AppendFormat(L"\nRow %d is not a number", i);
    const NextWindow next([&](ShownWindow& shown) {
      const auto& box = static_cast<QMessageBox&>(*QApplication::activeModalWidget());
      EXPECT_LE(box.height(), box.screen()->availableSize().height());
      for (const QAbstractButton* button : box.buttons()) {
        EXPECT_TRUE(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
      }
      const auto* area = box.findChild<QScrollArea*>();
      const int scrolls = area == nullptr ? 0 : area->verticalScrollBar()->maximum();
      EXPECT_EQ(scrolls > 1000, lines > 3) << scrolls;
      shown.Click("No");
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
    QTimer::singleShot(0, [downs] {
      auto& shown = static_cast<QMenu&>(*QApplication::activePopupWidget());
      EXPECT_TRUE(shown.actions()[1]->isSeparator());
      EXPECT_FALSE(shown.actions()[2]->isEnabled());
      EXPECT_TRUE(shown.actions()[3]->menu()->actions()[0]->isChecked());
      for (int i = 0; i < downs; ++i) QTest::keyClick(&shown, Qt::Key_Down);
      QTest::keyClick(&shown, downs == 0 ? Qt::Key_Escape : Qt::Key_Return);
    });
  };
  for (const auto& [downs, answer] : {std::pair(1, 10), {0, 0}}) {
    choose(downs);
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 50, 50, &host), answer);
  }
  choose(1);
  EXPECT_EQ(menu.TrackPopupMenu(0, 50, 50, &host), 1);
  EXPECT_EQ(host.TakeLog(), L"a:0 ");
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

using FileDialogs = FolderTest;

TEST_F(FileDialogs, StartBesideTheirFileAndGiveItsParts) {
  std::filesystem::create_directory(At("sub"));
  Write("road.csv", "x");
  CFileDialog open(TRUE, L"csv", Wide("road.csv"), OFN_FILEMUSTEXIST, L"Survey (*.csv)|*.csv||");
  open.SetTitle(L"Open survey");
  const NextWindow first([&](ShownWindow& shown) {
    EXPECT_EQ(shown.Title(), "Open survey");
    EXPECT_EQ(shown.Folder(), m_folder);
    shown.Choose("road.csv");
  });
  EXPECT_EQ(open.DoModal(), IDOK);
  EXPECT_EQ(open.GetPathName(), Wide("road.csv"));
  EXPECT_EQ(open.GetFileName() + L"|" + open.GetFileTitle() + L"|" + open.GetFileExt(), L"road.csv|road|csv");
  CFileDialog save(FALSE, L"csv", Wide("sub"), 0, nullptr);
  for (const int answer : {IDOK, IDCANCEL}) {
    const NextWindow next(
        [answer](ShownWindow& shown) { answer == IDOK ? shown.Choose("new") : shown.Key(VK_ESCAPE); });
    EXPECT_EQ(save.DoModal(), answer);
    EXPECT_EQ(save.GetPathName(), Wide("sub/new.csv"));
  }
}

/// Writes down what the dialog asks for.
class Searcher : public ControlHost {
 public:
  CString asked;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == RegisterWindowMessage(FINDMSGSTRING)) {
      const auto* dialog = CFindReplaceDialog::GetNotifier(lParam);
      asked.AppendFormat(L"%s>%s %d%d%d %d%d%d%d;", dialog->GetFindString().GetString(),
                         dialog->GetReplaceString().GetString(), dialog->MatchCase(),
                         dialog->MatchWholeWord(), dialog->SearchDown(), dialog->FindNext(),
                         dialog->ReplaceCurrent(), dialog->ReplaceAll(), dialog->IsTerminating());
    }
    return ControlHost::WindowProc(message, wParam, lParam);
  }
};

TEST(FindReplace, EveryButtonAsksTheOwner) {
  Searcher owner;
  CFindReplaceDialog dialog;
  ASSERT_TRUE(dialog.Create(FALSE, L"", L"b", FR_MATCHCASE, &owner));
  QWidget* widget = WidgetOf(&dialog);
  const auto press = [widget](const char* name) { widget->findChild<QPushButton*>(name)->click(); };
  press("findNext");  // there is nothing to find
  EXPECT_EQ(owner.asked, L"");
  QTest::keyClicks(widget->findChild<QLineEdit*>("find"), "a");
  press("findNext");
  dialog.SetWholeWordText(L"Match &entire cell");
  EXPECT_EQ(widget->findChild<QCheckBox*>("word")->text(), "Match &entire cell");
  widget->findChild<QCheckBox*>("word")->click();
  press("replaceOne");
  press("replaceAll");
  EXPECT_EQ(owner.asked, L"a>b 101 1000;a>b 111 0100;a>b 111 0010;");
  owner.asked.Empty();
  QTest::keyClick(widget->findChild<QLineEdit*>("find"), Qt::Key_Escape);
  EXPECT_EQ(owner.asked, L"a>b 111 0001;");
  EXPECT_FALSE(dialog.HasWindow());
  owner.asked.Empty();
  ASSERT_TRUE(dialog.Create(TRUE, L"x", L"", 0, &owner)) << "finding only has a direction";
  auto* find = WidgetOf(&dialog)->findChild<QLineEdit*>("find");
  QTest::keyClick(find, Qt::Key_Return);
  {
    const NextWindow box([](ShownWindow& shown) { shown.Key(VK_RETURN); });
    dialog.MessageBox(L"\"x\" is not there.", L"Search", MB_OK);
  }
  CWinApp::PumpPending();
  EXPECT_EQ(QApplication::focusWidget(), find) << "who searches types on";
  dialog.SendMessage(WM_CLOSE);
  EXPECT_EQ(owner.asked, L"x> 000 1000;x> 000 0001;");
}

TEST(CommonDialogs, GoUnansweredWithAnOwnerThatIsDestroyedUnderThem) {
  CMenu menu;
  menu.AppendMenu(MF_STRING, 10, L"Open");
  CString folder;
  UINT checked = 1;
  const std::pair<const char*, std::function<int(CWnd&)>> boxes[] = {
      {"message",
       [&](CWnd& owner) {
         return ShowMessageBox({&owner, L"?", L"", MB_YESNOCANCEL, L"Again", &checked, {}});
       }},
      {"menu", [&](CWnd& owner) { return menu.TrackPopupMenu(TPM_RETURNCMD, 5, 5, &owner); }},
      {"file",
       [](CWnd& owner) {
         return CFileDialog(TRUE, nullptr, nullptr, 0, nullptr, &owner).DoModal() == IDCANCEL ? 0 : -1;
       }},
      {"folder", [&](CWnd& owner) { return coregui::ChooseFolder(folder, L"", &owner) ? -1 : 0; }},
      {"edit's menu", [](CWnd& owner) {
         CEdit edit;
         edit.Create(kChild, PlaceAt(0), &owner, 7);
         edit.SendMessage(WM_CONTEXTMENU, 0, -1);
         return 0;
       }}};
  for (const auto& [name, show] : boxes) {
    SCOPED_TRACE(name);
    ControlHost owner;
    bool shown = false;
    QTimer::singleShot(0, [&] {
      shown = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
      owner.DestroyWindow();
    });
    EXPECT_EQ(show(owner), 0);
    EXPECT_TRUE(shown);
  }
  EXPECT_EQ(checked, 1U);
}

TEST(RegisteredMessages, AreTheSameForTheSameName) {
  EXPECT_EQ(RegisterWindowMessage(L"Some name"), RegisterWindowMessage(L"SOME NAME"));
  EXPECT_NE(RegisterWindowMessage(L"Some name"), RegisterWindowMessage(L"other"));
  EXPECT_GE(RegisterWindowMessage(L"other"), 0xC000U);
}

}  // namespace
