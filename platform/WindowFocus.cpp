#include "platform/WindowFocus.h"

#include "platform/CWnd.h"

namespace coregui {
namespace {

WPARAM HandleOf(const CWnd* window) {
  return window == nullptr ? 0 : reinterpret_cast<WPARAM>(window->GetSafeHwnd());
}

}  // namespace

FocusState& Focus() {
  static auto& state = *new FocusState;  // never destroyed: see WindowRegistry.cpp
  return state;
}

CWnd* MoveFocus(CWnd* to) {
  CWnd* old = Focus().focus.Get();
  if (old == to) {
    return old;
  }
  const WindowRef oldRef(old);
  const WindowRef newRef(to);
  Focus().focus = newRef;
  if (old != nullptr) {
    old->SendMessage(WM_KILLFOCUS, HandleOf(to));
  }
  // A handler may have moved the focus on or destroyed either window.
  CWnd* now = newRef.Get();
  if (now != nullptr && Focus().focus.Get() == now) {
    now->SendMessage(WM_SETFOCUS, HandleOf(oldRef.Get()));
  }
  return oldRef.Get();
}

CWnd* MoveActivation(CWnd* to, bool byClick) {
  CWnd* old = Focus().active.Get();
  if (old == to) {
    return old;
  }
  const WindowRef oldRef(old);
  const WindowRef newRef(to);
  Focus().active = newRef;
  if (old != nullptr) {
    old->SendMessage(WM_ACTIVATE, WA_INACTIVE, static_cast<LPARAM>(HandleOf(to)));
  }
  CWnd* now = newRef.Get();
  if (now != nullptr && Focus().active.Get() == now) {
    now->SendMessage(WM_ACTIVATE, byClick ? WA_CLICKACTIVE : WA_ACTIVE,
                     static_cast<LPARAM>(HandleOf(oldRef.Get())));
  }
  return oldRef.Get();
}

CWnd* MoveCapture(CWnd* to) {
  CWnd* old = Focus().capture.Get();
  if (old == to) {
    return old;
  }
  const WindowRef oldRef(old);
  Focus().capture = WindowRef(to);
  if (old != nullptr) {
    old->SendMessage(WM_CAPTURECHANGED, 0, static_cast<LPARAM>(HandleOf(to)));
  }
  return oldRef.Get();
}

void ForgetWindow(CWnd& window) {
  const WindowRef self(&window);
  if (Focus().capture.Get() == &window) {
    MoveCapture(nullptr);
  }
  if (self && Focus().focus.Get() == &window) {
    MoveFocus(nullptr);
  }
  if (self && Focus().active.Get() == &window) {
    MoveActivation(nullptr, false);
  }
}

}  // namespace coregui
