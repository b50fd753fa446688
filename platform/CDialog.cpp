#include "platform/CDialog.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/CDC.h"
#include "platform/CWinApp.h"
#include "platform/System.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"

using coregui::WindowRef;

namespace {

bool IsUsable(const CWnd& control) {
  return (control.GetStyle() & WS_VISIBLE) != 0 && control.IsWindowEnabled() != FALSE;
}

/// The controls in the order of the Tab key: as they were created, panels' children in the panel's place.
void Collect(const CWnd& window, std::vector<CWnd*>& into) {
  std::vector<CWnd*> children = window.State().family.children;
  std::sort(children.begin(), children.end(), [](const CWnd* a, const CWnd* b) {
    return a->State().family.sequence < b->State().family.sequence;
  });
  for (CWnd* child : children) {
    into.push_back(child);
    if ((child->GetStyle() & WS_TABSTOP) == 0 && IsUsable(*child)) {
      Collect(*child, into);
    }
  }
}

std::vector<CWnd*> TabOrder(const CWnd& dialog) {
  std::vector<CWnd*> controls;
  Collect(dialog, controls);
  return controls;
}

/// Where the focus stands in the order: on the control itself or on the one that it is a part of.
std::vector<CWnd*>::const_iterator Standing(const std::vector<CWnd*>& order, const CWnd* focus) {
  for (; focus != nullptr; focus = focus->GetParent()) {
    const auto at = std::find(order.begin(), order.end(), focus);
    if (at != order.end()) return at;
  }
  return order.end();
}

}  // namespace

CDialog::CDialog(const wchar_t* caption, CWnd* owner) : m_caption(caption), m_owner(owner) {}

CDialog::~CDialog() {
  if (m_loop != nullptr) m_loop->Exit();
}

BOOL CDialog::OnInitDialog() {
  return TRUE;
}

void CDialog::OnOK() {
  EndDialog(IDOK);
}

void CDialog::OnCancel() {
  EndDialog(IDCANCEL);
}

void CDialog::HandleOK() {
  OnOK();
}

void CDialog::HandleCancel() {
  OnCancel();
}

BOOL CDialog::HandleErase(CDC* dc) {
  const CBrush brush(GetSysColor(COLOR_BTNFACE));
  dc->FillRect(GetClientRectangle(), &brush);
  return TRUE;
}

const coregui::MessageTable& CDialog::GetMessageTable() const {
  return Messages();
}

const coregui::MessageTable& CDialog::Messages() {
  static const coregui::MessageTable table = coregui::MessageTable(CWnd::Messages())
                                                 .OnCommand(IDOK, BN_CLICKED, &CDialog::HandleOK)
                                                 .OnCommand(IDCANCEL, BN_CLICKED, &CDialog::HandleCancel)
                                                 .On<WM_CLOSE>(&CDialog::HandleCancel)
                                                 .On<WM_ERASEBKGND>(&CDialog::HandleErase);
  return table;
}

BOOL CDialog::MakeWindow(bool modal) {
  CWnd* owner = m_owner ? m_owner.Get() : GetActiveWindow();
  m_result = IDCANCEL;
  const WindowRef self(this);
  const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
  if (Create(L"", m_caption, style, CRect(CPoint(), m_size), owner == this ? nullptr : owner, 0) == FALSE) {
    return FALSE;
  }
  State().native->SetModal(modal);
  const bool focusFirst = OnInitDialog() != FALSE;
  if (!self || !HasWindow()) {
    return FALSE;
  }
  Centre();
  if (focusFirst) {
    MoveAlong(nullptr, true);
  }
  return self && HasWindow() ? TRUE : FALSE;
}

int CDialog::DoModal() {
  if (HasWindow() || IsModal()) {
    return -1;
  }
  const WindowRef self(this);
  const std::unique_ptr<coregui::EventLoop> loop =
      coregui::EnsureToolkit() ? coregui::MakeEventLoop() : nullptr;
  if (loop == nullptr) {
    return -1;
  }
  m_loop = loop.get();
  const WindowRef focusBefore(GetFocus());
  const bool made = MakeWindow(true) != FALSE;
  // A dialog may end itself in OnInitDialog; it is then never shown.
  if (made && !loop->HasExited() && !CWinApp::IsQuitting()) {
    ReleaseCapture();  // the mouse is the dialog's now
    ShowWindow(SW_SHOW);
    if (self && HasWindow()) loop->Run();
  }
  if (!self) {
    return IDCANCEL;
  }
  m_loop = nullptr;
  DestroyWindow();
  if (CWnd* before = focusBefore.Get(); before != nullptr && before->HasWindow()) {
    before->SetFocus();
  }
  return made ? m_result : -1;
}

BOOL CDialog::CreateModeless(bool show) {
  if (HasWindow() || MakeWindow(false) == FALSE) {
    return FALSE;
  }
  if (show) {
    ShowWindow(SW_SHOW);
  }
  return HasWindow() ? TRUE : FALSE;
}

void CDialog::EndDialog(int result) {
  m_result = result;
  if (m_loop != nullptr) {
    m_loop->Exit();
    ShowWindow(SW_HIDE);
  } else {
    DestroyWindow();
  }
}

BOOL CDialog::DestroyWindow() {
  if (m_loop != nullptr) {
    m_loop->Exit();
  }
  return CWnd::DestroyWindow();
}

void CDialog::SetClientSize(CSize size) {
  m_size = size;
  if (HasWindow()) {
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void CDialog::Centre() {
  const CRect screen = coregui::ScreenRect();
  CRect over = screen;
  if (const CWnd* owner = GetOwner()) owner->GetWindowRect(&over);
  const auto middle = [](int low, int high, int size, int least, int most) {
    return std::max(least, std::min(low + (high - low - size) / 2, most - size));
  };
  const CSize size = GetClientRectangle().Size();
  const int x = middle(over.left, over.right, size.cx, screen.left, screen.right);
  const int y = middle(over.top, over.bottom, size.cy, screen.top, screen.bottom);
  SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CDialog::SetDefID(UINT id) {
  if (CWnd* old = GetDlgItem(static_cast<int>(m_default))) old->ModifyStyle(BS_DEFPUSHBUTTON, 0);
  m_default = id;
  if (CWnd* now = GetDlgItem(static_cast<int>(id))) now->ModifyStyle(0, BS_DEFPUSHBUTTON);
}

void CDialog::GotoDlgCtrl(CWnd* control) {
  if (control != nullptr) control->SetFocus();
}

BOOL CDialog::PreTranslateMessage(MSG* message) {
  return message->message == WM_KEYDOWN && HandleKey(*message) ? TRUE : CWnd::PreTranslateMessage(message);
}

bool CDialog::HandleKey(const MSG& message) {
  CWnd* target = FromHandle(message.hwnd);
  const auto key = static_cast<UINT>(message.wParam);
  if (target == nullptr || GetKeyState(VK_CONTROL) < 0 || GetKeyState(VK_MENU) < 0) {
    return false;
  }
  const auto wanted = static_cast<UINT>(target->SendMessage(WM_GETDLGCODE, key));
  if ((wanted & DLGC_WANTALLKEYS) != 0) {
    return false;
  }
  switch (key) {
    case VK_TAB:
      if ((wanted & DLGC_WANTTAB) != 0) return false;
      MoveAlong(target, GetKeyState(VK_SHIFT) >= 0);
      return true;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
      if ((wanted & DLGC_WANTARROWS) != 0) return false;
      MoveInGroup(target, key == VK_RIGHT || key == VK_DOWN);
      return true;
    case VK_RETURN:
      return PressEnter((wanted & DLGC_BUTTON) != 0 ? *target : *this);
    case VK_ESCAPE:
      SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
      return true;
    default:
      return false;
  }
}

bool CDialog::PressEnter(CWnd& from) {
  CWnd* button = &from == this ? GetDlgItem(static_cast<int>(m_default)) : &from;
  if (button != nullptr && button->IsWindowEnabled() == FALSE) {
    return true;
  }
  const int id = button == nullptr ? static_cast<int>(m_default) : button->GetDlgCtrlID();
  SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
              button == nullptr ? 0 : reinterpret_cast<LPARAM>(button->GetSafeHwnd()));
  return true;
}

void CDialog::MoveAlong(CWnd* from, bool forward) {
  std::vector<CWnd*> order = TabOrder(*this);
  if (!forward) {
    std::reverse(order.begin(), order.end());
  }
  const auto at = Standing(order, from);
  const auto start = at == order.end() ? 0 : at - order.begin() + 1;
  std::rotate(order.begin(), order.begin() + start, order.end());
  const auto next = std::find_if(order.begin(), order.end(), [](const CWnd* control) {
    return (control->GetStyle() & WS_TABSTOP) != 0 && IsUsable(*control);
  });
  if (next != order.end() && *next != from) {
    (*next)->SetFocus();
  }
}

void CDialog::MoveInGroup(CWnd* from, bool forward) {
  const std::vector<CWnd*> order = TabOrder(*this);
  const auto at = Standing(order, from);
  if (at == order.end()) {
    return;
  }
  const auto startsGroup = [](const CWnd* control) { return (control->GetStyle() & WS_GROUP) != 0; };
  auto first = at;
  while (first != order.begin() && !startsGroup(*first)) --first;
  const auto last = std::find_if(at + 1, order.end(), startsGroup);
  std::vector<CWnd*> group(first, last);
  if (!forward) {
    std::reverse(group.begin(), group.end());
  }
  std::rotate(group.begin(), std::find(group.begin(), group.end(), *at) + 1, group.end());
  const auto next =
      std::find_if(group.begin(), group.end(), [](const CWnd* control) { return IsUsable(*control); });
  if (next != group.end()) {
    (*next)->SetFocus();
  }
}
