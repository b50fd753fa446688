#include <coregui/coregui.h>

#include <iostream>

/// Levels along a road, highest first. A grid works without a window; Create gives it one.
int main() {
  const double levels[] = {101.5, 99.25, 103.75};
  CGridCtrl grid;
  grid.SetNumberCols(2);
  grid.SetNumberRows(3);
  for (int row = 0; row < 3; ++row) {
    grid.QuickSetText(0, row, CString::Formatted(L"km %.3f", 0.025 * row));
    grid.QuickSetNumber(1, row, levels[row]);
  }
  grid.SortBy(1, coregui::SORT_DESCENDING);
  CString text;
  grid.QuickGetText(0, 0, &text);
  std::cout << "Highest at " << text.ToUtf8() << '\n';
}
