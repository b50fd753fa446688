#pragma once

#include "core/Export.h"

namespace coregui {

/// How many lines a drag outside the grid moves with mouse ballistic mode `mode` (1 to 3): the whole part of
/// factor to the power of mode. At most 2^31 - 1.
COREGUI_API long BallisticStep(double factor, int mode);

/// The factors, from the pointer's position on the axis. `lineSize` is the default column width or row
/// height.
///
/// Kept: the factor behind the right edge alone is fractional, so over a partly visible right column it stays
/// below 1 and such a drag does not move, while over a partly visible bottom row it does.
COREGUI_API double FactorBefore(int position, int lineSize);                  ///< left of or above the grid
COREGUI_API double FactorRightOf(int position, int gridWidth, int lineSize);  ///< right of it
COREGUI_API double FactorBelow(int position, int gridHeight, int lineSize);   ///< below it

/// What a held-down key does: how far it moves, and whether the thread waits before.
struct KeyPace {
  long step = 1;
  bool waits = false;

  bool operator==(const KeyPace&) const = default;
};

/// The pace of the `count`-th key-down since the last key-up (from 1) with key ballistic mode `mode` (0: off)
/// and key ballistic delay `delay` (milliseconds).
COREGUI_API KeyPace PaceKey(int count, int mode, int delay);

}  // namespace coregui
