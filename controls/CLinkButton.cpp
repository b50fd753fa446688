#include "controls/CLinkButton.h"

#include "platform/Links.h"
#include "platform/System.h"
#include "platform/WindowRef.h"

void CLinkButton::SetLink(const wchar_t* link) {
  m_link = link;
  m_visited = false;
  coregui::ShowAsLink(*this, false);
}

const coregui::MessageTable& CLinkButton::GetMessageTable() const {
  static const coregui::MessageTable table = coregui::MessageTable(CButton::Messages())
                                                 .On<WM_CREATE>(&CLinkButton::HandleCreate)
                                                 .On<WM_SETCURSOR>(&CLinkButton::HandleSetCursor);
  return table;
}

LRESULT CLinkButton::HandleCreate(WPARAM /*wParam*/, LPARAM /*lParam*/) {
  coregui::ShowAsLink(*this, m_visited);
  return Default();
}

BOOL CLinkButton::HandleSetCursor(CWnd* /*window*/, UINT /*hitTest*/, UINT /*message*/) {
  SetCursor(LoadSystemCursor(SystemCursor::hand));
  return TRUE;
}

BOOL CLinkButton::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN && message->hwnd == GetSafeHwnd()) {
    Click();  // also outside a dialog, where Enter presses no button
    return TRUE;
  }
  return CButton::PreTranslateMessage(message);
}

void CLinkButton::OnPressed() {
  if (m_link.IsEmpty()) {
    CButton::OnPressed();
    return;
  }
  const coregui::WindowRef self(this);
  const bool opened = OnOpenLink(m_link);
  if (!self) return;
  if (!opened) {
    NotifyParent(kLinkFailed);
    return;
  }
  m_visited = true;
  coregui::ShowAsLink(*this, true);
}

bool CLinkButton::OnOpenLink(const CString& link) {
  return coregui::OpenLink(link);
}
