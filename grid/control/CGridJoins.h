#pragma once

#include <functional>

class CGridCell;

namespace coregui {

class CGridCells;
class CGridSheets;

/// Joined blocks of cells. Each cell of a block stores the way back to the first cell, the first one the
/// extent. Sorting, deleting, overwriting and moving columns can tear a block apart; then none of its cells
/// counts as joined.
class CGridJoins {
 public:
  /// An inclusive block of cells.
  struct Block {
    int startCol;
    long startRow;
    int endCol;
    long endRow;
  };

  CGridJoins(CGridSheets& sheets, CGridCells& cells) : m_sheets(sheets), m_cells(cells) {}

  /// 1 when the block is turned round or reaches out of the sheet; then nothing is stored. Blocks that share
  /// a cell with this one are dissolved.
  int Join(const Block& block);
  /// Dissolves every joined block that has a cell in the range, also while joins are off, and what torn ones
  /// have left in it. 1 when there is neither.
  int UnJoin(const Block& range);
  /// Moves a column, by `move`, to stand at `to` then, and has the headings of groups, blocks of the top
  /// heading over several columns, follow: a group keeps a column that moves within it, closes up behind one
  /// that leaves it, and takes in one that comes to stand among its columns. One that has a text or a block
  /// of its own there tears it until it goes again.
  void MoveColumn(int from, int to, const std::function<void()>& move);
  /// The block that holds the cell; false, with `block` the cell alone, when it is not joined, joins are off,
  /// or the block's first cell in the cell's own window belongs to it no more.
  bool Find(int col, long row, Block& block);

 private:
  bool IsValid(const Block& block) const;
  bool FindStored(int col, long row, Block& block);
  bool LeadsTo(const Block& block, int col, long row);
  bool IsWholeAt(int col, long row, const Block& block);
  void Dissolve(const Block& block);
  bool FindGroup(int col, long row, Block& block);
  Block GroupWithout(Block group, int from, int to);
  bool IsFree(int col, const Block& rows);
  void Exchange(int col, int other, long row);

  CGridSheets& m_sheets;
  CGridCells& m_cells;
};

}  // namespace coregui
