#pragma once

#include "grid/control/CellPlace.h"

namespace coregui {

class CGridCells;
class CGridNotify;
class CGridSourceTable;
class CGridTypeTable;

/// Tells everybody concerned that the current cell or the view has moved: first the cell types of the cell
/// that was left and of the one that was entered, then for each direction the column's source and the
/// control, last the control about the view.
class CGridMoveReport {
 public:
  CGridMoveReport(CGridSourceTable& sources, CGridCells& cells, CGridTypeTable& types, CGridNotify& notify)
      : m_sources(sources), m_cells(cells), m_types(types), m_notify(notify) {}

  struct Change {
    CellPlace from;
    CellPlace to;
  };
  /// `view` holds the first scrollable column and row in view.
  void Tell(const Change& cell, const Change& view);

 private:
  void TellTypes(const Change& cell, bool scrolled);
  void TellCellChange(const Change& cell);
  void TellViewChange(const Change& view);

  CGridSourceTable& m_sources;
  CGridCells& m_cells;
  CGridTypeTable& m_types;
  CGridNotify& m_notify;
};

}  // namespace coregui
