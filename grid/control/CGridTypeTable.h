#pragma once

#include "grid/data/CGridPtrList.h"

class CGridCell;
class CGridCtrl;

namespace coregui {

class CGridCellDelegate;
class CGridCells;

/// The registered cell types by ID. ID 0 is the normal type, which also stands for every unknown ID.
class CGridTypeTable {
 public:
  CGridTypeTable(CGridCells& cells, CGridCtrl& control) : m_cells(cells), m_control(control) {}

  /// Registers at the lowest free ID and attaches the type to the control; -1 for null.
  int Add(CGridCellDelegate* type);
  /// Frees the ID and gives the type that had it, for its owner to destroy; null when there is none.
  CGridCellDelegate* Remove(int id);
  /// The type of an ID; the normal type for 0, negative and unknown ones. Null only while nothing is
  /// registered.
  CGridCellDelegate* Get(int id) const;
  /// The type that a displayed cell names.
  CGridCellDelegate* Of(const CGridCell& cell) const;
  CGridCellDelegate* Of(int col, long row);
  /// The ID of a registered type, -1 when it is not.
  int IdOf(const CGridCellDelegate* type) const { return m_types.GetPointerIndex(type); }
  int Count() const { return m_types.GetCount(); }
  /// Colours, fonts or scale of the system have changed: every type is told.
  void TellSystemChange();

 private:
  CGridCells& m_cells;
  CGridCtrl& m_control;
  CGridPtrList m_types;  ///< borrowed CGridCellDelegate pointers
};

}  // namespace coregui
