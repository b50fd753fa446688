#pragma once

#include <ostream>
#include <string>

#include "grid/control/CGridCtrl.h"
#include "grid/control/CGridMultiSelect.h"

namespace coregui::test {

/// The grid as text, for failure messages: one line per row with the displayed texts, "[text]" the current
/// cell,
/// "*" behind a selected one, "<" in the inner cells of a joined block; "|" and "---" mark where locked cells
/// end.
inline std::string PictureOf(CGridCtrl& grid) {
  std::string picture = "\n";
  for (long row = 0; row < grid.GetNumberRows() && row < 40; ++row) {
    for (int col = 0; col < grid.GetNumberCols() && col < 20; ++col) {
      CString text;
      grid.QuickGetText(col, row, &text);
      int startCol = col;
      long startRow = row;
      const bool inner =
          grid.GetJoinStartCell(&startCol, &startRow) == 0 && (startCol != col || startRow != row);
      const bool current = col == grid.GetCurrentCol() && row == grid.GetCurrentRow();
      const std::string shown = inner ? "<" : text.ToUtf8();
      picture +=
          (current ? "[" + shown + "]" : " " + shown + " ") + (grid.IsSelected(col, row) != 0 ? "*" : " ");
      picture += col + 1 == grid.GetLockedColumns() ? "|" : " ";
    }
    picture += row + 1 == grid.GetLockedRows() ? "\n---\n" : "\n";
  }
  return picture + "view from column " + std::to_string(grid.GetLeftCol()) + ", row " +
         std::to_string(grid.GetTopRow()) + "\n";
}

}  // namespace coregui::test

inline std::ostream& operator<<(std::ostream& out, const CGridCtrl& grid) {
  return out << coregui::test::PictureOf(const_cast<CGridCtrl&>(grid));
}
