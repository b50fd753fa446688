#include "grid/data/CGridDataSource.h"

int CGridDataSource::Open(const wchar_t* /*name*/, const wchar_t* /*table*/) {
  return -1;
}

int CGridDataSource::IsOpen() {
  return 0;
}

int CGridDataSource::SetPassword(const wchar_t* /*user*/, const wchar_t* /*password*/) {
  return -1;
}

int CGridDataSource::Close() {
  return -1;
}

int CGridDataSource::Save() {
  return -1;
}

int CGridDataSource::SaveAs(const wchar_t* /*name*/, const wchar_t* /*table*/) {
  return -1;
}

long CGridDataSource::GetNumRows() {
  return -1;
}

int CGridDataSource::GetNumCols() {
  return -1;
}

int CGridDataSource::GetColName(int /*col*/, CString* /*name*/) {
  return -1;
}

int CGridDataSource::GetColType(int /*col*/, int* /*type*/) {
  return -1;
}

int CGridDataSource::GetColFromName(const wchar_t* /*name*/, int* /*col*/) {
  return -1;
}

int CGridDataSource::AppendRow(CGridCell** /*cells*/, int /*count*/) {
  return -1;
}

int CGridDataSource::AppendRow() {
  return -1;
}

int CGridDataSource::InsertRow(long /*row*/) {
  return -1;
}

int CGridDataSource::AppendCol() {
  return -1;
}

int CGridDataSource::InsertCol(int /*col*/) {
  return -1;
}

int CGridDataSource::DeleteRow(long /*row*/) {
  return -1;
}

int CGridDataSource::DeleteCol(int /*col*/) {
  return -1;
}

int CGridDataSource::DeleteCell(int /*col*/, long /*row*/) {
  return -1;
}

int CGridDataSource::Empty() {
  return -1;
}

int CGridDataSource::GetCell(int /*col*/, long /*row*/, CGridCell* /*cell*/) {
  return -1;
}

int CGridDataSource::SetCell(int /*col*/, long /*row*/, CGridCell* /*cell*/) {
  return -1;
}

int CGridDataSource::FindFirst(CString* /*text*/, int* /*col*/, long* /*row*/, long /*flags*/) {
  return -1;
}

int CGridDataSource::FindNext(CString* /*text*/, int* /*col*/, long* /*row*/, int /*flags*/) {
  return -1;
}

int CGridDataSource::SortBy(int* /*cols*/, int /*count*/, int /*flags*/) {
  return -1;
}

int CGridDataSource::SortBy(int /*col*/, int /*flags*/) {
  return -1;
}

int CGridDataSource::GetOption(int /*option*/, long& /*a*/, long& /*b*/) {
  return -1;
}

int CGridDataSource::SetOption(int /*option*/, long /*a*/, long /*b*/) {
  return -1;
}

int CGridDataSource::OnHitTop(long /*numberRows*/, long /*rowsPast*/, long* /*rowsFound*/) {
  return -1;
}

int CGridDataSource::OnHitBottom(long /*numberRows*/, long /*rowsPast*/, long* /*rowsFound*/) {
  return -1;
}

void CGridDataSource::OnRowChange(long /*oldRow*/, long /*newRow*/) {}

void CGridDataSource::OnColChange(int /*oldCol*/, int /*newCol*/) {}

int CGridDataSource::OnCanMove(int /*oldCol*/, long /*oldRow*/, int /*newCol*/, long /*newRow*/) {
  return 1;
}

int CGridDataSource::StartTransaction() {
  return -1;
}

int CGridDataSource::CancelTransaction() {
  return -1;
}

int CGridDataSource::FinishTransaction() {
  return -1;
}

int CGridDataSource::OnEditStart(int /*col*/, long /*row*/, CWnd** /*editor*/) {
  return 1;
}

int CGridDataSource::OnEditVerify(int /*col*/, long /*row*/, CWnd* /*editor*/, unsigned int* /*key*/) {
  return 1;
}

int CGridDataSource::OnEditFinish(int /*col*/, long /*row*/, CWnd* /*editor*/, const wchar_t* /*text*/,
                                  int /*cancelled*/) {
  return 1;
}

int CGridDataSource::OnEditContinue(int /*oldCol*/, long /*oldRow*/, int* /*newCol*/, long* /*newRow*/) {
  return 1;
}

int CGridDataSource::GetPrevNonBlankCol(int* /*col*/, long /*row*/) {
  return -1;
}
