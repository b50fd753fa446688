#pragma once

#include <climits>

#include "controls/CNumericEdit.h"

/// An edit box for a whole number; see CNumericEdit. Any range at first, value 0.
class COREGUI_API CIntEdit : public CNumericEdit {
 public:
  CIntEdit() : CNumericEdit(coregui::NumberFormat::Kind::whole, INT_MIN, INT_MAX) {}
  /// The range, both ends included, and how the value is shown (coregui::NumberFormat).
  void SetParameters(int minimum, int maximum, const wchar_t* format = L"%d") {
    SetRange(minimum, maximum, format);
  }
  /// Shows a value, or the end of the range that is nearest to it.
  void SetValue(int value) { SetNumber(value); }
  /// Always in the range, whatever the text is.
  int GetValue() const { return static_cast<int>(GetNumber()); }
};
