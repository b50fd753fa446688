#pragma once

class CGridInfo;

namespace coregui {

class CGridAxis;
class CGridJoins;
class CGridNavigator;
class CGridScreen;
class CGridSheets;
class CGridSourceTable;

/// How many rows and columns the current sheet has, in which order, and how many are locked. Results: 0 done,
/// 1 refused, and then nothing has changed.
class CGridCounts {
 public:
  /// The most columns that a sheet may have.
  static constexpr int maxColumns = 1 << 20;
  /// The most rows: their numbers are 32-bit.
  static constexpr long maxRows = 0x7FFFFFFF;

  struct Rooms {
    CGridSheets& sheets;
    CGridSourceTable& sources;
    CGridJoins& joins;
    CGridNavigator& navigator;
    CGridScreen& screen;
  };

  explicit CGridCounts(const Rooms& rooms) : m_rooms(rooms) {}

  /// The locked rows stay fewer than the rows; more rows than may have own heights get one height for good;
  /// the view, the current and the drag row are brought into the sheet; without a current row the first one
  /// becomes it.
  int SetNumberRows(long rows);
  int SetNumberCols(int cols);
  /// Rows go into and out of every source of the sheet, columns of the column's own.
  int InsertRow(long row);
  int AppendRow();
  int DeleteRow(long row);
  int InsertCol(int col);
  int AppendCol();
  int DeleteCol(int col);
  int MoveColPosition(int from, int to, bool before);
  int LockColumns(int count);
  int LockRows(long count);

 private:
  CGridInfo& Info() const;
  int Lock(CGridAxis& axis, long count);

  Rooms m_rooms;
};

}  // namespace coregui
