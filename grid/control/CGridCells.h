#pragma once

#include <memory>

#include "platform/CString.h"

class CGridCell;

namespace coregui {

class CGridNotify;
class CGridSheets;
class CGridSourceTable;

/// Reads and writes cells of the current sheet through its data sources.
class CGridCells {
 public:
  CGridCells(CGridSheets& sheets, CGridSourceTable& sources, CGridNotify& notify);
  ~CGridCells();

  /// The stored cell alone: `cell` is cleared first, then holds only what is stored.
  int Get(int col, long row, CGridCell* cell);
  /// The cell as displayed, in this order: its mask is cleared; the heading default (outside the columns and
  /// in the headings) or the column's default replaces it; rows behind the last end here; the stored cell is
  /// merged over it; OnGetCell may change anything; its format class is applied; its style is merged over
  /// all.
  int GetDisplayed(int col, long row, CGridCell* cell);
  /// Stores after OnSetCell. A cell one past the last column or row is accepted.
  int Set(int col, long row, CGridCell* cell);
  int Delete(int col, long row);
  bool IsInRange(int col, long row) const;
  /// The first row from `row` on that may belong to a joined block: what the sheet's memory holds, of which
  /// there may be millions of rows, need not be asked cell by cell.
  long NextJoined(int col, long row) const;

  int GetColDefault(int col, CGridCell* cell);
  int SetColDefault(int col, CGridCell* cell);

  /// Changes the stored cell by `change(cell)`, which answers 0 to have it written back.
  template <class Change>
  int Quick(int col, long row, Change change) {
    const Scratch scratch(*this);
    Get(col, row, &scratch.Cell());
    const int refused = change(scratch.Cell());
    return refused != 0 ? refused : Set(col, row, &scratch.Cell());
  }
  int QuickGetText(int col, long row, CString* text);
  int QuickGetNumber(int col, long row, double* number);
  int QuickSetExtraMem(int col, long row, long size, const void* data);

 private:
  /// The spare cell while one operation uses it. A notification that comes back in meanwhile gets another.
  class Scratch {
   public:
    explicit Scratch(CGridCells& cells);
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    CGridCell& Cell() const { return *m_cell; }

   private:
    CGridCells& m_cells;
    std::unique_ptr<CGridCell> m_cell;
  };

  CGridSheets& m_sheets;
  CGridSourceTable& m_sources;
  CGridNotify& m_notify;
  std::unique_ptr<CGridCell> m_spare;  ///< null while in use
};

}  // namespace coregui
