#pragma once

#include "platform/Types.h"

class CGridCell;
class CPen;

namespace coregui {

/// The system colours that default cells and grid lines are made of, as they were when they were read.
struct SystemLook {
  COLORREF windowText;
  COLORREF window;
  COLORREF highlightText;
  COLORREF highlight;
  COLORREF buttonFace;
  COLORREF gridLine;  ///< a little off the window's colour

  static SystemLook Read();
  /// Gives a cell the colours of `now` in place of those that it has from this look; other colours stay.
  void Replace(CGridCell& cell, const SystemLook& now) const;
  void Replace(CPen& pen, const SystemLook& now) const;
};

}  // namespace coregui
