#include "platform/qt/EventRoad.h"

#include <QApplication>
#include <QDropEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "platform/CWnd.h"
#include "platform/KeyState.h"
#include "platform/MessageQueue.h"
#include "platform/WindowFocus.h"
#include "platform/WindowState.h"
#include "platform/qt/CursorTarget.h"
#include "platform/qt/KeyCodes.h"
#include "platform/qt/interop.h"

namespace coregui {
namespace {

constexpr int kHitClient = 1;

void NoteButtons(Qt::MouseButtons buttons) {
  NoteKeyState(VK_LBUTTON, (buttons & Qt::LeftButton) != 0);
  NoteKeyState(VK_RBUTTON, (buttons & Qt::RightButton) != 0);
  NoteKeyState(VK_MBUTTON, (buttons & Qt::MiddleButton) != 0);
}

/// 0 for a button that has no message.
UINT MouseMessage(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseMove) {
    return WM_MOUSEMOVE;
  }
  UINT down = 0;
  switch (event.button()) {
    case Qt::LeftButton:
      down = WM_LBUTTONDOWN;
      break;
    case Qt::RightButton:
      down = WM_RBUTTONDOWN;
      break;
    case Qt::MiddleButton:
      down = WM_MBUTTONDOWN;
      break;
    default:
      return 0;
  }
  if (event.type() == QEvent::MouseButtonPress) return down;
  return event.type() == QEvent::MouseButtonRelease ? down + 1 : down + 2;
}

CWnd* OurWindowOf(const QWidget* widget) {
  const QtWindow* window = QtWindow::Of(widget);
  return window == nullptr ? nullptr : &window->Window();
}

bool MovesFocus(int key) {
  constexpr int kKeys[] = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Left,
                           Qt::Key_Right, Qt::Key_Up,      Qt::Key_Down};
  return std::find(std::begin(kKeys), std::end(kKeys), key) != std::end(kKeys);
}

/// A window shows where its focus stands from the first key on that can move it, until the mouse is pressed.
/// The toolkit does so for its own Tab key only, not for that of our dialogs.
void NoteFocusMark(QWidget& receiver, const QEvent& event) {
  if (event.type() == QEvent::MouseButtonPress) {
    receiver.window()->setAttribute(Qt::WA_KeyboardFocusChange, false);
  } else if (event.type() == QEvent::KeyPress && MovesFocus(static_cast<const QKeyEvent&>(event).key())) {
    receiver.window()->setAttribute(Qt::WA_KeyboardFocusChange);
  }
}

}  // namespace

UINT EventRoad::FlagsOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
  UINT flags = 0;
  if ((buttons & Qt::LeftButton) != 0) flags |= MK_LBUTTON;
  if ((buttons & Qt::RightButton) != 0) flags |= MK_RBUTTON;
  if ((buttons & Qt::MiddleButton) != 0) flags |= MK_MBUTTON;
  if ((modifiers & Qt::ShiftModifier) != 0) flags |= MK_SHIFT;
  if ((modifiers & Qt::ControlModifier) != 0) flags |= MK_CONTROL;
  return flags;
}

CWnd* EventRoad::EnabledAtOrAbove(CWnd* window) {
  while (window != nullptr && window->IsWindowEnabled() == FALSE) {
    window = window->GetParent();
  }
  return window;
}

EventRoad::EventRoad(QtWindow& window, QWidget& receiver, QEvent& event)
    : m_window(&window), m_receiver(receiver), m_event(event) {}

bool EventRoad::Travel() {
  NoteFocusMark(m_receiver, m_event);
  switch (m_event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return Mouse(static_cast<QMouseEvent&>(m_event));
    case QEvent::Wheel:
      return Wheel(static_cast<QWheelEvent&>(m_event));
    case QEvent::KeyPress:
      return KeyDown(static_cast<QKeyEvent&>(m_event));
    case QEvent::KeyRelease:
      return KeyUp(static_cast<QKeyEvent&>(m_event));
    case QEvent::InputMethod:
      return InputMethod(static_cast<QInputMethodEvent&>(m_event));
    case QEvent::NativeGesture:
      return Pinch(static_cast<QNativeGestureEvent&>(m_event));
    case QEvent::ContextMenu:
      return ContextMenu();
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      return FocusChange();
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return DropFiles(static_cast<QDropEvent&>(m_event));
    default:
      return Other();
  }
}

LRESULT EventRoad::Send(CWnd& target, UINT message, WPARAM wParam, LPARAM lParam, bool withEvent,
                        bool* translated) {
  QtWindow::InFlight flight{&m_receiver, &m_event, message, false};
  QtWindow::InFlight* outer = m_window->m_inFlight;
  const bool own = &target == &m_window->Window();
  if (own && withEvent) {
    m_window->m_inFlight = &flight;
  }
  LRESULT result = 0;
  const bool sent = TranslateAndSend(target, message, wParam, lParam, &result);
  if (translated != nullptr) {
    *translated = sent;
  }
  if (IsAlive()) {
    m_window->m_inFlight = outer;
  }
  return result;
}

CWnd* EventRoad::MouseTarget(const QPointF& global, bool mayLeave) const {
  // While a button is down the toolkit keeps the mouse with the pressed widget, so captured drags reach
  // beyond our windows without a grab, which not every desktop grants.
  if (CWnd* capture = CWnd::GetCapture()) {
    return capture;
  }
  CWnd* own = &m_window->Window();
  // The toolkit keeps a drag with the widget that was pressed; without capture the window under the pointer
  // gets the message. A widget with a behaviour of its own relies on the toolkit's rule.
  if (mayLeave && !m_window->HasOwnBehaviour() &&
      !m_receiver.rect().contains(m_receiver.mapFromGlobal(global.toPoint()))) {
    own = OurWindowOf(QApplication::widgetAt(global.toPoint()));
  }
  return EnabledAtOrAbove(own);
}

CPoint EventRoad::ClientPosition(const CWnd& target, const QPointF& position, const QPointF& global) const {
  const QWidget* own = m_window->GetWidget();
  const QWidget* widget = WidgetOf(&target);
  // Through the screen only where it must be: a window's place may be half a pixel there.
  const QPointF at = &target == &m_window->Window() && &m_receiver == own ? position
                     : widget != nullptr                                  ? widget->mapFromGlobal(global)
                                                                          : QPointF();
  const LONG border = target.State().look.border;
  return {static_cast<LONG>(std::floor(at.x())) - border, static_cast<LONG>(std::floor(at.y())) - border};
}

bool EventRoad::Mouse(const QMouseEvent& event) {
  NoteModifiers(event.modifiers());
  NoteButtons(event.buttons());
  const UINT message = MouseMessage(event);
  m_event.accept();
  const QPointF global = m_receiver.mapToGlobal(event.position());
  const bool mayLeave = message == WM_MOUSEMOVE || event.type() == QEvent::MouseButtonRelease;
  CWnd* target = message == 0 ? nullptr : MouseTarget(global, mayLeave);
  if (target == nullptr) {
    return true;
  }
  const WindowRef targetRef(target);
  const CPoint client = ClientPosition(*target, event.position(), global);
  if (target->State().look.border > 0 && CWnd::GetCapture() == nullptr &&
      !target->GetClientRectangle().PtInRect(client)) {
    return true;  // on the border
  }
  if (message == WM_MOUSEMOVE && CWnd::GetCapture() == nullptr) {
    SetCursorTarget(WidgetOf(target));
    target->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(target->GetSafeHwnd()),
                        MAKELPARAM(kHitClient, static_cast<int>(message)));
  }
  if (event.type() == QEvent::MouseButtonPress && IsAlive() && targetRef && !Activate(*target, message)) {
    return true;
  }
  if (IsAlive() && targetRef) {
    Send(*target, message, FlagsOf(event.buttons(), event.modifiers()), MAKELPARAM(client.x, client.y), true);
  }
  return true;
}

bool EventRoad::Activate(CWnd& target, UINT press) {
  CWnd* top = target.GetTopLevelParent();
  const QWidget* widget = WidgetOf(&target);
  if (widget == nullptr || widget->isActiveWindow() || CWnd::GetActiveWindow() == top) {
    return true;
  }
  const WindowRef topRef(top);
  const LRESULT answer = target.SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(top->GetSafeHwnd()),
                                            MAKELPARAM(kHitClient, static_cast<int>(press)));
  if (topRef && (answer == MA_ACTIVATE || answer == MA_ACTIVATEANDEAT)) {
    MoveActivation(top, true);
    if (topRef && top->State().native != nullptr) top->State().native->Activate();
  }
  return answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT;
}

bool EventRoad::ContextMenu() {
  m_event.accept();
  if (!m_window->HasOwnBehaviour()) {
    return true;  // comes from the button or the key itself
  }
  const auto& event = static_cast<QContextMenuEvent&>(m_event);
  const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
  const CPoint at = byKey ? CPoint(-1, -1) : CPoint(event.globalPos().x(), event.globalPos().y());
  CWnd& window = m_window->Window();
  Send(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.GetSafeHwnd()), MAKELPARAM(at.x, at.y), true);
  return true;
}

bool EventRoad::FocusChange() {
  const auto reason = static_cast<QFocusEvent&>(m_event).reason();
  if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) {
    return false;  // a menu borrows the keys; the focus stays
  }
  CWnd* own = &m_window->Window();
  if (m_event.type() == QEvent::FocusIn) {
    MoveFocus(own);
  } else if (CWnd::GetFocus() == own) {
    MoveFocus(OurWindowOf(QApplication::focusWidget()));
  }
  return !IsAlive();
}

bool EventRoad::Close() {
  if (!m_window->IsTopLevel()) {
    return false;
  }
  m_event.ignore();
  m_window->Window().SendMessage(WM_CLOSE);
  return true;
}

void EventRoad::Leave() {
  CWnd& window = m_window->Window();
  if (window.State().tracksLeave) {
    window.State().tracksLeave = false;
    window.SendMessage(WM_MOUSELEAVE);
  }
}

bool EventRoad::Other() {
  if (&m_receiver == m_window->m_widget) {
    switch (m_event.type()) {
      case QEvent::Close:
        return Close();
      case QEvent::Leave:
        Leave();
        break;
      case QEvent::Move:
      case QEvent::Resize:
        m_window->NoteWidgetSize();
        m_window->NoteDots();
        m_window->NoteGeometry();
        break;
      case QEvent::Hide:
        m_window->NoteDots();
        break;
      case QEvent::WindowStateChange:
        m_window->NoteState();
        break;
      case QEvent::Show:
        m_window->NoteDots();
        m_window->NoteGeometry();
        if (IsAlive()) m_window->NoteGrid();
        if (IsAlive()) QueuePaintTree(m_window->Window());
        break;
      case QEvent::ScreenChangeInternal:
        m_window->NoteGrid();
        break;
      case QEvent::WindowActivate:
        if (m_window->IsTopLevel()) MoveActivation(&m_window->Window(), false);
        break;
      case QEvent::WindowDeactivate:
        if (m_window->IsTopLevel() && CWnd::GetActiveWindow() == &m_window->Window()) {
          MoveActivation(OurWindowOf(QApplication::activeWindow()), false);
        }
        break;
      default:
        break;
    }
  }
  return !IsAlive() || m_window->FilterOther(m_receiver, m_event);
}

void EventRoad::IgnoreForHost() {
  const QWidget* widget = m_window->GetWidget();
  if (m_window->Window().GetParent() == nullptr && widget != nullptr && widget->parentWidget() != nullptr &&
      !widget->isWindow()) {
    m_event.ignore();
  }
}

}  // namespace coregui
