#include "grid/control/DarkInk.h"

#include <cstdlib>

#include "platform/System.h"

namespace coregui {
namespace {

constexpr COLORREF kBlack = 0x000000;
constexpr int kMiddle = 128;
constexpr int kReadable = 90;  // how far brightnesses lie apart at least

bool IsThemeDark() {
  return Brightness(GetSysColor(COLOR_WINDOW)) < kMiddle;
}

}  // namespace

COLORREF ReadableText(COLORREF text, COLORREF back) {
  const int brightness = Brightness(text);
  if (brightness < kMiddle || std::abs(brightness - Brightness(back)) >= kReadable) return text;
  return IsThemeDark() && text == GetSysColor(COLOR_WINDOWTEXT) ? kBlack : text;
}

COLORREF LineInk(COLORREF back) {
  if (Brightness(back) >= kMiddle || !IsThemeDark()) return kBlack;
  return GetSysColor(COLOR_WINDOWTEXT);
}

}  // namespace coregui
