#include "platform/CWnd.h"
#include "platform/MessageQueue.h"
#include "platform/WindowFocus.h"
#include "platform/WindowState.h"

// Style, visibility, text and font; focus, capture and activation.

using coregui::WindowRef;

DWORD CWnd::GetStyle() const {
  return m_state->look.style;
}

DWORD CWnd::GetExStyle() const {
  return m_state->look.exStyle;
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add) {
  const DWORD style = (m_state->look.style & ~remove) | add;
  if (style == m_state->look.style) {
    return FALSE;
  }
  m_state->look.style = style;
  const CSize before = GetClientRectangle().Size();
  if (m_state->native != nullptr) {
    m_state->native->StyleChanged();
  }
  if (const CSize size = GetClientRectangle().Size(); !(size == before)) {
    Invalidate();
    SendMessage(WM_SIZE, m_state->look.sizeCode, MAKELPARAM(size.cx, size.cy));
  }
  return TRUE;
}

BOOL CWnd::ShowWindow(int command) {
  const WindowRef self(this);
  const bool show = command != SW_HIDE;
  const bool was = (m_state->look.style & WS_VISIBLE) != 0;
  if (show != was) {
    SendMessage(WM_SHOWWINDOW, show ? 1 : 0);
    if (!self) return was ? TRUE : FALSE;
    m_state->look.style = show ? m_state->look.style | WS_VISIBLE : m_state->look.style & ~WS_VISIBLE;
  }
  if (!show && was && (GetFocus() == this || IsChild(GetFocus()))) {
    coregui::MoveFocus(nullptr);
    if (!self) return TRUE;
  }
  if (m_state->native != nullptr && (show || was)) {
    m_state->native->Show(command);
  }
  if (self && show) {
    coregui::QueuePaintTree(*this);
  }
  return was ? TRUE : FALSE;
}

BOOL CWnd::IsWindowVisible() const {
  for (const CWnd* window = this; window != nullptr; window = window->GetParent()) {
    if ((window->GetStyle() & WS_VISIBLE) == 0) return FALSE;
  }
  return TRUE;
}

BOOL CWnd::EnableWindow(BOOL enable) {
  const WindowRef self(this);
  const bool wasDisabled = (m_state->look.style & WS_DISABLED) != 0;
  const bool disable = enable == FALSE;
  if (wasDisabled == disable) {
    return wasDisabled ? TRUE : FALSE;
  }
  m_state->look.style = disable ? m_state->look.style | WS_DISABLED : m_state->look.style & ~WS_DISABLED;
  if (m_state->native != nullptr) {
    m_state->native->Enable(!disable);
  }
  if (disable && (GetCapture() == this)) {
    ReleaseCapture();
  }
  if (self) {
    SendMessage(WM_ENABLE, disable ? 0 : 1);
  }
  return wasDisabled ? TRUE : FALSE;
}

BOOL CWnd::IsWindowEnabled() const {
  return (m_state->look.style & WS_DISABLED) == 0 ? TRUE : FALSE;
}

void CWnd::SetWindowText(const wchar_t* text) {
  SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text == nullptr ? L"" : text));
}

CString CWnd::GetWindowTextString() const {
  CString text;
  if (m_state->native != nullptr && m_state->native->ReadText(text)) {
    return text;
  }
  return m_state->look.text;
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
  m_state->look.font = font;
  if (m_state->native != nullptr) {
    m_state->native->SetFont(font);
  }
  if (redraw != FALSE) {
    Invalidate();
  }
}

CFont* CWnd::GetFont() const {
  return m_state->look.font;
}

void CWnd::SetAccessibleName(const wchar_t* name) {
  m_state->look.accessibleName = name;
  if (m_state->native != nullptr) {
    m_state->native->SetAccessibleName(m_state->look.accessibleName);
  }
}

CWnd* CWnd::SetFocus() {
  const WindowRef self(this);
  const WindowRef old(GetFocus());
  if (HasWindow() && IsWindowEnabled() == FALSE) {
    return old.Get();
  }
  coregui::MoveFocus(this);
  if (self && GetFocus() == this && m_state->native != nullptr) {
    m_state->native->TakeFocus();
  }
  return old.Get();
}

CWnd* CWnd::GetFocus() {
  return coregui::Focus().focus.Get();
}

CWnd* CWnd::SetCapture() {
  return coregui::MoveCapture(this);
}

CWnd* CWnd::GetCapture() {
  return coregui::Focus().capture.Get();
}

void CWnd::ReleaseCapture() {
  coregui::MoveCapture(nullptr);
}

CWnd* CWnd::SetActiveWindow() {
  CWnd* top = GetTopLevelParent();
  const WindowRef topRef(top);
  CWnd* old = coregui::MoveActivation(top, false);
  if (topRef && top->m_state->native != nullptr) {
    top->m_state->native->Activate();
  }
  return old;
}

CWnd* CWnd::GetActiveWindow() {
  return coregui::Focus().active.Get();
}

void CWnd::TrackMouseLeave() {
  m_state->tracksLeave = true;
}
