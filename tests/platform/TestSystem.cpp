#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <QWidget>
#include <cerrno>
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

TEST(SystemColours, AreReadyWhenWindowsHearOfAChange) {
  struct Probe : QWidget {
    COLORREF seen = 0;
    bool event(QEvent* event) override {
      if (event->type() == QEvent::ApplicationPaletteChange) seen = GetSysColor(COLOR_WINDOW);
      return QWidget::event(event);
    }
  } probe;
  probe.show();
  SetDarkTheme(true);
  QApplication::processEvents();
  EXPECT_EQ(probe.seen, GetSysColor(COLOR_WINDOW));
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
  SetKeyState(VK_SHIFT, true);
  EXPECT_LT(GetKeyState(VK_SHIFT), 0);
  SetKeyState(VK_SHIFT, true);
  SetKeyState(VK_SHIFT, false);
  EXPECT_EQ(GetKeyState(VK_SHIFT), 1);
  SetKeyState(VK_SHIFT, true);
  SetKeyState(VK_SHIFT, false);
  EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
  SetKeyState(5000, true);
  EXPECT_EQ(GetKeyState(5000), 0);
}

TEST(LastError, IsErrnoWithTheSystemsText) {
  SetLastError(ENOENT);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ENOENT));
  EXPECT_EQ(GetErrorText(ENOENT), L"No such file or directory");
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

TEST(Sleep, HookTakesThePlaceOfWaiting) {
  static UINT slept = 0;
  SetSleepHook([](UINT milliseconds) { slept += milliseconds; });
  const auto before = GetTickCount64();
  Sleep(3600000);
  EXPECT_EQ(slept, 3600000U);
  EXPECT_LT(GetTickCount64() - before, 3600000U);
}

TEST(Beep, EachSoundIsCounted) {
  const int before = GetBeepCount(MB_ICONHAND_SOUND);
  MessageBeep(MB_ICONHAND_SOUND);
  EXPECT_EQ(GetBeepCount(MB_ICONHAND_SOUND), before + 1);
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
