#include "platform/TipClock.h"

namespace coregui {

TipClock::Action TipClock::Enter(Phase phase, UINT timer) {
  const bool wasShown = m_phase == Phase::shown;
  m_phase = phase;
  m_timer = timer;
  if (phase == Phase::shown) {
    return wasShown ? Action::none : Action::show;
  }
  return wasShown ? Action::hide : Action::none;
}

TipClock::Action TipClock::PointerAt(const CRect& area) {
  const bool same = m_phase != Phase::away && area == m_area;
  m_area = area;
  if (!same) {
    return Enter(Phase::resting, m_phase == Phase::shown ? delays.reshow : delays.initial);
  }
  if (m_phase == Phase::resting && m_timer != delays.reshow) {
    m_timer = delays.initial;
  }
  return Action::none;
}

TipClock::Action TipClock::PointerAway() {
  return Enter(Phase::away, 0);
}

TipClock::Action TipClock::Cancel() {
  return m_phase == Phase::away ? Action::none : Enter(Phase::spent, 0);
}

TipClock::Action TipClock::Elapsed() {
  switch (m_phase) {
    case Phase::resting:
      return Enter(Phase::shown, delays.autoPop);
    case Phase::shown:
      return Enter(Phase::spent, 0);
    default:
      m_timer = 0;
      return Action::none;
  }
}

}  // namespace coregui
