#include "grid/control/SystemLook.h"

#include "grid/data/CGridCell.h"
#include "platform/System.h"

namespace coregui {

SystemLook SystemLook::Read() {
  return {GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_HIGHLIGHTTEXT),
          GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_BTNFACE)};
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

}  // namespace coregui
