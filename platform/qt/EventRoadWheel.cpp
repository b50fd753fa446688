#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "platform/CWnd.h"
#include "platform/KeyState.h"
#include "platform/qt/EventRoad.h"
#include "platform/qt/KeyCodes.h"

// Wheels, and fingers on a touchpad.

namespace coregui {
namespace {

/// Pixels of a touchpad that reports no angles, for one notch.
constexpr int kPixelsPerNotch = 40;

}  // namespace

bool EventRoad::Wheel(QWheelEvent& event) {
  NoteModifiers(event.modifiers());
  m_event.accept();
  if (Pan(event)) {
    return true;
  }
  QPoint delta = event.angleDelta();
  if (delta.isNull()) {
    delta = event.pixelDelta() * WHEEL_DELTA / kPixelsPerNotch;
  }
  bool used = true;
  if (delta.y() != 0) {
    used = WheelAxis(event, false, delta.y());
  }
  if (delta.x() != 0 && IsAlive()) {
    used = WheelAxis(event, true, -delta.x()) || used;
  }
  if (!used && IsAlive()) {
    IgnoreForHost();
  }
  return true;
}

bool EventRoad::WheelAxis(const QWheelEvent& event, bool horizontal, int delta) {
  int notches = m_window->m_wheel[horizontal ? 1 : 0].Add(delta);
  const int step = notches < 0 ? -1 : 1;
  const UINT flags = FlagsOf(event.buttons(), event.modifiers());
  const QPoint screen = m_receiver.mapToGlobal(event.position()).toPoint();
  bool used = true;
  for (; notches != 0 && IsAlive(); notches -= step) {
    CWnd* target = EnabledAtOrAbove(&m_window->Window());
    if (target == nullptr) {
      return true;
    }
    used = Send(*target, horizontal ? WM_MOUSEHWHEEL : WM_MOUSEWHEEL,
                MAKEWPARAM(static_cast<int>(flags), step * WHEEL_DELTA), MAKELPARAM(screen.x(), screen.y()),
                true) != 0;
  }
  return used;
}

bool EventRoad::Pan(const QWheelEvent& event) {
  const bool touchpad = !event.pixelDelta().isNull() && event.phase() != Qt::NoScrollPhase;
  CWnd& window = m_window->Window();
  if (!touchpad || window.SendMessage(WM_COREGUI_WANTPAN) != 1 || !IsAlive()) {
    return !IsAlive();
  }
  Send(window, WM_COREGUI_PAN, FlagsOf(event.buttons(), event.modifiers()),
       MAKELPARAM(event.pixelDelta().x(), event.pixelDelta().y()), true);
  return true;
}

bool EventRoad::Pinch(const QNativeGestureEvent& event) {
  if (event.gestureType() != Qt::ZoomNativeGesture) {
    return false;
  }
  m_event.accept();
  const QPoint at = event.position().toPoint();
  const double factor = std::max(0.0, 1.0 + event.value());
  Send(m_window->Window(), WM_COREGUI_PINCH, static_cast<WPARAM>(std::lround(factor * 65536.0)),
       MAKELPARAM(at.x(), at.y()), true);
  return true;
}

}  // namespace coregui
