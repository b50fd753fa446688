#include "grid/control/CGridTypeTable.h"

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCells.h"
#include "grid/data/CGridCell.h"

namespace coregui {

int CGridTypeTable::Add(CGridCellDelegate* type) {
  if (type == nullptr) {
    return -1;
  }
  const int id = m_types.AddPointer(type);
  if (id >= 0) {
    type->Attach(&m_control, id);
  }
  return id;
}

CGridCellDelegate* CGridTypeTable::Remove(int id) {
  auto* const type = static_cast<CGridCellDelegate*>(m_types.GetPointer(id));
  m_types.DeletePointer(id);
  return type;
}

CGridCellDelegate* CGridTypeTable::Get(int id) const {
  auto* const type = id <= 0 ? nullptr : static_cast<CGridCellDelegate*>(m_types.GetPointer(id));
  return type != nullptr ? type : static_cast<CGridCellDelegate*>(m_types.GetPointer(0));
}

CGridCellDelegate* CGridTypeTable::Of(int col, long row) {
  CGridCell cell;
  m_cells.GetDisplayed(col, row, &cell);
  return Of(cell);
}

CGridCellDelegate* CGridTypeTable::Of(const CGridCell& cell) const {
  return Get(cell.IsPropertySet(CELLPROP_CELLTYPE) != 0 ? cell.GetCellType() : 0);
}

void CGridTypeTable::TellSystemChange() {
  for (int id = 0; id < m_types.GetMaxCount(); ++id) {
    if (auto* const type = static_cast<CGridCellDelegate*>(m_types.GetPointer(id))) {
      type->OnSystemChange();
    }
  }
}

}  // namespace coregui
