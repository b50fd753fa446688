#include "grid/control/CGridNotify.h"

#include "platform/CDC.h"
#include "platform/System.h"

namespace coregui {

void CGridNotify::OnSetup() {}
void CGridNotify::OnSetupFinished() {}
void CGridNotify::OnSheetSetup(int) {}
void CGridNotify::OnTabSelected(int) {}

void CGridNotify::OnGetCell(int, long, CGridCell*) {}
void CGridNotify::OnSetCell(int, long, CGridCell*) {}
void CGridNotify::OnPaste(int, long) {}
int CGridNotify::OnCellTypeNotify(long, int, long, long, long) {
  return 1;
}

int CGridNotify::OnCanMove(int, long, int, long) {
  return 1;
}
int CGridNotify::OnCanViewMove(int, long, int, long) {
  return 1;
}
int CGridNotify::VerifyCurrentRow(long*) {
  return 0;
}
void CGridNotify::OnColChange(int, int) {}
void CGridNotify::OnRowChange(long, long) {}
void CGridNotify::OnCellChange(int, int, long, long) {}
void CGridNotify::OnLeftColChange(int, int) {}
void CGridNotify::OnTopRowChange(long, long) {}

void CGridNotify::OnSelectionChanged(int, long, int, long, int) {}

void CGridNotify::OnLClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnRClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnDClicked(int, long, RECT*, POINT*, int) {}
void CGridNotify::OnMouseMove(int, long, POINT*, UINT, int) {}

void CGridNotify::OnTH_LClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnTH_RClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnTH_DClicked(int, long, RECT*, POINT*, int) {}
void CGridNotify::OnSH_LClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnSH_RClicked(int, long, int, RECT*, POINT*, int) {}
void CGridNotify::OnSH_DClicked(int, long, RECT*, POINT*, int) {}
void CGridNotify::OnCB_LClicked(int, RECT*, POINT*, int) {}
void CGridNotify::OnCB_RClicked(int, RECT*, POINT*, int) {}
void CGridNotify::OnCB_DClicked(RECT*, POINT*, int) {}

void CGridNotify::OnKeyDown(UINT*, int) {}
void CGridNotify::OnKeyUp(UINT*, int) {}
void CGridNotify::OnCharDown(UINT*, int) {}

void CGridNotify::OnSetFocus(int) {}
void CGridNotify::OnKillFocus(int, CWnd*) {}
int CGridNotify::OnMenuStart(int, long, int) {
  return 1;
}
void CGridNotify::OnMenuCommand(int, long, int, int) {}
int CGridNotify::OnHint(int, long, int, CString*) {
  return 0;
}
int CGridNotify::OnVScrollHint(long, CString*) {
  return 1;
}
int CGridNotify::OnHScrollHint(int, CString*) {
  return 1;
}
DWORD CGridNotify::OnGetContextHelpID(int, long, int) {
  return 0;
}

void CGridNotify::OnScreenDCSetup(CDC*, CDC*, int) {}
COLORREF CGridNotify::OnGetDefBackColor(int section) {
  return GetSysColor(section == GRIDSECTION_GRID ? COLOR_WINDOW : COLOR_BTNFACE);
}
void CGridNotify::OnDrawFocusRect(CDC* dc, RECT* rect) {
  dc->DrawFocusRect(*rect);
}

int CGridNotify::OnCanSizeCol(int) {
  return 1;
}
void CGridNotify::OnColSizing(int, int*) {}
void CGridNotify::OnColSized(int, int*) {}
int CGridNotify::OnCanSizeRow(long) {
  return 1;
}
void CGridNotify::OnRowSizing(long, int*) {}
void CGridNotify::OnRowSized(long, int*) {}
int CGridNotify::OnCanSizeTopHdg() {
  return 1;
}
int CGridNotify::OnTopHdgSizing(int*) {
  return 1;
}
int CGridNotify::OnTopHdgSized(int*) {
  return 1;
}
int CGridNotify::OnCanSizeSideHdg() {
  return 1;
}
int CGridNotify::OnSideHdgSizing(int*) {
  return 1;
}
int CGridNotify::OnSideHdgSized(int*) {
  return 1;
}

int CGridNotify::OnColSwapStart(int) {
  return 1;
}
int CGridNotify::OnCanColSwap(int, int) {
  return 1;
}
void CGridNotify::OnColSwapped(int, int) {}

int CGridNotify::OnEditStart(int, long, CWnd**) {
  return 1;
}
int CGridNotify::OnEditVerify(int, long, CWnd*, UINT*) {
  return 1;
}
int CGridNotify::OnEditFinish(int, long, CWnd*, const wchar_t*, int) {
  return 1;
}
int CGridNotify::OnEditContinue(int, long, int*, long*) {
  return 1;
}
int CGridNotify::OnEditKeyDown(int, long, CWnd*, UINT*) {
  return 1;
}
int CGridNotify::OnEditKeyUp(int, long, CWnd*, UINT*) {
  return 1;
}

}  // namespace coregui
