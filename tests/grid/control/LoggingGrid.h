#pragma once

#include <set>
#include <string>
#include <vector>

#include "grid/control/CGridCtrl.h"
#include "tests/grid/GridPicture.h"

namespace coregui::test {

/// A grid without a window that writes down what it is told, and refuses what a test names in `refused`.
class LoggingGrid : public CGridCtrl {
 public:
  LoggingGrid() = default;
  /// `width` × `height` pixels of cells, no scroll bars; columns 50 and rows 10 pixels unless changed.
  LoggingGrid(int cols, long rows, int width, int height) {
    SetVS_Width(0);
    SetHS_Height(0);
    SetDefColWidth(50);
    SetDefRowHeight(10);
    SetNumberCols(cols);
    SetNumberRows(rows);
    MoveWindow(0, 0, width + GetSH_Width(), height + GetTH_Height());
    log.clear();
  }

  std::vector<std::string> log;
  std::set<std::string> refused;

  /// The lines so far, one behind the other; the log starts again.
  std::string TakeLog() {
    std::string all;
    for (const std::string& line : log) all += (all.empty() ? "" : "; ") + line;
    log.clear();
    return all;
  }
  void Fill() {
    for (long row = 0; row < GetNumberRows(); ++row) {
      for (int col = 0; col < GetNumberCols(); ++col) {
        QuickSetText(col, row, CString::Formatted(L"%c%ld", L'a' + col, row));
      }
    }
  }
  std::string Text(int col, long row) { return TextAt(*this, col, row); }

  int OnCanMove(int oldCol, long oldRow, int newCol, long newRow) override {
    return Ask("CanMove", {oldCol, oldRow, newCol, newRow});
  }
  int OnCanViewMove(int oldCol, long oldRow, int newCol, long newRow) override {
    return Ask("CanViewMove", {oldCol, oldRow, newCol, newRow});
  }
  void OnColChange(int oldCol, int newCol) override { Ask("ColChange", {oldCol, newCol}); }
  void OnRowChange(long oldRow, long newRow) override { Ask("RowChange", {oldRow, newRow}); }
  void OnCellChange(int oldCol, int newCol, long oldRow, long newRow) override {
    Ask("CellChange", {oldCol, newCol, oldRow, newRow});
  }
  void OnLeftColChange(int oldCol, int newCol) override { Ask("LeftColChange", {oldCol, newCol}); }
  void OnTopRowChange(long oldRow, long newRow) override { Ask("TopRowChange", {oldRow, newRow}); }
  void OnSelectionChanged(int right, long top, int left, long bottom, int blocks) override {
    Ask("Selection", {right, top, left, bottom, blocks});
  }
  void OnSheetSetup(int sheet) override { Ask("SheetSetup", {sheet}); }
  void OnPaste(int col, long row) override { Ask("Paste", {col, row}); }

 private:
  int Ask(const std::string& name, const std::vector<long>& arguments) {
    std::string line = name;
    for (const long argument : arguments) line += " " + std::to_string(argument);
    log.push_back(line);
    return refused.contains(name) ? 0 : 1;
  }
};

}  // namespace coregui::test
