#include "platform/qt/SyntheticEvents.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include "platform/Geometry.h"
#include "platform/Keys.h"
#include "platform/Messages.h"
#include "platform/System.h"
#include "platform/qt/KeyCodes.h"

namespace coregui {
namespace {

struct MouseForm {
  UINT message;
  QEvent::Type type;
  Qt::MouseButton button;
};

constexpr MouseForm kMouse[] = {
    {WM_MOUSEMOVE, QEvent::MouseMove, Qt::NoButton},
    {WM_LBUTTONDOWN, QEvent::MouseButtonPress, Qt::LeftButton},
    {WM_LBUTTONUP, QEvent::MouseButtonRelease, Qt::LeftButton},
    {WM_LBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::LeftButton},
    {WM_RBUTTONDOWN, QEvent::MouseButtonPress, Qt::RightButton},
    {WM_RBUTTONUP, QEvent::MouseButtonRelease, Qt::RightButton},
    {WM_RBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::RightButton},
    {WM_MBUTTONDOWN, QEvent::MouseButtonPress, Qt::MiddleButton},
    {WM_MBUTTONUP, QEvent::MouseButtonRelease, Qt::MiddleButton},
    {WM_MBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::MiddleButton},
};

Qt::MouseButtons ButtonsOf(UINT flags) {
  Qt::MouseButtons buttons;
  buttons.setFlag(Qt::LeftButton, (flags & MK_LBUTTON) != 0);
  buttons.setFlag(Qt::RightButton, (flags & MK_RBUTTON) != 0);
  buttons.setFlag(Qt::MiddleButton, (flags & MK_MBUTTON) != 0);
  return buttons;
}

Qt::KeyboardModifiers ModifiersOf(UINT flags) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, (flags & MK_SHIFT) != 0);
  modifiers.setFlag(Qt::ControlModifier, (flags & MK_CONTROL) != 0);
  return modifiers;
}

Qt::KeyboardModifiers HeldModifiers() {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, GetKeyState(VK_SHIFT) < 0);
  modifiers.setFlag(Qt::ControlModifier, GetKeyState(VK_CONTROL) < 0);
  modifiers.setFlag(Qt::AltModifier, GetKeyState(VK_MENU) < 0);
  return modifiers;
}

void Give(QWidget& widget, QEvent&& event) {
  static_cast<QObject&>(widget).event(&event);
}

/// A key that types something does its work with WM_CHAR.
bool TypesSomething(UINT key) {
  return (key >= '0' && key <= 'Z') || key == VK_BACK || key == VK_TAB || key == VK_RETURN ||
         key == VK_ESCAPE || key == VK_SPACE || (key >= VK_NUMPAD0 && key <= VK_DIVIDE) ||
         (key >= 0xBA && key <= 0xDE);
}

void GiveCharacter(QWidget& widget, wchar_t character) {
  struct Control {
    wchar_t character;
    Qt::Key key;
  };
  constexpr Control controls[] = {
      {L'\b', Qt::Key_Backspace}, {L'\r', Qt::Key_Return}, {L'\t', Qt::Key_Tab}, {0x1B, Qt::Key_Escape}};
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  for (const Control& control : controls) {
    if (control.character == character) key = control.key;
  }
  if (key == 0 && character > 0 && character < 27) {
    key = Qt::Key_A + (character - 1);
    modifiers = Qt::ControlModifier;
  }
  if (key == Qt::Key_Tab) {
    return;  // moving the focus is the dialog's work, not the widget's
  }
  const std::wstring text(1, character);
  Give(widget, QKeyEvent(QEvent::KeyPress, key, modifiers, QString::fromStdWString(text)));
}

}  // namespace

bool IsWheel(UINT message) {
  return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

bool IsInput(UINT message) {
  return (message >= WM_KEYDOWN && message <= WM_SYSKEYDOWN) ||
         (message >= WM_MOUSEMOVE && message <= WM_MOUSEHWHEEL) || message == WM_CONTEXTMENU;
}

bool GiveAsEvent(QWidget& widget, UINT message, WPARAM wParam, LPARAM lParam) {
  const CPoint at = CPoint::FromLParam(lParam);
  for (const MouseForm& form : kMouse) {
    if (form.message == message) {
      const auto flags = static_cast<UINT>(wParam);
      const QPointF place(at.x, at.y);
      Give(widget, QMouseEvent(form.type, place, widget.mapToGlobal(place), form.button, ButtonsOf(flags),
                               ModifiersOf(flags)));
      return true;
    }
  }
  if (IsWheel(message)) {
    const int delta = static_cast<short>(HIWORD(wParam));
    const QPoint angle = message == WM_MOUSEWHEEL ? QPoint(0, delta) : QPoint(-delta, 0);
    QWheelEvent wheel(widget.mapFromGlobal(QPointF(at.x, at.y)), QPointF(at.x, at.y), QPoint(), angle,
                      ButtonsOf(LOWORD(wParam)), ModifiersOf(LOWORD(wParam)), Qt::NoScrollPhase, false);
    static_cast<QObject&>(widget).event(&wheel);
    return wheel.isAccepted();
  }
  const auto key = static_cast<UINT>(wParam);
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (!TypesSomething(key)) {
        Give(widget, QKeyEvent(QEvent::KeyPress, ToolkitKeyOf(key), HeldModifiers()));
      }
      return true;
    case WM_KEYUP:
      Give(widget, QKeyEvent(QEvent::KeyRelease, ToolkitKeyOf(key), HeldModifiers()));
      return true;
    case WM_CHAR:
      GiveCharacter(widget, static_cast<wchar_t>(wParam));
      return true;
    default:
      return false;
  }
}

}  // namespace coregui
