#pragma once

#include "platform/Types.h"

class CGridCell;

namespace coregui {

/// The system colours that default cells are made of, as they were when they were read.
struct SystemLook {
  COLORREF windowText;
  COLORREF window;
  COLORREF highlightText;
  COLORREF highlight;
  COLORREF buttonFace;

  static SystemLook Read();
  /// Gives a cell the colours of `now` in place of those that it has from this look; other colours stay.
  void Replace(CGridCell& cell, const SystemLook& now) const;
};

}  // namespace coregui
