#include "grid/control/CGridMoveReport.h"

#include "grid/control/CGridCellDelegate.h"
#include "grid/control/CGridCells.h"
#include "grid/control/CGridNotify.h"
#include "grid/control/CGridSourceTable.h"
#include "grid/control/CGridTypeTable.h"
#include "grid/data/CGridCell.h"
#include "grid/data/CGridDataSource.h"

namespace coregui {

void CGridMoveReport::Tell(const Change& cell, const Change& view) {
  TellTypes(cell, view.from != view.to);
  TellCellChange(cell);
  TellViewChange(view);
}

void CGridMoveReport::TellTypes(const Change& cell, bool scrolled) {
  const auto tell = [this](const CellPlace& at, auto call) {
    if (!at.IsCell()) {
      return;
    }
    CGridCell shown;
    m_cells.GetDisplayed(at.col, at.row, &shown);
    if (CGridCellDelegate* const type = m_types.Of(shown)) {
      call(*type, at, &shown);
    }
  };
  using Type = CGridCellDelegate;
  if (cell.from != cell.to) {
    tell(cell.from, [](Type& type, CellPlace at, CGridCell* c) { type.OnKillFocus(at.col, at.row, c); });
    tell(cell.to, [](Type& type, CellPlace at, CGridCell* c) { type.OnSetFocus(at.col, at.row, c); });
  }
  if (scrolled) {
    tell(cell.to, [](Type& type, CellPlace at, CGridCell* c) { type.OnScrolled(at.col, at.row, c); });
  }
}

void CGridMoveReport::TellCellChange(const Change& cell) {
  const CellPlace& from = cell.from;
  const CellPlace& to = cell.to;
  if (from.col != to.col) {
    const CGridSourceTable::Place place = m_sources.Of(to.col);
    place.source->OnColChange(m_sources.Of(from.col).col, place.col);
    m_notify.OnColChange(from.col, to.col);
  }
  if (from.row != to.row) {
    m_sources.Of(to.col).source->OnRowChange(from.row, to.row);
    m_notify.OnRowChange(from.row, to.row);
  }
  if (from != to) {
    m_notify.OnCellChange(from.col, to.col, from.row, to.row);
  }
}

void CGridMoveReport::TellViewChange(const Change& view) {
  if (view.from.col != view.to.col) {
    m_notify.OnLeftColChange(view.from.col, view.to.col);
  }
  if (view.from.row != view.to.row) {
    m_notify.OnTopRowChange(view.from.row, view.to.row);
  }
}

}  // namespace coregui
