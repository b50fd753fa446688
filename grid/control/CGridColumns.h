#pragma once

#include <memory>
#include <vector>

#include "grid/control/CGridAxis.h"

class CGridCell;
class CGridDataSource;

namespace coregui {

/// The columns of one sheet: their axis (counts, widths, view) and what each column carries.
class COREGUI_API CGridColumns : public CGridAxis {
 public:
  struct Column {
    CGridDataSource* source = nullptr;  ///< borrowed: registered with the control; null: the sheet's default
    /// Null: no property set. Shared by the columns that came together until one is written: a million of
    /// them have one. To read only.
    std::shared_ptr<CGridCell> defaults;
    int translation = 0;  ///< the data column that the grid column shows

    /// The default cell to write to, this column's alone.
    CGridCell& OwnDefaults();
  };

  CGridColumns();
  ~CGridColumns();
  CGridColumns(const CGridColumns&) = delete;
  CGridColumns& operator=(const CGridColumns&) = delete;

  bool Has(long col) const { return col >= 0 && col < Count(); }
  /// A column from 0 to Count() - 1.
  Column& At(long col) { return m_columns[static_cast<std::size_t>(col)]; }
  const Column& At(long col) const { return m_columns[static_cast<std::size_t>(col)]; }
  /// The data column of a grid column; other numbers stand for themselves.
  int Translate(int col) const { return Has(col) ? At(col).translation : col; }
  /// The first grid column that shows a data column, -1 when none.
  int FromTranslation(int dataColumn) const;
  /// A new column shows the data column of its own number or, where another column shows that one, the lowest
  /// that none shows; its default cell starts as a copy of `defaults`.
  void SetColumnCount(int count, CGridCell& defaults);
  void InsertColumn(int col, int dataColumn, CGridCell& defaults);
  void EraseColumn(int col);
  void MoveColumn(int from, int to);

 private:
  /// The data columns for the columns from `before` on.
  std::vector<int> FreeDataColumns(int before) const;

  std::vector<Column> m_columns;
};

}  // namespace coregui
