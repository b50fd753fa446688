// The part of the grid's face that sets and gives the options of the current sheet.

#include <algorithm>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridInfo.h"

namespace {

template <class Value>
int Store(Value& option, Value value) {
  option = value;
  return 0;
}

int StoreFlag(int& option, int on) {
  return Store(option, on != 0 ? 1 : 0);
}

int StoreInRange(int& option, int value, int most) {
  return value < 0 || value > most ? 1 : Store(option, value);
}

}  // namespace

int CGridCtrl::SetCurrentCellMode(int mode) {
  return StoreInRange(GetInfo().view.currentCellMode, mode, 3);
}
int CGridCtrl::GetCurrentCellMode() const {
  return GetInfo().view.currentCellMode;
}
int CGridCtrl::SetHighlightRow(int on, int toEdge) {
  StoreFlag(GetInfo().view.highlightRowToEdge, toEdge);
  return StoreFlag(GetInfo().view.highlightRow, on);
}
int CGridCtrl::GetHighlightRow() const {
  return GetInfo().view.highlightRow;
}
int CGridCtrl::SetMargin(int pixels) {
  return SetSize(GetInfo().view.margin, pixels);
}
int CGridCtrl::GetMargin() const {
  return GetInfo().view.margin;
}
int CGridCtrl::Set3DHeight(int pixels) {
  return SetSize(GetInfo().view.height3D, pixels);
}
int CGridCtrl::Get3DHeight() const {
  return GetInfo().view.height3D;
}
int CGridCtrl::EnableCellOverLap(int on) {
  return StoreFlag(GetInfo().view.cellOverlap, on);
}
int CGridCtrl::GetCellOverLap() const {
  return GetInfo().view.cellOverlap;
}
int CGridCtrl::EnableExcelBorders(int on) {
  return StoreFlag(GetInfo().view.excelBorders, on);
}
int CGridCtrl::GetExcelBorders() const {
  return GetInfo().view.excelBorders;
}
CPen* CGridCtrl::GetGridLinePen() {
  return &GetInfo().view.gridLinePen;
}
int CGridCtrl::UseHints(int on) {
  return StoreFlag(GetInfo().view.hints, on);
}
int CGridCtrl::GetUseHints() const {
  return GetInfo().view.hints;
}
int CGridCtrl::SetUserSizingMode(int mode) {
  return Store(GetInfo().view.userSizingMode, mode);
}
int CGridCtrl::GetUserSizingMode() const {
  return GetInfo().view.userSizingMode;
}
int CGridCtrl::EnableColSwapping(int on) {
  return StoreFlag(GetInfo().view.columnSwapping, on);
}
int CGridCtrl::GetColSwapping() const {
  return GetInfo().view.columnSwapping;
}
int CGridCtrl::EnableMenu(int on) {
  return StoreFlag(GetInfo().view.menu, on);
}
int CGridCtrl::EnableScrollOnPartialCells(int on) {
  return StoreFlag(GetInfo().view.scrollOnPartialCells, on);
}
int CGridCtrl::SetBallisticMode(int mode) {
  return StoreInRange(GetInfo().view.mouseBallistics.mode, mode, 3);
}
int CGridCtrl::SetBallisticDelay(int milliseconds) {
  return StoreInRange(GetInfo().view.mouseBallistics.delay, milliseconds, 32000);
}
int CGridCtrl::SetBallisticKeyMode(int mode) {
  return SetSize(GetInfo().view.keyBallistics.mode, mode);
}
int CGridCtrl::SetBallisticKeyDelay(int milliseconds) {
  return StoreInRange(GetInfo().view.keyBallistics.delay, milliseconds, 32000);
}
int CGridCtrl::SetVScrollMode(int mode) {
  return Store(GetInfo().view.vScrollMode, mode);
}
int CGridCtrl::SetHScrollMode(int mode) {
  return Store(GetInfo().view.hScrollMode, mode);
}
int CGridCtrl::SetTrackingWindowMode(int mode) {
  return Store(GetInfo().view.trackingWindowMode, mode);
}
int CGridCtrl::SetArrowCursor(HCURSOR cursor) {
  return Store(GetInfo().view.arrowCursor, cursor);
}
int CGridCtrl::SetWESizingCursor(HCURSOR cursor) {
  return Store(GetInfo().view.horizontalSizingCursor, cursor);
}
int CGridCtrl::SetNSSizingCursor(HCURSOR cursor) {
  return Store(GetInfo().view.verticalSizingCursor, cursor);
}
int CGridCtrl::SetNewEditClass(CWnd* editor) {
  return Store(GetInfo().view.editClass, editor);
}
int CGridCtrl::SetNewMaskedEditClass(CWnd* editor) {
  return Store(GetInfo().view.maskedEditClass, editor);
}
CWnd* CGridCtrl::GetEditClass() const {
  return GetInfo().view.editClass;
}
CWnd* CGridCtrl::GetMaskedEditClass() const {
  return GetInfo().view.maskedEditClass;
}
