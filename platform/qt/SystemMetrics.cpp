#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "platform/System.h"
#include "platform/Toolkit.h"

namespace {

double g_fixedScale = 0.0;  ///< 0: the screen's

QSize ScreenSize() {
  const QScreen* screen = !coregui::HasToolkit() ? nullptr : QGuiApplication::primaryScreen();
  return screen == nullptr ? QSize(1024, 768) : screen->size();
}

int ScrollBarExtent() {
  return !coregui::HasToolkit() ? 17 : QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

}  // namespace

int GetSystemMetrics(int index) {
  switch (index) {
    case SM_CXSCREEN:
      return ScreenSize().width();
    case SM_CYSCREEN:
      return ScreenSize().height();
    case SM_CXVSCROLL:
    case SM_CYHSCROLL:
      return ScrollBarExtent();
    case SM_CXBORDER:
      return 1;
    case SM_CXDRAG:
    case SM_CYDRAG:
    case SM_CXDOUBLECLK:
      return 4;
    default:
      return 0;
  }
}

double GetDpiScale() {
  if (g_fixedScale > 0.0) return g_fixedScale;
  const QScreen* screen = !coregui::HasToolkit() ? nullptr : QGuiApplication::primaryScreen();
  return screen == nullptr ? 1.0 : screen->logicalDotsPerInch() / 96.0;
}

void SetDpiScale(double scale) {
  g_fixedScale = std::max(scale, 0.0);
}

int ScaleByDpi(int pixelsAt96) {
  const int scaled = static_cast<int>(std::lround(pixelsAt96 * GetDpiScale()));
  return pixelsAt96 > 0 ? std::max(scaled, 1) : scaled;
}
