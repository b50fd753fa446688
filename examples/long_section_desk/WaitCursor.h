#pragma once

#include "coregui/coregui.h"

namespace desk {

/// The wait cursor for as long as this lives.
class WaitCursor {
 public:
  WaitCursor() { ShowWaitCursor(true); }
  ~WaitCursor() { ShowWaitCursor(false); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace desk
