#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/CObject.h"

/// The cell ranges that wait to be repainted, the joined blocks that the running paint pass has drawn
/// already, and the ranges of cells that are drawn as one. Each child window that draws cells owns one; a
/// paint pass empties it of all but the last.
///
/// What a cell's place in the window shows depends on that cell alone, unless a joined block or a text that
/// spills over its empty neighbours lies there: then on all cells of the block, or from the text's own cell
/// up to this one. Such ranges are what is drawn as one. They are noted as they are drawn, since the cells
/// themselves may have changed when one of them is hinted; and any of them may be hidden, out of view or in
/// another window.
class COREGUI_API CGridDrawHint : public CObject {
 public:
  /// A range of cells, inclusive at both ends.
  struct Range {
    int startCol = 0;
    long startRow = 0;
    int endCol = 0;
    long endRow = 0;
    bool Contains(int col, long row) const {
      return col >= startCol && col <= endCol && row >= startRow && row <= endRow;
    }
    bool Contains(const Range& other) const {
      return Contains(other.startCol, other.startRow) && Contains(other.endCol, other.endRow);
    }
    bool Touches(const Range& other) const {
      return startCol <= other.endCol && endCol >= other.startCol && startRow <= other.endRow &&
             endRow >= other.startRow;
    }
    bool operator==(const Range&) const = default;
  };

  /// Adds one cell.
  void AddHint(int col, long row) { AddHint(col, row, col, row); }
  /// Adds a range and widens the bounding box to it; on an empty list the box becomes the range.
  void AddHint(int startCol, long startRow, int endCol, long endRow);
  /// Widens the first range to include the cell (adds it when the list is empty).
  void AddToHint(int col, long row) { AddToHint(col, row, col, row); }
  /// Widens the first range to include the range (adds it when the list is empty).
  /// Kept: the bounding box is not widened, so IsInvalid does not see what lies beyond it.
  void AddToHint(int startCol, long startRow, int endCol, long endRow);
  /// Forgets every range and every drawn block. Kept: the bounding box stays until the next AddHint.
  void ClearHints();
  /// 1 when the cell lies in the bounding box and in one of the ranges.
  int IsInvalid(int col, long row) const;
  /// Whether the cell lies in the bounding box; what does not is not invalid, whatever the ranges.
  bool IsInBox(int col, long row) const { return m_box.Contains(col, row); }
  /// 1 when the cell was recorded by SetAsValid since the last ClearHints.
  int IsValid(int col, long row) const;
  /// Records the start cell of a joined block as drawn.
  void SetAsValid(int col, long row);
  /// The union of all ranges; 0 with all outputs 0 when there is none, else 1.
  int GetTotalRange(int* startCol, long* startRow, int* endCol, long* endRow) const;
  /// The ranges in the order they were added.
  const std::vector<Range>& GetRanges() const { return m_invalid; }

  /// A range has been drawn as one. A text's range grows with each cell that it reaches.
  void NoteDrawnAsOne(const Range& range);
  /// The ranges that are drawn as one, by their first rows and columns.
  const std::vector<Range>& GetDrawnAsOne() const { return m_asOne; }
  /// Whether one of them has a cell in the range.
  bool IsDrawnAsOne(const Range& range) const;
  /// Hints the whole of what is drawn as one where a part of it is hinted, and forgets it, as the pass that
  /// is to follow notes what it draws.
  void SpreadHints();
  /// Forgets the ranges that `isShown` denies: they are drawn anew when they come into view.
  template <class IsShown>
  void ForgetUnlessShown(IsShown isShown) {
    std::erase_if(m_asOne, [&isShown](const Range& range) { return !isShown(range); });
  }

  /// While a row is drawn from left to right, what was found out about one cell serves the next: that no text
  /// from further left reaches it. That is remembered of the last cell asked for, from EnterRow to LeaveRow.
  void EnterRow(long row) { m_unreached = {row, kNoColumn}; }
  void LeaveRow() { m_unreached = {kNoRow, kNoColumn}; }
  void NoteUnreached(int col, long row) {
    if (row == m_unreached.row) m_unreached.col = col;
  }
  bool IsUnreached(int col, long row) const { return m_unreached == Cell{row, col}; }

 private:
  struct Cell {
    long row;
    int col;
    bool operator==(const Cell&) const = default;
  };
  std::vector<Range> m_invalid;
  std::vector<Cell> m_valid;
  std::vector<Range> m_asOne;  ///< in order
  Range m_box;
  static constexpr int kNoColumn = -1;
  static constexpr long kNoRow = -1;
  Cell m_unreached{kNoRow, kNoColumn};  ///< of the row that is being drawn
};
