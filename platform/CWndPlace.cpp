#include <algorithm>
#include <utility>

#include "platform/CWnd.h"
#include "platform/Toolkit.h"
#include "platform/WindowState.h"

// The place and the size of a window.

using coregui::WindowRef;

namespace {

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
  const std::vector<CWnd*>& children = window.State().family.children;
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

CWnd* CWnd::WindowFromPoint(POINT screen) {
  CWnd* top = coregui::TopLevelAt(screen);
  if (top == nullptr) {
    return nullptr;
  }
  top->ScreenToClient(&screen);
  return ChildAt(*top, screen);
}
