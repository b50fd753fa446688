#pragma once

#include <cfloat>

#include "controls/CNumericEdit.h"

/// An edit box for a real number; see CNumericEdit. Any range at first, value 0.
class COREGUI_API CFloatEdit : public CNumericEdit {
 public:
  CFloatEdit() : CNumericEdit(coregui::NumberFormat::Kind::real, -DBL_MAX, DBL_MAX) {}
  /// The range, both ends included, and how the value is shown (coregui::NumberFormat). A limit that is no
  /// finite number does not limit.
  void SetParameters(double minimum, double maximum, const wchar_t* format = L"%g") {
    SetRange(minimum, maximum, format);
  }
  /// Shows a value, or the end of the range that is nearest to it.
  void SetValue(double value) { SetNumber(value); }
  /// Always in the range, whatever the text is. A value that was set and not edited comes back with all its
  /// digits, those that the format does not show included.
  double GetValue() const { return GetNumber(); }
};
