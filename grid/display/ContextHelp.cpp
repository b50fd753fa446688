#include "grid/display/ContextHelp.h"

#include "grid/control/CGridCtrl.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

namespace coregui {

LRESULT HelpNumberAt(CGridCtrl& control, int section, LPARAM point) {
  const CPoint at = CPoint::FromLParam(point);
  int col = -1;
  long row = -1;
  RECT rect;
  if (control.GetSectionCellFromPoint(section, at.x, at.y, &col, &row, &rect) != 0) {
    col = -1;
    row = -1;
  }
  return static_cast<LRESULT>(control.OnGetContextHelpID(col, row, section));
}

void AskForHelp(CGridCtrl& control) {
  const WindowRef alive(&control);
  const DWORD number =
      control.OnGetContextHelpID(control.GetCurrentCol(), control.GetCurrentRow(), GRIDSECTION_GRID);
  if (!alive || number == 0) return;
  HELPINFO info;
  info.iCtrlId = control.GetDlgCtrlID();
  info.hItemHandle = control.GetSafeHwnd();
  info.dwContextId = number;
  info.MousePos = GetCursorPos();
  for (WindowRef above(control.GetParent()); above; above = WindowRef(above.Get()->GetParent())) {
    if (above.Get()->SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)) != 0 || !above) return;
  }
}

}  // namespace coregui
