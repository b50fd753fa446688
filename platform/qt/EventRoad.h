#pragma once

#include <QEvent>
#include <QPointer>

#include "platform/Geometry.h"
#include "platform/WindowRef.h"
#include "platform/qt/QtWindow.h"

class QDropEvent;

namespace coregui {

/// The one road from an event of the toolkit to the messages of a window. Made for one event.
class EventRoad {
 public:
  EventRoad(QtWindow& window, QWidget& receiver, QEvent& event);
  /// True when the event is dealt with and the widget must not see it (again).
  bool Travel();

 private:
  bool Mouse(const QMouseEvent& event);
  /// Before a press in a window that is not active: asks whether to activate it. False: the press is eaten.
  bool Activate(CWnd& target, UINT press);
  bool Wheel(QWheelEvent& event);
  bool WheelAxis(const QWheelEvent& event, bool horizontal, int delta);
  bool Pan(const QWheelEvent& event);
  bool KeyDown(const QKeyEvent& event);
  bool KeyUp(const QKeyEvent& event);
  bool Typed(const std::wstring& characters);
  bool InputMethod(QInputMethodEvent& event);
  bool Pinch(const QNativeGestureEvent& event);
  bool ContextMenu();
  bool FocusChange();
  /// Files that are dragged over the window or dropped on it.
  bool DropFiles(QDropEvent& event);
  bool Other();
  bool Close();
  void Leave();

  /// Sends a message to `target`, with the event behind it if that is this window.
  LRESULT Send(CWnd& target, UINT message, WPARAM wParam, LPARAM lParam, bool withEvent,
               bool* translated = nullptr);
  CWnd* MouseTarget(const QPointF& global, bool mayLeave) const;
  CPoint ClientPosition(const CWnd& target, const QPointF& position, const QPointF& global) const;
  void IgnoreForHost();
  /// The MK_ flags of a message.
  static UINT FlagsOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
  static CWnd* EnabledAtOrAbove(CWnd* window);
  bool IsAlive() const { return !m_window.isNull(); }

  QPointer<QtWindow> m_window;  ///< null once a handler destroyed the window
  QWidget& m_receiver;
  QEvent& m_event;
};

}  // namespace coregui
