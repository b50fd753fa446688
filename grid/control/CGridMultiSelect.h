#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/CObject.h"
#include "platform/Geometry.h"

class CGridCtrl;
class CGridDrawHint;

/// Every block spans whole rows: columns 0 to the number of columns (one past the last).
inline constexpr int MULTISELECT_ROWS = 2;
/// Where blocks overlap, the first in list order decides instead of the last.
inline constexpr int MULTISELECT_FIRSTWINS = 16;

/// The selected cells of one sheet, as an ordered list of rectangular blocks that each select or deselect
/// their cells; the last block that covers a cell decides. It reports changes and never navigates. Every
/// change of a block calls the control's OnSelectionChanged, and cells whose look changes go to the body's
/// draw hints. Forgetting the blocks is not reported: the next block is.
class COREGUI_API CGridMultiSelect : public CObject {
 public:
  /// One block: where it was begun and ends, and the same as an ordered rectangle, inclusive.
  struct Block {
    int startCol = 0;
    int endCol = 0;
    long startRow = 0;
    long endRow = 0;
    int left = 0;
    int right = 0;
    long top = 0;
    long bottom = 0;
    int selected = 1;  ///< 1 selects its cells, 0 deselects them
  };

  CGridMultiSelect() = default;
  explicit CGridMultiSelect(CGridCtrl* control) : m_control(control) {}
  ~CGridMultiSelect() override = default;
  /// The control that is told of changes. Borrowed: it owns this object. Null: nobody is told.
  void SetGridCtrl(CGridCtrl* control) { m_control = control; }

  /// Forgets every block, the enumeration and the last clicked cell. 0.
  virtual int ClearAll();
  /// Begins a block at the cell, which stays current until the next one is begun. 0.
  virtual int StartBlock(int col, long row);
  /// Extends the current block to the cell and makes it selecting. 1 when no block is in progress.
  virtual int EndBlock(int col, long row);
  /// Mouse and keys. `flags` are the key flags of mouse messages (MK_SHIFT, MK_CONTROL).
  virtual void OnLClick(int col, long row, UINT flags);
  virtual void OnRClick(int col, long row, UINT flags);
  /// Looks at the state of the Shift and Ctrl keys.
  virtual void OnKeyMove(int col, long row);
  virtual void OnMouseMove(int col, long row, UINT flags);
  /// Inverts the cell's own one-cell block, or begins one with the opposite of the cell's state. 0.
  virtual int ToggleCell(int col, long row);
  /// Where the current block was begun; 1 when no block is in progress.
  virtual int GetOrigCell(int* col, long* row);
  /// The current block's rectangle; 1 when no block is in progress.
  virtual int GetCurrentBlock(int* left, long* top, int* right, long* bottom);
  /// The bounding rectangle of all blocks; 1 when there is none.
  virtual int GetTotalRange(int* left, long* top, int* right, long* bottom);
  /// Blocks begun since the last ClearAll.
  virtual int GetNumberBlocks();
  /// 1 when selected. `block`, which may be null, receives the index of the deciding block (0 when none).
  virtual int IsSelected(int col, long row, int* block = nullptr);
  virtual int IsCellInColSelected(int col);
  virtual int IsCellInRowSelected(long row);
  /// Clears the selection and stores the mode bits.
  virtual int SelectMode(int mode);
  virtual int GetSelectMode();
  /// The selected cells, row by row; with no block the control's current cell alone. 0 while there is one.
  virtual int EnumFirstSelected(int* col, long* row);
  virtual int EnumNextSelected(int* col, long* row);
  /// The blocks in list order. 0 while there is one.
  virtual int EnumFirstBlock(int* left, long* top, int* right, long* bottom);
  virtual int EnumNextBlock(int* left, long* top, int* right, long* bottom);

  /// The same cells as EnumFirstSelected and EnumNextSelected in reverse order.
  int EnumLastSelected(int* col, long* row);
  int EnumPreviousSelected(int* col, long* row);
  /// Hints the bounding rectangle of all blocks for repainting.
  void AddTotalRangeToDrawHints(CGridDrawHint* hints);

 private:
  struct Enumeration {
    int left = 0;
    long top = 0;
    int right = -1;
    long bottom = -1;
    int col = 0;
    long row = 0;
    bool active = false;
    int nextBlock = 0;
  };

  void Normalise(Block& block) const;
  void Report(const Block& block);
  void Hint(const Block& block) const;
  void HintChange(const Block& before, const Block& after);
  void HintAndClear();
  CGridDrawHint* Hints() const;
  bool FirstWins() const { return (m_mode & MULTISELECT_FIRSTWINS) != 0; }
  const std::vector<std::size_t>& BlocksInRow(long row);
  void ForgetRow() { m_rowIsKnown = false; }
  bool StartEnumeration();
  /// The first selected cell in the direction of `step` (1 or -1), and the next one.
  int EnumFrom(int* col, long* row, int step);
  int EnumOn(int* col, long* row, int step);
  int FirstEnumerated(int step) const;

  CGridCtrl* m_control = nullptr;        ///< borrowed: the owner
  std::vector<Block> m_blocks;           ///< in list order; the last one is current: the block in progress
  std::vector<std::size_t> m_rowBlocks;  ///< those of m_blocks that reach into m_row, while that is known
  long m_row = 0;
  bool m_rowIsKnown = false;
  int m_mode = 0;
  Enumeration m_enum;
  int m_clickedCol = -1;
  long m_clickedRow = -1;
};
