#pragma once

#include <vector>

#include "platform/Geometry.h"

class CDC;

namespace coregui {

class CGridAxis;
class CGridCells;
class CGridNavigator;
class CGridScreen;
class CGridSheets;
class CGridTypeTable;

/// The sizes of the current sheet's rows and columns. Results: 0 done, 1 refused, and then nothing has
/// changed.
class CGridSizing {
 public:
  struct Rooms {
    CGridSheets& sheets;
    CGridCells& cells;
    CGridTypeTable& types;
    CGridNavigator& navigator;
    CGridScreen& screen;
  };

  explicit CGridSizing(const Rooms& rooms) : m_rooms(rooms) {}

  /// A negative column or row is a heading column or row. The cell types of the cells in view are told, and
  /// may change the size.
  int SetColWidth(int col, int width);
  int GetColWidth(int col) const;
  int SetRowHeight(long row, int height);
  int GetRowHeight(long row) const;
  int SetDefRowHeight(int height);
  int SetUniformRowHeight(bool on);
  int SetHeadingRows(int count);
  int SetHeadingCols(int count);

  /// Fits columns to their cells: the headings, the locked rows in view and `rows` rows from the first one in
  /// view on (0: those in view, -1: all rows). Of several columns the hidden ones stay hidden.
  int BestFit(int startCol, int endCol, long rows);
  int FitToWindow(int startCol, int endCol);
  /// Takes over the size of the view in pixels and brings the position into range.
  void SetViewSize(CSize body);

 private:
  CGridAxis& Cols() const;
  CGridAxis& Rows() const;
  /// Raises the widths of the columns from `startCol` on to what the cells of a row need; joined cells count
  /// for nothing.
  void WidenToRow(CDC& dc, long row, int startCol, std::vector<int>& widths);
  int ToldWidth(int col, int width);
  int ToldHeight(long row, int height);

  Rooms m_rooms;
};

}  // namespace coregui
