#pragma once

#include "platform/CString.h"

namespace coregui {

class CGridCells;
class CGridNavigator;
class CGridNotify;
class CGridScreen;
class CGridSheets;

/// The selection as text and back: TAB between cells, LF between rows.
class CGridClipboard {
 public:
  struct Rooms {
    CGridSheets& sheets;
    CGridCells& cells;
    CGridNavigator& navigator;
    CGridNotify& notify;
    CGridScreen& screen;
  };

  explicit CGridClipboard(const Rooms& rooms) : m_rooms(rooms) {}

  /// The displayed texts of the selected cells, or of the current one. `cut`: cells that are not read-only
  /// are overwritten with a cell in its default state. Always 0.
  int CreateSelectedString(CString& text, bool cut);
  int CopySelected(bool cut);
  int CopyToClipBoard(const CString& text);
  /// 1, with `text` unchanged, when the clipboard holds no text.
  int CopyFromClipBoard(CString& text);
  int Paste();
  /// Writes the fields of a text from the current cell on. Fields outside the grid are skipped, stored
  /// read-only cells are left. What was written is selected afterwards. Always 0.
  int Paste(const CString& text);

 private:
  void AppendCell(CString& text, int col, long row, bool cut);
  void PasteField(int col, long row, const CString& field);

  Rooms m_rooms;
};

}  // namespace coregui
