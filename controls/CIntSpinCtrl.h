#pragma once

#include "controls/CIntEdit.h"
#include "controls/CNumericSpinCtrl.h"

/// Arrows for a CIntEdit; see CNumericSpinCtrl.
class COREGUI_API CIntSpinCtrl : public CNumericSpinCtrl {
 public:
  /// Borrowed: held weakly.
  void SetBuddy(CIntEdit* edit) { SetEdit(edit); }
  CIntEdit* GetBuddy() const { return dynamic_cast<CIntEdit*>(GetEdit()); }
  /// How much one step adds, from here on also for the box's own keys; 0 or less: 1.
  void SetDelta(int delta) {
    if (CIntEdit* edit = GetBuddy()) edit->SetStep(delta);
  }
};
