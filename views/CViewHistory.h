#pragma once

#include <vector>

#include "views/CViewMapping.h"

namespace coregui {

/// The places that a view has shown, to go back and forward over. The newest hundred are kept.
class COREGUI_API CViewHistory {
 public:
  /// A gesture begins at `now`: what could be gone forward to is forgotten. The place shown last is noted
  /// once.
  void Note(const CViewMapping::Scale& now);
  bool CanGoBack() const { return !m_back.empty(); }
  bool CanGoForward() const { return !m_forward.empty(); }
  /// Replaces `now` by the place before or after it; false and unchanged when there is none.
  bool GoBack(CViewMapping::Scale& now) { return Go(m_back, m_forward, now); }
  bool GoForward(CViewMapping::Scale& now) { return Go(m_forward, m_back, now); }

 private:
  using Places = std::vector<CViewMapping::Scale>;
  static bool Go(Places& from, Places& to, CViewMapping::Scale& now);

  Places m_back;
  Places m_forward;
};

}  // namespace coregui
