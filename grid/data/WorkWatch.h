#pragma once

#include <functional>
#include <utility>

namespace coregui {

/// Asks, while something is done to many cells, whether it is to go on. Once given up it stays given up.
class WorkWatch {
 public:
  /// `ask` gets the part that is done, from 0 to 1, and answers false to give up; null goes on always.
  explicit WorkWatch(std::function<bool(double part)> ask = nullptr) : m_ask(std::move(ask)) {}
  /// What follows is this part of the whole.
  void BeginPhase(double from, double to) {
    m_from = from;
    m_length = to - from;
  }
  /// `part` of the phase is done.
  bool GoesOn(double part) {
    m_goesOn = m_goesOn && (!m_ask || m_ask(m_from + m_length * part));
    return m_goesOn;
  }
  bool GoesOn() const { return m_goesOn; }

 private:
  std::function<bool(double part)> m_ask;
  double m_from = 0.0;
  double m_length = 1.0;
  bool m_goesOn = true;
};

}  // namespace coregui
