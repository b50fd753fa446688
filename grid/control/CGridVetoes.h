#pragma once

class CGridDataSource;

namespace coregui {

class CGridNotify;
class CGridSourceTable;

/// "Ask the column's source, then the control", in one place. The source is asked with its data columns.
class CGridVetoes {
 public:
  CGridVetoes(CGridSourceTable& sources, CGridNotify& notify) : m_sources(sources), m_notify(notify) {}

  /// The source of the new column, then the control.
  bool CanMove(int oldCol, long oldRow, int newCol, long newRow);
  /// The control alone.
  bool CanMoveRow(int oldCol, long oldRow, int newCol, long newRow);
  bool CanViewMove(int oldLeftCol, long oldTopRow, int newLeftCol, long newTopRow);

 private:
  CGridSourceTable& m_sources;
  CGridNotify& m_notify;
};

}  // namespace coregui
