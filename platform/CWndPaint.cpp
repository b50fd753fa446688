#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/MessageQueue.h"
#include "platform/System.h"
#include "platform/WindowState.h"

// The update region, and what a window does with a message that nobody handles.

namespace {

LRESULT PassToParent(const CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) {
  CWnd* parent = window.GetParent();
  return parent == nullptr ? 0 : parent->SendMessage(message, wParam, lParam);
}

LRESULT EraseBackground(const CWnd& window, CDC* dc) {
  if (dc == nullptr) {
    return 0;
  }
  const CBrush brush(GetSysColor(COLOR_WINDOW));
  dc->FillRect(window.GetClientRectangle(), &brush);
  return 1;
}

LRESULT AskForMenu(CWnd& window, CPoint screen) {
  return window.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.GetSafeHwnd()),
                            MAKELPARAM(screen.x, screen.y));
}

LRESULT ChooseCursor(const CWnd& window, WPARAM wParam, LPARAM lParam) {
  const CWnd* parent = window.GetParent();
  if (parent != nullptr && window.State().look.cursor == nullptr &&
      PassToParent(window, WM_SETCURSOR, wParam, lParam) != 0) {
    return 1;
  }
  const HCURSOR own = window.State().look.cursor;
  SetCursor(own != nullptr ? own : LoadSystemCursor(SystemCursor::arrow));
  return own != nullptr ? 1 : 0;
}

}  // namespace

namespace coregui {

Region TakeUpdateRegion(CWnd& window, bool& erase) {
  WindowState::Update& update = window.State().update;
  erase = update.erase;
  update.erase = false;
  return std::exchange(update.region, Region());
}

}  // namespace coregui

void CWnd::Invalidate(BOOL erase) {
  InvalidateRect(nullptr, erase);
}

void CWnd::InvalidateRect(const RECT* rect, BOOL erase) {
  const CRect client = GetClientRectangle();
  CRect part = client;
  if (rect != nullptr && !part.IntersectRect(client, *rect)) {
    return;
  }
  coregui::WindowState& state = *m_state;
  if (part.IsRectEmpty()) {
    return;
  }
  if (state.native != nullptr && state.native->Target() == nullptr) {
    state.native->Expose(part);
    return;
  }
  state.update.region.Add(part);
  state.update.erase = state.update.erase || erase != FALSE;
  coregui::QueuePaint(*this);
}

void CWnd::ValidateRect(const RECT* rect) {
  if (rect == nullptr) {
    m_state->update.region.Clear();
  } else {
    m_state->update.region.Subtract(*rect);
  }
  if (m_state->update.region.IsEmpty()) {
    m_state->update.erase = false;
  }
}

bool CWnd::GetUpdateRect(RECT* rect, BOOL erase) {
  const CRect bounds = m_state->update.region.Bounds();
  if (rect != nullptr) {
    *rect = bounds;
  }
  if (erase != FALSE && m_state->update.erase && !bounds.IsRectEmpty() && m_state->native != nullptr) {
    CClientDC dc(this);
    if (dc.IsValid()) {
      dc.IntersectClipRect(bounds);
      m_state->update.erase =
          SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<CDC*>(&dc))) == 0;
    }
  }
  return !bounds.IsRectEmpty();
}

void CWnd::UpdateWindow() {
  coregui::PaintNow(*this);
}

void CWnd::RedrawWindow() {
  Invalidate();
  UpdateWindow();
}

void CWnd::ScrollWindow(int dx, int dy, const RECT* rect, const RECT* clip, BOOL erase) {
  const CRect client = GetClientRectangle();
  CRect area = client;
  if (rect != nullptr && !area.IntersectRect(client, *rect)) return;
  CRect inside = area;
  if (clip != nullptr && !inside.IntersectRect(client, *clip)) return;
  if (dx == 0 && dy == 0) {
    return;
  }
  // Pixels reach `reached`; what lies in the area and the clip and gets none is uncovered.
  CRect moved = area;
  moved.OffsetRect(dx, dy);
  CRect reached;
  reached.IntersectRect(moved, inside);
  CRect uncoveredBounds;
  if (!uncoveredBounds.IntersectRect(area, inside)) {
    uncoveredBounds.SetRectEmpty();
  }
  coregui::Region uncovered(uncoveredBounds);
  uncovered.Subtract(reached);
  coregui::WindowState& state = *m_state;
  coregui::Region pending = state.update.region;
  pending.Intersect(area);
  pending.Offset(dx, dy);
  pending.Intersect(reached);
  state.update.region.Subtract(reached);
  if (state.native != nullptr && !state.native->MovePixels(area, inside, dx, dy)) {
    uncovered.Add(reached);
  }
  for (const CRect& part : pending.Rects()) state.update.region.Add(part);
  for (const CRect& part : uncovered.Rects()) InvalidateRect(&part, erase);
  if (!state.update.region.IsEmpty()) coregui::QueuePaint(*this);
}

void CWnd::SetRedraw(BOOL redraw) {
  m_state->update.hold = redraw == FALSE;
  if (redraw != FALSE && !m_state->update.region.IsEmpty()) {
    coregui::QueuePaint(*this);
  }
}

double CWnd::GetScaleFactor() const {
  return m_state->native == nullptr ? 1.0 : m_state->native->Scale();
}

int CWnd::GetDpi() const {
  return ScaleByDpi(96);
}

void CWnd::PrintTo(CDC* dc) {
  const LONG border = m_state->look.border;
  const CPoint corner = dc->GetViewportOrg();
  if (border > 0) {
    dc->FrameRect(CRect(CPoint(), m_state->look.rect.Size()), GetSysColor(COLOR_3DDKSHADOW));
    dc->SetViewportOrg(corner.x + border, corner.y + border);
  }
  if (SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc)) == 0 && m_state->native != nullptr) {
    m_state->native->PrintTo(*dc);
  }
  const std::vector<CWnd*> children = m_state->family.children;
  for (CWnd* child : children) {
    if ((child->GetStyle() & WS_VISIBLE) != 0) {
      const CRect& place = child->m_state->look.rect;
      const int saved = dc->SaveDC();
      const CPoint origin = dc->GetViewportOrg();
      dc->IntersectClipRect(place);
      dc->SetViewportOrg(origin.x + place.left, origin.y + place.top);
      child->PrintTo(dc);
      dc->RestoreDC(saved);
    }
  }
  dc->SetViewportOrg(corner.x, corner.y);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (m_state->native != nullptr && m_state->native->DefaultMessage(message, wParam, lParam, result)) {
    return result;
  }
  switch (message) {
    case WM_PAINT: {
      const CPaintDC dc(this);
      return 0;
    }
    case WM_ERASEBKGND:
      return EraseBackground(*this, reinterpret_cast<CDC*>(wParam));
    case WM_CLOSE:
      DestroyWindow();
      return 0;
    case WM_SETTEXT:
      m_state->look.text = reinterpret_cast<const wchar_t*>(lParam);
      if (m_state->native != nullptr) m_state->native->SetText(m_state->look.text);
      return 1;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_CONTEXTMENU:
      return PassToParent(*this, message, wParam, lParam);
    case WM_RBUTTONUP: {
      POINT screen = CPoint::FromLParam(lParam);
      ClientToScreen(&screen);
      return AskForMenu(*this, screen);
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (wParam == VK_APPS || (wParam == VK_F10 && GetKeyState(VK_SHIFT) < 0)) {
        return AskForMenu(*this, {-1, -1});
      }
      return 0;
    case WM_SETCURSOR:
      return ChooseCursor(*this, wParam, lParam);
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      Invalidate();
      return 0;
    case WM_MOUSEACTIVATE:
      return GetParent() != nullptr ? PassToParent(*this, message, wParam, lParam) : MA_ACTIVATE;
    default:
      return 0;
  }
}
