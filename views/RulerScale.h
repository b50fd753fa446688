#pragma once

#include <vector>

#include "core/Export.h"
#include "platform/CString.h"

/// How the numbers along a ruler are written.
enum class PlotNumberFormat {
  decimal,   ///< as many decimals as the step needs
  chainage,  ///< kilometres + metres: 1+234.500
};

namespace coregui {

/// The ticks of a ruler: round steps of 1, 2 or 5 times a power of ten.
struct RulerTicks {
  double step = 0.0;  ///< between labels; 0 when there is nothing to mark
  double minorStep =
      0.0;  ///< a fifth or a quarter or a half of it, down to `minorGap` pixels; 0 when there is no room
  std::vector<double> labels;
  std::vector<double> minors;  ///< without those that have a label
};

/// Chooses the ticks between two world values on a stretch of so many pixels, labels at least `gap` pixels
/// apart. Values that are not finite, and stretches without length, give none.
COREGUI_API RulerTicks ChooseTicks(double from, double to, double pixels, double gap, double minorGap);

/// The multiples of a step between two values, in rising order; none where they would stand closer than the
/// `pixels` of the stretch allow, or for a step that is not positive.
COREGUI_API std::vector<double> MultiplesOf(double step, double from, double to, double pixels);

/// Writes a value, with the user's decimal separator, as tables beside a plot do. `decimals` below 0: what
/// `step` needs.
COREGUI_API CString FormatPlotNumber(double value, double step, PlotNumberFormat format, int decimals = -1);

}  // namespace coregui
