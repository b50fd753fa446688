#include "grid/control/CGridCellDelegate.h"

namespace coregui {

int CGridCellDelegate::GetEditArea(RECT*) {
  return 0;
}
int CGridCellDelegate::GetOption(long, long*) {
  return 1;
}
int CGridCellDelegate::SetOption(long, long) {
  return 1;
}
int CGridCellDelegate::OnLClicked(int, long, int, RECT*, POINT*) {
  return 0;
}
int CGridCellDelegate::OnRClicked(int, long, int, RECT*, POINT*) {
  return 0;
}
int CGridCellDelegate::OnDClicked(int, long, RECT*, POINT*) {
  return 0;
}
int CGridCellDelegate::OnKeyDown(int, long, UINT*) {
  return 0;
}
int CGridCellDelegate::OnKeyUp(int, long, UINT*) {
  return 0;
}
int CGridCellDelegate::OnCharDown(int, long, UINT*) {
  return 0;
}
int CGridCellDelegate::OnMouseMove(int, long, POINT*, UINT) {
  return 0;
}
int CGridCellDelegate::OnDrawFocusRect(CDC*, RECT*, int, long) {
  return 0;
}
void CGridCellDelegate::OnSetFocus(int, long, CGridCell*) {}
void CGridCellDelegate::OnKillFocus(int, long, CGridCell*) {}
void CGridCellDelegate::OnChangedCellWidth(int, long, int*) {}
void CGridCellDelegate::OnChangingCellWidth(int, long, int*) {}
void CGridCellDelegate::OnChangedCellHeight(int, long, int*) {}
void CGridCellDelegate::OnChangingCellHeight(int, long, int*) {}
void CGridCellDelegate::OnScrolled(int, long, CGridCell*) {}
int CGridCellDelegate::OnSystemChange() {
  return 0;
}
int CGridCellDelegate::OnMessage(long) {
  return 0;
}

}  // namespace coregui
