#pragma once

#include <array>

#include "platform/Types.h"

/// Identifies a class of registered objects: 16 bytes, the same on every system.
struct GridID {
  DWORD Data1 = 0;
  WORD Data2 = 0;
  WORD Data3 = 0;
  std::array<BYTE, 8> Data4{};

  friend bool operator==(const GridID&, const GridID&) = default;
};
static_assert(sizeof(GridID) == 16);
