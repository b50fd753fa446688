#pragma once

#include <future>
#include <utility>

namespace desk {

/// Frees what is large beside the windows: the cells of ten million rows take the better part of a second.
/// One thing at a time; the last one is freed when this goes.
class Disposal {
 public:
  template <class Thing>
  void Take(Thing&& thing) {
    m_freeing = std::async(std::launch::async, [old = std::forward<Thing>(thing)]() mutable {
      const auto gone = std::move(old);
    });
  }

 private:
  std::future<void> m_freeing;
};

}  // namespace desk
