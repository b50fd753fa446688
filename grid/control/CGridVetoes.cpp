#include "grid/control/CGridVetoes.h"

#include "grid/control/CGridNotify.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/data/CGridDataSource.h"

namespace coregui {

bool CGridVetoes::CanMove(int oldCol, long oldRow, int newCol, long newRow) {
  const CGridSourceTable::Place place = m_sources.Of(newCol);
  return place.source->OnCanMove(m_sources.Of(oldCol).col, oldRow, place.col, newRow) != 0 &&
         m_notify.OnCanMove(oldCol, oldRow, newCol, newRow) != 0;
}

bool CGridVetoes::CanMoveRow(int oldCol, long oldRow, int newCol, long newRow) {
  return m_notify.OnCanMove(oldCol, oldRow, newCol, newRow) != 0;
}

bool CGridVetoes::CanViewMove(int oldLeftCol, long oldTopRow, int newLeftCol, long newTopRow) {
  return m_notify.OnCanViewMove(oldLeftCol, oldTopRow, newLeftCol, newTopRow) != 0;
}

}  // namespace coregui
