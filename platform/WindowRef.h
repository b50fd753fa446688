#pragma once

#include <memory>

#include "core/Export.h"

class CWnd;

namespace coregui {

/// A weak reference to a window object: null once the object is destroyed. What holds a window across a call
/// of foreign code (a handler, a modal loop) holds it like this.
class COREGUI_API WindowRef {
 public:
  WindowRef() = default;
  explicit WindowRef(CWnd* window);
  CWnd* Get() const {
    const std::shared_ptr<CWnd*> life = m_life.lock();
    return life == nullptr ? nullptr : *life;
  }
  explicit operator bool() const { return Get() != nullptr; }

 private:
  std::weak_ptr<CWnd*> m_life;
};

}  // namespace coregui
