#pragma once

#include "core/Export.h"
#include "platform/Geometry.h"

namespace coregui {

/// When a tip shows: after the pointer has rested on an area, for a while; sooner when a tip was just shown
/// for another area; not again for the same area once it went. No window and no clock: the caller runs one
/// timer as told and reports when it went off.
class COREGUI_API TipClock {
 public:
  struct Delays {
    UINT initial = 500;   ///< milliseconds of rest before the first tip
    UINT reshow = 100;    ///< the same when a tip was just shown
    UINT autoPop = 5000;  ///< milliseconds that a tip stays
  } delays;

  enum class Action { none, show, hide };

  /// The pointer moved within the area (a tool or a cell, in coordinates of its own). Each move starts the
  /// rest anew until the tip shows.
  Action PointerAt(const CRect& area);
  /// The pointer is over nothing that has a tip.
  Action PointerAway();
  /// A button, a key, the wheel: no tip for this area any more.
  Action Cancel();
  /// The timer went off.
  Action Elapsed();
  /// Milliseconds that the timer is to run from now on; 0: stopped. Read after each call above.
  UINT Timer() const { return m_timer; }

 private:
  enum class Phase { away, resting, shown, spent };
  Action Enter(Phase phase, UINT timer);

  Phase m_phase = Phase::away;
  CRect m_area;
  UINT m_timer = 0;
};

}  // namespace coregui
