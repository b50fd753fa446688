#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <cstdlib>

#include "platform/Keys.h"
#include "platform/MachineIdentity.h"
#include "platform/System.h"

namespace {

TEST(SystemColours, FollowTheApplicationsPalette) {
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
  EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), RGB(0, 120, 215));
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Base, QColor(1, 2, 3));
  QApplication::setPalette(palette);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(1, 2, 3));
  SetSysColor(COLOR_WINDOW, RGB(9, 9, 9));
  palette.setColor(QPalette::Base, QColor(4, 5, 6));
  QApplication::setPalette(palette);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(9, 9, 9));
  ResetSysColors();
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(4, 5, 6));
  EXPECT_EQ(GetSysColor(-1), 0U);
  EXPECT_EQ(GetSysColor(27), 0U);
}

TEST(SystemColours, DarkAndBackKeepsTheDesktopsOwnLightPalette) {
  QPalette own = QApplication::palette();
  own.setColor(QPalette::Base, QColor(250, 250, 240));
  QApplication::setPalette(own);
  SetDarkTheme(true);
  EXPECT_TRUE(IsDarkTheme());
  EXPECT_LT(GetRValue(GetSysColor(COLOR_WINDOW)), 64);
  EXPECT_GT(GetRValue(GetSysColor(COLOR_WINDOWTEXT)), 192);
  SetDarkTheme(true);
  SetDarkTheme(false);
  EXPECT_FALSE(IsDarkTheme());
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(250, 250, 240));
}

TEST(DpiScale, LengthsRoundAndNeverVanish) {
  SetDpiScale(1.25);
  EXPECT_EQ(ScaleByDpi(2), 3);
  EXPECT_EQ(ScaleByDpi(-2), -3);
  EXPECT_EQ(ScaleByDpi(0), 0);
  SetDpiScale(0.2);
  EXPECT_EQ(ScaleByDpi(1), 1);
  SetDpiScale(0);
  EXPECT_EQ(GetDpiScale(), 1.0);
}

TEST(KeyState, PressingTogglesTheLowBit) {
  EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
  for (const int toggled : {1, 0}) {
    for (int presses = 0; presses < 2; ++presses) {  // the second one repeats
      SetKeyState(VK_SHIFT, true);
      EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    }
    SetKeyState(VK_SHIFT, false);
    EXPECT_EQ(GetKeyState(VK_SHIFT), toggled);
  }
  SetKeyState(5000, true);
  EXPECT_EQ(GetKeyState(5000), 0);
}

TEST(Identity, SerialIsStableAndNeverZero) {
  EXPECT_EQ(GetMachineSerial(), GetMachineSerial());
  EXPECT_NE(GetMachineSerial(), 0U);
  EXPECT_EQ(coregui::SerialFromIdentity("a", "host"), 0xE40C292CU);
  EXPECT_EQ(coregui::SerialFromIdentity("", "a"), 0xE40C292CU);
  EXPECT_NE(coregui::SerialFromIdentity("", ""), 0U);
}

TEST(Identity, UserNameIsSetOnlyWhenTheDesktopDidNot) {
  coregui::SetUpUserName();
  EXPECT_STREQ(std::getenv("USERNAME"), "tester");
  setenv("USERNAME", "", 1);
  coregui::SetUpUserName();
  const std::string account = std::getenv("USERNAME");
  setenv("USERNAME", "tester", 1);
  EXPECT_FALSE(account.empty());
}

TEST(Cursors, TheLastOneShownIsReturned) {
  const HCURSOR arrow = LoadSystemCursor(SystemCursor::arrow);
  EXPECT_EQ(arrow, LoadSystemCursor(SystemCursor::arrow));
  SetCursor(arrow);
  EXPECT_EQ(SetCursor(LoadSystemCursor(SystemCursor::hand)), arrow);
  ShowWaitCursor(false);
  ShowWaitCursor(true);
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  ShowWaitCursor(false);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
