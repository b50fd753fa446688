#pragma once

#include <vector>

#include "views/CViewMapping.h"

namespace coregui {

/// The places that a view has shown, to go back and forward over. The newest hundred are kept.
class COREGUI_API CViewHistory {
 public:
  /// What a touchpad does comes in many steps, which are one gesture until a pause or another gesture.
  enum class Gesture { single, touchPan, pinch };
  static constexpr double kPause = 0.4;  ///< seconds

  /// A gesture, or a step of one, begins at `now`: what could be gone forward to is forgotten. The place
  /// shown last is noted once. `seconds` is the time on any clock.
  void Note(const CViewMapping::Scale& now, Gesture gesture = Gesture::single, double seconds = 0.0);
  bool CanGoBack() const { return !m_back.empty(); }
  bool CanGoForward() const { return !m_forward.empty(); }
  /// Replaces scale, exaggeration and offsets by those of the place before or after; false and unchanged when
  /// there is none. What belongs to the window (its dots per inch, the scale of its fit) stays.
  bool GoBack(CViewMapping::Scale& now) { return Go(m_back, m_forward, now); }
  bool GoForward(CViewMapping::Scale& now) { return Go(m_forward, m_back, now); }

 private:
  using Places = std::vector<CViewMapping::Scale>;
  bool Go(Places& from, Places& to, CViewMapping::Scale& now);

  Places m_back;
  Places m_forward;
  Gesture m_gesture = Gesture::single;  ///< the one under way
  double m_time = 0.0;                  ///< of its last step
};

}  // namespace coregui
