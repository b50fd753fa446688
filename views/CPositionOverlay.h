#pragma once

#include <vector>

#include "platform/CBitmap.h"
#include "platform/CDC.h"

namespace coregui {

/// What a view shows above its picture at the current position: the cross-hair with its read-out, the line
/// that measures with its figures. It moves without a repaint: the pixels below are remembered and put back
/// dot for dot, at any scale.
class COREGUI_API CPositionOverlay {
 public:
  struct Content {
    CPoint at;               ///< the current position, in client pixels
    bool crossHair = false;  ///< lines through it over the whole window
    CString readOut;
    bool measuring = false;  ///< a line to it
    CPoint from;
    CString measure;
    COLORREF background = 0xFFFFFF;  ///< of the window, for colours that stand out
  };

  /// Draws on a window of this client size. The overlay must be hidden.
  void Show(CDC& window, CSize client, const Content& content);
  /// Puts the picture back; nothing when the overlay is hidden, or the window's pixels have other dots since:
  /// it is painted anew then.
  void Hide(CDC& window);

 private:
  struct Label {
    CRect place;
    CString text;
    COLORREF colour;
  };

  static Label LabelAt(CDC& window, CRect const& client, CPoint at, const CString& text, COLORREF colour);
  /// False without memory: nothing that hides the picture may be drawn then.
  bool Keep(CDC& window, CSize client);
  static void DrawCrossHair(CDC& window, CSize client, CPoint at);
  void DrawMeasureLine(CDC& window) const;

  CBitmap m_below;  ///< as large as the window, so that pixels have the same dots; only the kept ones matter
  CSize m_belowSize;
  std::vector<CRect> m_kept;
  Content m_shown;  ///< `measuring` tells whether the line is there
};

}  // namespace coregui
