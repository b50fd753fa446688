#include "grid/control/DarkInk.h"

#include <gtest/gtest.h>

#include "platform/System.h"

namespace coregui::test {
namespace {

struct DarkInkTest : testing::Test {
  ~DarkInkTest() override { ResetSysColors(); }
  static void Theme(COLORREF window, COLORREF text) {
    SetSysColor(COLOR_WINDOW, window);
    SetSysColor(COLOR_WINDOWTEXT, text);
  }
};

TEST_F(DarkInkTest, ALightThemeChangesNothing) {
  Theme(0xFFFFFF, 0x000000);
  EXPECT_EQ(ReadableText(0x000000, 0x101010), 0x000000U) << "dark on dark, as it was asked for";
  EXPECT_EQ(ReadableText(0xF0F0F0, 0xFFFFFF), 0xF0F0F0U);
  EXPECT_EQ(LineInk(0x101010), 0x000000U);
}

TEST_F(DarkInkTest, ADarkThemesDefaultTextIsBlackOnLightCellsOnly) {
  Theme(0x1E1E1E, 0xE6E6E6);
  EXPECT_EQ(ReadableText(0xE6E6E6, 0x1E1E1E), 0xE6E6E6U);
  EXPECT_EQ(ReadableText(0xE6E6E6, 0xDCF0DC), 0x000000U);
  EXPECT_EQ(ReadableText(0xE0FFE0, 0xDCF0DC), 0xE0FFE0U) << "a colour of the program's own stays";
  EXPECT_EQ(LineInk(0x1E1E1E), 0xE6E6E6U);
  EXPECT_EQ(LineInk(0xDCF0DC), 0x000000U);
}

}  // namespace
}  // namespace coregui::test
