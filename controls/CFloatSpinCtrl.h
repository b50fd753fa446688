#pragma once

#include "controls/CFloatEdit.h"
#include "controls/CNumericSpinCtrl.h"

/// Arrows for a CFloatEdit; see CNumericSpinCtrl.
class COREGUI_API CFloatSpinCtrl : public CNumericSpinCtrl {
 public:
  /// Borrowed: held weakly.
  void SetBuddy(CFloatEdit* edit) { SetEdit(edit); }
  CFloatEdit* GetBuddy() const { return dynamic_cast<CFloatEdit*>(GetEdit()); }
  /// How much one step adds, from here on also for the box's own keys; 0 or less: what suits the box's range.
  void SetDelta(double delta) {
    if (CFloatEdit* edit = GetBuddy()) edit->SetStep(delta);
  }
};
