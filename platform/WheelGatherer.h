#pragma once

#include "platform/Messages.h"

namespace coregui {

/// Gathers wheel movement (in 120ths of a notch) of one axis into whole notches. What is left over is kept
/// for the next movement, unless that goes the other way.
class WheelGatherer {
 public:
  /// The whole notches reached: positive, negative or 0.
  int Add(int delta) {
    if ((delta > 0 && m_rest < 0) || (delta < 0 && m_rest > 0)) {
      m_rest = 0;
    }
    m_rest += delta;
    const int notches = m_rest / WHEEL_DELTA;
    m_rest %= WHEEL_DELTA;
    return notches;
  }

 private:
  int m_rest = 0;
};

}  // namespace coregui
