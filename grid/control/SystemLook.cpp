#include "grid/control/SystemLook.h"

#include "grid/data/CGridCell.h"
#include "platform/CGdiObject.h"
#include "platform/System.h"

namespace coregui {

namespace {

constexpr COLORREF lightGridLine = 0xDCDCDC;

/// On a dark window the line is as far from it as the usual one is from white.
COLORREF GridLineOn(COLORREF window, COLORREF text) {
  if (!IsDarkTheme()) {
    return lightGridLine;
  }
  const auto mix = [](int from, int to) { return from + (to - from) * (0xFF - 0xDC) / 0xFF; };
  return RGB(mix(GetRValue(window), GetRValue(text)), mix(GetGValue(window), GetGValue(text)),
             mix(GetBValue(window), GetBValue(text)));
}

}  // namespace

SystemLook SystemLook::Read() {
  return {
      GetSysColor(COLOR_WINDOWTEXT),    GetSysColor(COLOR_WINDOW),
      GetSysColor(COLOR_HIGHLIGHTTEXT), GetSysColor(COLOR_HIGHLIGHT),
      GetSysColor(COLOR_BTNFACE),       GridLineOn(GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT))};
}

void SystemLook::Replace(CGridCell& cell, const SystemLook& now) const {
  const COLORREF text = cell.GetTextColor();
  if (cell.IsPropertySet(CELLPROP_BACKCOLOR) != 0) {
    const COLORREF back = cell.GetBackColor();
    if (back == window) {
      cell.SetBackColor(now.window);
    } else if (back == buttonFace) {
      cell.SetBackColor(now.buttonFace);
    }
  }
  if (cell.IsPropertySet(CELLPROP_TEXTCOLOR) != 0 && text == windowText) {
    cell.SetTextColor(now.windowText);
  }
  if (cell.IsPropertySet(CELLPROP_HTEXTCOLOR) != 0 && cell.GetHTextColor() == highlightText) {
    cell.SetHTextColor(now.highlightText);
  }
  if (cell.IsPropertySet(CELLPROP_HBACKCOLOR) != 0 && cell.GetHBackColor() == highlight) {
    cell.SetHBackColor(now.highlight);
  }
}

void SystemLook::Replace(CPen& pen, const SystemLook& now) const {
  if (pen.GetColor() == gridLine) {
    pen.CreatePen(pen.GetStyle(), pen.GetWidth(), now.gridLine);
  }
}

}  // namespace coregui
