#pragma once

#include <ostream>
#include <string>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridMultiSelect.h"

namespace coregui::test {

/// A cell as the text "col,row".
inline std::string At(int col, long row) {
  return std::to_string(col) + "," + std::to_string(row);
}
inline std::string CurrentOf(const CGridCtrl& grid) {
  return At(grid.GetCurrentCol(), grid.GetCurrentRow());
}
/// The first cell in view behind the locked ones.
inline std::string ViewOf(const CGridCtrl& grid) {
  return At(grid.GetLeftCol(), grid.GetTopRow());
}
inline std::string TextOf(const RECT& rect) {
  return At(rect.left, rect.top) + "," + At(rect.right, rect.bottom);
}
inline std::string TextAt(CGridCtrl& grid, int col, long row) {
  CString text;
  grid.QuickGetText(col, row, &text);
  return text.ToUtf8();
}
/// The texts of the first columns of a row, a blank behind each.
inline std::string RowOf(CGridCtrl& grid, int cols, long row = 0) {
  std::string texts;
  for (int col = 0; col < cols; ++col) texts += TextAt(grid, col, row) + " ";
  return texts;
}
/// The selected cells of a grid or a selection in their order, a blank behind each.
template <class Selection>
std::string SelectedIn(Selection& selection) {
  std::string cells;
  int col = 0;
  long row = 0;
  for (int more = selection.EnumFirstSelected(&col, &row); more == 0;
       more = selection.EnumNextSelected(&col, &row)) {
    cells += At(col, row) + " ";
  }
  return cells;
}

/// The grid as text, for failure messages: one line per row with the displayed texts, "[text]" the current
/// cell,
/// "*" behind a selected one, "<" in the inner cells of a joined block; "|" and "---" mark where locked cells
/// end.
inline std::string PictureOf(CGridCtrl& grid) {
  std::string picture = "\n";
  for (long row = 0; row < grid.GetNumberRows() && row < 40; ++row) {
    for (int col = 0; col < grid.GetNumberCols() && col < 20; ++col) {
      int startCol = col;
      long startRow = row;
      const bool inner =
          grid.GetJoinStartCell(&startCol, &startRow) == 0 && (startCol != col || startRow != row);
      const bool current = At(col, row) == CurrentOf(grid);
      const std::string shown = inner ? "<" : TextAt(grid, col, row);
      picture +=
          (current ? "[" + shown + "]" : " " + shown + " ") + (grid.IsSelected(col, row) != 0 ? "*" : " ");
      picture += col + 1 == grid.GetLockedColumns() ? "|" : " ";
    }
    picture += row + 1 == grid.GetLockedRows() ? "\n---\n" : "\n";
  }
  return picture + "view from " + ViewOf(grid) + "\n";
}

}  // namespace coregui::test

inline std::ostream& operator<<(std::ostream& out, const CGridCtrl& grid) {
  return out << coregui::test::PictureOf(const_cast<CGridCtrl&>(grid));
}
