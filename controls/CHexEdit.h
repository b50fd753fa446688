#pragma once

#include "platform/CEdit.h"

/// A box for hexadecimal digits. Typed, dropped and composed characters other than blanks and the digits 0 to
/// 9, a to f and A to F are refused with a beep. Pasted text is not filtered.
class COREGUI_API CHexEdit : public CEdit {
 public:
  const coregui::MessageTable& GetMessageTable() const override;

 protected:
  void OnChar(UINT character, UINT repeat, UINT flags);
};
