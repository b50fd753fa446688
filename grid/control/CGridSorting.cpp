#include "grid/control/CGridSorting.h"

#include "grid/control/CGridSheets.h"
#include "grid/data/CGridDataSource.h"

namespace coregui {

int CGridSorting::SortBy(int col, int flags) {
  int key = col;
  return SortBy(&key, 1, flags);
}

int CGridSorting::SortBy(int* cols, int count, int flags) {
  CGridInfo& info = m_sheets.Current();
  for (int i = 0; i < count; ++i) {
    cols[i] = info.columns.Translate(cols[i]);
  }
  return info.defaultSource->SortBy(cols, count, flags);
}

}  // namespace coregui
