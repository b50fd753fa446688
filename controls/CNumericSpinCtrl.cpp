#include "controls/CNumericSpinCtrl.h"

#include <cstdlib>

#include "controls/CNumericEdit.h"
#include "platform/WindowRef.h"

BOOL CNumericSpinCtrl::PreCreateWindow(CREATESTRUCT& create) {
  create.style &= ~(UDS_SETBUDDYINT | UDS_WRAP);  // the box writes its own text and ends at its range
  return CSpinButtonCtrl::PreCreateWindow(create);
}

void CNumericSpinCtrl::SetEdit(CNumericEdit* edit) {
  SetBuddy(edit);
}

CNumericEdit* CNumericSpinCtrl::GetEdit() const {
  return dynamic_cast<CNumericEdit*>(GetBuddy());
}

bool CNumericSpinCtrl::OnDeltaPos(int /*position*/, int delta) {
  const coregui::WindowRef self(this);
  for (int step = 0; step < std::abs(delta); ++step) {
    CNumericEdit* edit = self ? GetEdit() : nullptr;
    if (edit == nullptr || !edit->HasWindow() || edit->IsWindowEnabled() == FALSE) return false;
    edit->SendMessage(WM_KEYDOWN, delta > 0 ? VK_UP : VK_DOWN, 1);
  }
  if (self) SetPos32(0);  // counts nothing: the number is the box's
  return static_cast<bool>(self);
}
