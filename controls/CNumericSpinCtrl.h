#pragma once

#include "platform/CSpinButtonCtrl.h"

class CNumericEdit;

/// Two arrows that step the number in an edit box as the box's own arrow keys do: by its step, within its
/// range, so that each step can be undone. Nothing steps a box that is disabled or read-only, or has gone.
/// The parent gets WM_VSCROLL after each step and reads the box. The base of CFloatSpinCtrl and CIntSpinCtrl.
class COREGUI_API CNumericSpinCtrl : public CSpinButtonCtrl {
 public:
  BOOL PreCreateWindow(CREATESTRUCT& create) override;

 protected:
  CNumericSpinCtrl() = default;
  void SetEdit(CNumericEdit* edit);
  CNumericEdit* GetEdit() const;
  bool OnDeltaPos(int position, int delta) override;
};
