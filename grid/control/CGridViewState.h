#pragma once

#include "core/Export.h"
#include "platform/CGdiObject.h"
#include "platform/Types.h"

class CWnd;

namespace coregui {

/// What the pointer did last, for those who are called while it does it.
enum class MouseEvent { none = 0, leftDown = 1, rightDown = 2, wheel = 4 };

/// Accelerated scrolling: mode 0 is off.
struct Ballistics {
  int mode = 0;   ///< 0 to 3 for the mouse: the power of the distance; any number for the keys
  int delay = 0;  ///< milliseconds that a slow step waits, 0 to 32000
};

/// The options of one sheet and the passing state of its windows. Sizes are pixels, flags 0 or 1.
struct COREGUI_API CGridViewState {
  CGridViewState();

  // Looks
  int vScrollWidth;
  int hScrollHeight;
  int tabWidth = 0;            ///< 0: no sheet tabs
  int margin;                  ///< between a cell's edge and its text
  int height3D = 1;            ///< of the raised edges of heading cells
  int currentCellMode = 1;     ///< bit 1: focus rectangle; bit 2: the current cell is highlighted
  int highlightRow = 1;        ///< the whole current row stands for the current cell
  int highlightRowToEdge = 0;  ///< its focus rectangle ends at the window's edge, not at the last column
  int cellOverlap = 1;         ///< text spills into empty neighbours
  int excelBorders = 1;        ///< every cell has a right and a bottom line
  int defaultFont = -1;        ///< index into the control's font list, -1: the system's font
  CPen gridLinePen;            ///< follows the theme until its colour is changed

  // Behaviour
  int hints = 0;           ///< cells have tips
  int userSizingMode = 1;  ///< 0 off, 1 outline while dragging, others live
  int joins = 1;
  int scrollOnPartialCells = 1;
  int columnSwapping = 0;
  int menu = 0;
  int vScrollMode = 1;  ///< 0: the view moves when the thumb is let go, 1: it follows the thumb
  int hScrollMode = 1;
  int trackingWindowMode = 0;  ///< 0: the thumb's tip is shown, 1: it is not
  int multiSelectMode = 0;     ///< 0: one cell, 1 blocks of cells, others the bits of CGridMultiSelect
  Ballistics mouseBallistics{0, 200};
  Ballistics keyBallistics;
  HCURSOR arrowCursor;
  HCURSOR horizontalSizingCursor;
  HCURSOR verticalSizingCursor;
  CWnd* editClass = nullptr;        ///< borrowed; null: the control's own
  CWnd* maskedEditClass = nullptr;  ///< borrowed; null: the control's own

  // Passing state
  int paintEnabled = 0;
  int forceFullRepaint = 0;     ///< for extensions: the body repaints as a whole after each move
  int keepSelectionOnGoto = 0;  ///< set while the mouse selects: GotoCol and GotoRow leave the selection
  MouseEvent mouseEvent = MouseEvent::none;
  UINT mouseFlags = 0;  ///< MK_ bits of the last mouse event
};

}  // namespace coregui
