#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "platform/CEdit.h"
#include "platform/CFileDialog.h"
#include "platform/CFindReplaceDialog.h"
#include "platform/CProgressCtrl.h"
#include "platform/CSliderCtrl.h"
#include "platform/CSpinButtonCtrl.h"
#include "platform/DialogIds.h"
#include "tests/support/ControlHost.h"
#include "tests/support/FolderTest.h"
#include "tests/support/ShownWindow.h"

namespace {

using namespace coregui::test;

TEST(Slider, MovesByItselfAndTells) {
  ControlHost host;
  CSliderCtrl slider;
  slider.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 24), &host, 2);
  slider.SetRange(-10, 10);
  slider.SetPos(99);
  EXPECT_EQ(slider.GetPos(), 10);
  EXPECT_EQ(host.TakeLog(), L"");
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
  buddy.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 24), &host, 1);
  UpOnly spin;
  spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_WRAP, CRect(80, 0, 100, 24), &host, 2);
  spin.SetBuddy(&buddy);
  spin.SetRange32(5, 3);
  spin.SetPos32(4);
  host.TakeLog();
  QTest::keyClick(WidgetOf(&spin), Qt::Key_Up);
  EXPECT_EQ(buddy.GetWindowTextString(), L"5");
  EXPECT_NE(host.TakeLog().Find(L"v:4 v:8 "), -1);
  QTest::keyClick(WidgetOf(&spin), Qt::Key_Down);
  EXPECT_EQ(spin.GetPos32(), 5);
  QTest::keyClick(WidgetOf(&spin), Qt::Key_Up);
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

class FileDialogTest : public FolderTest {
 protected:
  FileDialogTest() {
    std::filesystem::create_directory(At("sub"));
    Write("road.csv", "x");
  }
};

TEST_F(FileDialogTest, OpensWhatExists) {
  CFileDialog dialog(TRUE, L"csv", Wide("road.csv"), OFN_FILEMUSTEXIST, L"Survey (*.csv)|*.csv||");
  dialog.SetTitle(L"Open survey");
  const NextWindow next([&](ShownWindow& shown) {
    EXPECT_EQ(shown.Title(), "Open survey");
    EXPECT_EQ(shown.Folder(), m_folder);
    shown.Choose("road.csv");
  });
  EXPECT_EQ(dialog.DoModal(), IDOK);
  EXPECT_EQ(dialog.GetPathName(), Wide("road.csv"));
  EXPECT_EQ(dialog.GetFileName(), L"road.csv");
  EXPECT_EQ(dialog.GetFileTitle(), L"road");
  EXPECT_EQ(dialog.GetFileExt(), L"csv");
}

TEST_F(FileDialogTest, SavesWithTheExtensionAndCancelKeepsThePath) {
  CFileDialog dialog(FALSE, L"csv", Wide("sub"), 0, nullptr);
  for (const int answer : {IDOK, IDCANCEL}) {
    const NextWindow next(
        [answer](ShownWindow& shown) { answer == IDOK ? shown.Choose("new") : shown.Key(VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), answer);
    EXPECT_EQ(dialog.GetPathName(), Wide("sub/new.csv"));
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
  QTest::keyClick(WidgetOf(&dialog)->findChild<QLineEdit*>("find"), Qt::Key_Return);
  dialog.SendMessage(WM_CLOSE);
  EXPECT_EQ(owner.asked, L"x> 000 1000;x> 000 0001;");
}

TEST(RegisteredMessages, AreTheSameForTheSameName) {
  EXPECT_EQ(RegisterWindowMessage(L"Some name"), RegisterWindowMessage(L"SOME NAME"));
  EXPECT_NE(RegisterWindowMessage(L"Some name"), RegisterWindowMessage(L"other"));
  EXPECT_GE(RegisterWindowMessage(L"other"), 0xC000U);
}

}  // namespace
