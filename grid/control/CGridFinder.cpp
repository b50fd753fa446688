#include "grid/control/CGridFinder.h"

#include "grid/control/CGridSheets.h"
#include "grid/data/CGridDataSource.h"

namespace coregui {

int CGridFinder::FindFirst(CString* text, int* col, long* row, long flags) {
  CGridInfo& info = m_sheets.Current();
  int dataCol = info.columns.Translate(*col);
  const int result = info.defaultSource->FindFirst(text, &dataCol, row, flags);
  return ToGridColumn(result, dataCol, col);
}

int CGridFinder::FindNext(CString* text, int* col, long* row, int flags) {
  CGridInfo& info = m_sheets.Current();
  int dataCol = info.columns.Translate(*col);
  const int result = info.defaultSource->FindNext(text, &dataCol, row, flags);
  return ToGridColumn(result, dataCol, col);
}

int CGridFinder::ToGridColumn(int result, int dataCol, int* col) const {
  if (result == 0) {
    const int shown = m_sheets.Current().columns.FromTranslation(dataCol);
    *col = shown >= 0 ? shown : dataCol;
  }
  return result;
}

int CGridFinder::FindInAllCols(bool on) {
  m_allCols = on;
  return 0;
}

}  // namespace coregui
