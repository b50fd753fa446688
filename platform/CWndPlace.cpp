#include <algorithm>
#include <utility>

#include "platform/CWnd.h"
#include "platform/MessageQueue.h"
#include "platform/Toolkit.h"
#include "platform/WindowFocus.h"
#include "platform/WindowState.h"

// The place, the family and the state of a window.

using coregui::WindowRef;

namespace {

using Siblings = std::vector<CWnd*>;

Siblings::const_iterator PositionOf(const Siblings& siblings, const CWnd* window) {
  return std::find(siblings.begin(), siblings.end(), window);
}

CPoint ClientOrigin(const CWnd& window) {
  if (window.State().native != nullptr) {
    return window.State().native->ClientOrigin();
  }
  const coregui::WindowState::Look& look = window.State().look;
  const CWnd* parent = window.GetParent();
  const CPoint origin = parent == nullptr ? CPoint() : ClientOrigin(*parent);
  return {origin.x + look.rect.left + look.border, origin.y + look.rect.top + look.border};
}

CWnd* ChildAt(CWnd& window, POINT client) {
  const Siblings& children = window.State().family.children;
  const auto hit = std::find_if(children.rbegin(), children.rend(), [client](CWnd* child) {
    return (child->GetStyle() & WS_VISIBLE) != 0 && child->State().look.rect.PtInRect(client);
  });
  if (hit == children.rend()) return &window;
  const coregui::WindowState::Look& look = (*hit)->State().look;
  return ChildAt(**hit, {client.x - look.rect.left - look.border, client.y - look.rect.top - look.border});
}

}  // namespace

void coregui::NativeWindow::NotePlace(CWnd& window, const CRect& rect, WPARAM sizeCode) {
  const CRect old = std::exchange(window.State().look.rect, rect);
  const WPARAM oldCode = std::exchange(window.State().look.sizeCode, sizeCode);
  if (!window.State().placing) window.PlaceChanged(old, oldCode);
}

CRect CWnd::GetClientRectangle() const {
  const coregui::WindowState::Look& look = m_state->look;
  return {0, 0, std::max<LONG>(0, look.rect.Width() - 2 * look.border),
          std::max<LONG>(0, look.rect.Height() - 2 * look.border)};
}

void CWnd::GetWindowRect(RECT* rect) const {
  const CPoint origin = ClientOrigin(*this);
  const LONG border = m_state->look.border;
  *rect = CRect(CPoint(origin.x - border, origin.y - border), m_state->look.rect.Size());
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL /*repaint*/) {
  Place({x, y, x + std::max(0, width), y + std::max(0, height)});
}

void CWnd::MoveWindow(const RECT& rect, BOOL repaint) {
  MoveWindow(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, repaint);
}

void CWnd::Place(const CRect& rect) {
  const CRect old = m_state->look.rect;
  const WPARAM oldCode = m_state->look.sizeCode;
  if (old == rect) {
    return;
  }
  m_state->look.rect = rect;
  if (m_state->native != nullptr) {
    // The toolkit may give another place than the one asked for (a least size): told once, as it is.
    const WindowRef self(this);
    const bool outer = std::exchange(m_state->placing, true);
    m_state->native->Move(rect);
    if (!self) return;
    m_state->placing = outer;
  }
  PlaceChanged(old, oldCode);
}

void CWnd::PlaceChanged(const CRect& old, WPARAM oldCode) {
  const WindowRef self(this);
  const CRect rect = m_state->look.rect;
  const WPARAM code = m_state->look.sizeCode;
  if (!(old.TopLeft() == rect.TopLeft())) {
    const LONG border = m_state->look.border;
    SendMessage(WM_MOVE, 0, MAKELPARAM(rect.left + border, rect.top + border));
  }
  if (self && !(old.Size() == rect.Size())) {
    m_state->update.region.Intersect(GetClientRectangle());
    InvalidateRect(nullptr);
  } else if (code == oldCode) {
    return;
  }
  if (self) {
    // A minimised window has no client area to speak of; its place waits for the restoring.
    const CSize size = code == SIZE_MINIMIZED ? CSize() : GetClientRectangle().Size();
    SendMessage(WM_SIZE, code, MAKELPARAM(size.cx, size.cy));
  }
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags) {
  const WindowRef self(this);
  CRect rect = m_state->look.rect;
  const CSize size = (flags & SWP_NOSIZE) != 0 ? rect.Size() : CSize(std::max(0, width), std::max(0, height));
  const CPoint at = (flags & SWP_NOMOVE) != 0 ? rect.TopLeft() : CPoint(x, y);
  if ((flags & SWP_NOZORDER) == 0) {
    StackBelow(after);
  }
  Place(CRect(at, size));
  if (self && (flags & SWP_HIDEWINDOW) != 0) ShowWindow(SW_HIDE);
  if (self && (flags & SWP_SHOWWINDOW) != 0) {
    ShowWindow((flags & SWP_NOACTIVATE) != 0 ? SW_SHOWNOACTIVATE : SW_SHOW);
  }
  return TRUE;
}

void CWnd::StackBelow(const CWnd* after) {
  CWnd* parent = GetParent();
  if (parent == nullptr || after == nullptr || after == this || after->GetParent() != parent) {
    BringWindowToTop();
    return;
  }
  Siblings& siblings = parent->m_state->family.children;
  siblings.erase(PositionOf(siblings, this));
  siblings.insert(PositionOf(siblings, after), this);
  if (m_state->native != nullptr && after->m_state->native != nullptr) {
    m_state->native->StackUnder(*after->m_state->native);
  }
}

void CWnd::BringWindowToTop() {
  if (CWnd* parent = GetParent()) {
    Siblings& siblings = parent->m_state->family.children;
    siblings.erase(PositionOf(siblings, this));
    siblings.push_back(this);
  }
  if (m_state->native != nullptr) {
    m_state->native->Raise();
  }
}

void CWnd::ClientToScreen(POINT* point) const {
  const CPoint origin = ClientOrigin(*this);
  point->x += origin.x;
  point->y += origin.y;
}

void CWnd::ClientToScreen(RECT* rect) const {
  const CPoint origin = ClientOrigin(*this);
  *rect = CRect(rect->left + origin.x, rect->top + origin.y, rect->right + origin.x, rect->bottom + origin.y);
}

void CWnd::ScreenToClient(POINT* point) const {
  const CPoint origin = ClientOrigin(*this);
  point->x -= origin.x;
  point->y -= origin.y;
}

void CWnd::ScreenToClient(RECT* rect) const {
  const CPoint origin = ClientOrigin(*this);
  *rect = CRect(rect->left - origin.x, rect->top - origin.y, rect->right - origin.x, rect->bottom - origin.y);
}

CWnd* CWnd::GetParent() const {
  return m_state->family.parent;
}

CWnd* CWnd::SetParent(CWnd* parent) {
  CWnd* old = m_state->family.parent;
  if (old == parent || parent == this || (parent != nullptr && IsChild(parent))) {
    return old;
  }
  if (old != nullptr) {
    Siblings& siblings = old->m_state->family.children;
    siblings.erase(PositionOf(siblings, this));
  }
  m_state->family.parent = parent;
  if (parent != nullptr) {
    parent->m_state->family.children.push_back(this);
  }
  if (m_state->native != nullptr) {
    m_state->native->SetParent(parent == nullptr ? nullptr : parent->m_state->native.get());
    coregui::QueuePaintTree(*this);
  }
  return old;
}

CWnd* CWnd::GetOwner() const {
  CWnd* owner = m_state->family.owner.Get();
  return owner != nullptr ? owner : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const {
  const CWnd* window = this;
  while (window->GetParent() != nullptr) {
    window = window->GetParent();
  }
  return const_cast<CWnd*>(window);
}

CWnd* CWnd::GetDesktopWindow() {
  static CWnd desktop;
  desktop.m_state->look.rect = coregui::ScreenRect();
  return &desktop;
}

CWnd* CWnd::GetDlgItem(int id) const {
  const Siblings& children = m_state->family.children;
  const auto found = std::find_if(children.begin(), children.end(),
                                  [id](const CWnd* child) { return child->GetDlgCtrlID() == id; });
  return found == children.end() ? nullptr : *found;
}

int CWnd::GetDlgCtrlID() const {
  return static_cast<int>(m_state->family.id);
}

void CWnd::SetDlgCtrlID(int id) {
  m_state->family.id = static_cast<UINT>(id);
}

CWnd* CWnd::GetWindow(UINT relation) const {
  if (relation == GW_OWNER) {
    return m_state->family.owner.Get();
  }
  const CWnd* parent = relation == GW_CHILD ? this : GetParent();
  if (parent == nullptr || parent->m_state->family.children.empty()) {
    return nullptr;
  }
  const Siblings& siblings = parent->m_state->family.children;
  const auto at = PositionOf(siblings, this);
  switch (relation) {
    case GW_CHILD:
    case GW_HWNDFIRST:
      return siblings.back();
    case GW_HWNDLAST:
      return siblings.front();
    case GW_HWNDNEXT:
      return at == siblings.begin() ? nullptr : *(at - 1);
    case GW_HWNDPREV:
      return at + 1 == siblings.end() ? nullptr : *(at + 1);
    default:
      return nullptr;
  }
}

bool CWnd::IsChild(const CWnd* window) const {
  for (const CWnd* at = window == nullptr ? nullptr : window->GetParent(); at != nullptr;
       at = at->GetParent()) {
    if (at == this) return true;
  }
  return false;
}

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

CWnd* CWnd::WindowFromPoint(POINT screen) {
  CWnd* top = coregui::TopLevelAt(screen);
  if (top == nullptr) {
    return nullptr;
  }
  top->ScreenToClient(&screen);
  return ChildAt(*top, screen);
}
