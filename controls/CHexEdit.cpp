#include "controls/CHexEdit.h"

#include <string_view>

#include "platform/System.h"

namespace {

/// The last one is backspace.
constexpr std::wstring_view kAllowed = L" 0123456789abcdefABCDEF\b";

}  // namespace

const coregui::MessageTable& CHexEdit::GetMessageTable() const {
  static const coregui::MessageTable table =
      coregui::MessageTable(CEdit::Messages()).On<WM_CHAR>(&CHexEdit::OnChar);
  return table;
}

/// Kept: pasting is let through, so that a caller sees what was pasted and can say what is wrong with it.
void CHexEdit::OnChar(UINT character, UINT /*repeat*/, UINT /*flags*/) {
  const bool shortcut = GetKeyState(VK_CONTROL) < 0;
  if (shortcut || kAllowed.find(static_cast<wchar_t>(character)) != std::wstring_view::npos) {
    Default();
  } else {
    MessageBeep(MB_ICONASTERISK_SOUND);
  }
}
