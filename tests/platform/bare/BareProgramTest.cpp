#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

#include "platform/CDialog.h"
#include "platform/Clipboard.h"
#include "platform/MessageBox.h"
#include "platform/Sound.h"
#include "platform/System.h"

namespace {

/// What must work in a program without windows, and say no where it cannot.
void ExpectServicesWithoutWindows() {
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
  SetSysColor(COLOR_WINDOW, RGB(1, 2, 3));
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(1, 2, 3));
  ResetSysColors();
  SetDarkTheme(true);
  EXPECT_TRUE(IsDarkTheme());
  EXPECT_LT(GetRValue(GetSysColor(COLOR_WINDOW)), 64);
  SetDarkTheme(false);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
  EXPECT_GT(GetSystemMetrics(SM_CXVSCROLL), 0);
  EXPECT_GT(GetSystemMetrics(SM_CXSCREEN), 0);
  EXPECT_EQ(ScaleByDpi(7), 7);
  EXPECT_TRUE(coregui::SetClipboardText(L"kept"));
  CString text;
  EXPECT_TRUE(coregui::GetClipboardText(text));
  EXPECT_EQ(text, L"kept");
  ShowWaitCursor(true);
  ShowWaitCursor(false);
  EXPECT_EQ(GetCursorPos(), CPoint());
  coregui::PlayBeep();
}

struct Arguments {
  int count = 1;
  char name[5] = "bare";
  char* all[2] = {name, nullptr};
};

TEST(BareProgram, ReadsColoursAndMetricsWithoutAnApplication) {
  ASSERT_EQ(QCoreApplication::instance(), nullptr);
  ExpectServicesWithoutWindows();
}

TEST(BareProgram, IsRefusedWindowsByAnApplicationThatHasNone) {
  Arguments arguments;
  const QCoreApplication application(arguments.count, arguments.all);
  ExpectServicesWithoutWindows();
  CWnd window;
  EXPECT_FALSE(window.Create(L"", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 0));
  EXPECT_FALSE(window.HasWindow());
  CDialog dialog;
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_EQ(window.MessageBox(L"text"), 0);
}

/// The last, since the toolkit's own tables of looks stay once there were windows.
TEST(BareProgram, TakesTheApplicationsColoursAsSoonAsItHasWindows) {
  SetDarkTheme(false);
  Arguments arguments;
  const QApplication application(arguments.count, arguments.all);
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Base, QColor(4, 5, 6));
  QApplication::setPalette(palette);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(4, 5, 6));
}

}  // namespace
