#pragma once

#include "views/CViewMapping.h"

namespace coregui {

/// Panning with a button held: pointer positions in, pan steps out.
class COREGUI_API CPanGesture {
 public:
  /// Which pixels one step moves, in client coordinates.
  struct Scroll {
    bool whole = false;  ///< everything moves and is drawn afresh; otherwise only what is uncovered is
    CRect area;          ///< the drawing, moved by `by`
    CSize by;
    CRect strip;  ///< the left margin, moved by `by.cy` only; empty when it stays
  };

  bool IsActive() const { return m_active; }
  void Start(CPoint pointer);
  void Stop() { m_active = false; }
  /// Moves the mapping by the way since the last step. False when there is nothing to move; the way is kept
  /// then.
  bool Step(CPoint pointer, CViewMapping& mapping, CSize* moved);
  /// What to scroll for a step. A ruler in the left margin moves only vertically.
  static Scroll ScrollFor(CSize moved, const CViewMapping& mapping, CRect const& client);
  /// The part right of the left margin, which a slave's drawing fills too.
  static CRect DrawingArea(const CViewMapping& mapping, CRect const& client);

 private:
  bool m_active = false;
  CPoint m_last;
};

}  // namespace coregui
