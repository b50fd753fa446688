#include "controls/CAdvEdit.h"

#include "platform/WindowRef.h"
#include "platform/WindowState.h"

void CAdvEdit::SetPrompt(const wchar_t* prompt) {
  const bool speaksPrompt = State().look.accessibleName == m_prompt;
  m_prompt = prompt;
  SetCueBanner(m_prompt);
  if (speaksPrompt) SetAccessibleName(m_prompt);
}

bool CAdvEdit::Revert() {
  if (GetWindowTextString() == m_before) return false;
  SetSel(0, -1);
  ReplaceSel(m_before, TRUE);
  return true;
}

const coregui::MessageTable& CAdvEdit::Messages() {
  static const coregui::MessageTable table = coregui::MessageTable(CEdit::Messages())
                                                 .On<WM_CREATE>(&CAdvEdit::HandleCreate)
                                                 .On<WM_SETFOCUS>(&CAdvEdit::OnSetFocus);
  return table;
}

const coregui::MessageTable& CAdvEdit::GetMessageTable() const {
  return Messages();
}

LRESULT CAdvEdit::HandleCreate(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  if (!m_prompt.IsEmpty()) SetCueBanner(m_prompt);
  return Default();
}

void CAdvEdit::OnSetFocus(CWnd* /*before*/) {
  const coregui::WindowRef self(this);
  m_before = GetWindowTextString();
  Default();
  if (self && HasWindow() && m_selects) SetSel(0, -1);  // a click then puts the caret where it points
}

BOOL CAdvEdit::PreTranslateMessage(MSG* message) {
  const bool key = message->message == WM_KEYDOWN && message->hwnd == GetSafeHwnd();
  if (key && message->wParam == VK_ESCAPE && Revert()) return TRUE;
  if (!key || message->wParam != VK_RETURN || (GetStyle() & ES_MULTILINE) != 0) {
    return CEdit::PreTranslateMessage(message);
  }
  const coregui::WindowRef self(this);
  NotifyParent(AEN_RETURN);
  if (!self || !HasWindow() || m_keepsReturn) return TRUE;
  return CEdit::PreTranslateMessage(message);
}
