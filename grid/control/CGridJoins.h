#pragma once

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
  /// The block that holds the cell; false, with `block` the cell alone, when it is not joined, joins are off,
  /// or the block's first cell in the cell's own window belongs to it no more.
  bool Find(int col, long row, Block& block);

 private:
  bool IsValid(const Block& block) const;
  bool FindStored(int col, long row, Block& block);
  bool LeadsTo(const Block& block, int col, long row);
  bool IsWholeAt(int col, long row, const Block& block);
  void Dissolve(const Block& block);

  CGridSheets& m_sheets;
  CGridCells& m_cells;
};

}  // namespace coregui
