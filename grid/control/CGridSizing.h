#pragma once

#include <vector>

#include "platform/Geometry.h"

class CDC;

namespace coregui {

class CGridAxis;
class CGridCellDelegate;
class CGridCells;
class CGridNavigator;
class CGridNotify;
class CGridScreen;
class CGridSheets;
class CGridSourceTable;
class CGridTypeTable;

/// Counts, sizes, locks and order of the current sheet's rows and columns. Results: 0 done, 1 refused.
class CGridSizing {
 public:
  /// The most columns that a sheet may have.
  static constexpr int maxColumns = 1 << 20;
  /// The most rows: their numbers are 32-bit.
  static constexpr long maxRows = 0x7FFFFFFF;

  struct Rooms {
    CGridSheets& sheets;
    CGridSourceTable& sources;
    CGridCells& cells;
    CGridTypeTable& types;
    CGridNavigator& navigator;
    CGridScreen& screen;
  };

  explicit CGridSizing(const Rooms& rooms) : m_rooms(rooms) {}

  /// The locked rows stay fewer than the rows; more rows than may have own heights get one height for good;
  /// the view, the current and the drag row are brought into the sheet; without a current row the first one
  /// becomes it.
  int SetNumberRows(long rows);
  int SetNumberCols(int cols);
  /// Rows and columns go into and out of every source of the sheet.
  int InsertRow(long row);
  int AppendRow();
  int DeleteRow(long row);
  int InsertCol(int col);
  int AppendCol();
  int DeleteCol(int col);
  int MoveColPosition(int from, int to, bool before);

  /// A negative column or row is a heading column or row. The cell types of the cells in view are told, and
  /// may change the size.
  int SetColWidth(int col, int width);
  int GetColWidth(int col) const;
  int SetRowHeight(long row, int height);
  int GetRowHeight(long row) const;
  int SetDefRowHeight(int height);
  int SetUniformRowHeight(bool on);
  int LockColumns(int count);
  int LockRows(long count);
  int SetHeadingRows(int count);
  int SetHeadingCols(int count);

  int BestFit(int startCol, int endCol, long rows);
  int FitToWindow(int startCol, int endCol);
  /// Takes over the size of the view in pixels and brings the position into range.
  void SetViewSize(CSize body);

 private:
  CGridAxis& Cols() const;
  CGridAxis& Rows() const;
  void ReduceLocked(CGridAxis& axis, long count);
  void BringIntoRange(CGridAxis& axis);
  void AfterCountChange(CGridAxis& axis);
  int Lock(CGridAxis& axis, long count);
  /// Raises the widths of the columns from `startCol` on to what the cells of a row need; joined cells count
  /// for nothing.
  void WidenToRow(CDC& dc, long row, int startCol, std::vector<int>& widths);
  int ToldWidth(int col, int width);
  int ToldHeight(long row, int height);

  Rooms m_rooms;
};

}  // namespace coregui
