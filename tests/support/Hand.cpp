#include "tests/support/Hand.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <array>

#include "platform/CToolTipCtrl.h"
#include "platform/WindowRef.h"
#include "platform/qt/interop.h"
#include "tests/support/ToolkitKey.h"

namespace coregui::test {
namespace {

QString TextOf(UINT key, bool control) {
  if (key == VK_RETURN) return "\r";
  if (key == VK_BACK) return "\b";
  if (key == VK_ESCAPE) return "\x1b";
  if (key == VK_SPACE) return " ";
  if (key < '0' || key > 'Z') return {};
  return {QChar(control ? static_cast<char16_t>(key & 0x1F) : static_cast<char16_t>(key))};
}

void GiveKey(CWnd& window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const WindowRef life(&window);
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QWidget* widget = life ? WidgetOf(&window) : nullptr;
    if (widget == nullptr) return;
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(widget, &event);
  }
}

QImage Picture(CWnd& window) {
  return WidgetOf(&window)->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

Qt::MouseButtons ButtonsOf(UINT flags) {
  Qt::MouseButtons buttons;
  buttons.setFlag(Qt::LeftButton, (flags & MK_LBUTTON) != 0);
  buttons.setFlag(Qt::RightButton, (flags & MK_RBUTTON) != 0);
  buttons.setFlag(Qt::MiddleButton, (flags & MK_MBUTTON) != 0);
  return buttons;
}

/// What the mouse does to a window or to what its widget scrolls; nothing when the window is gone.
void GiveMouse(const WindowRef& window, QEvent::Type type, CPoint at, UINT button, UINT flags) {
  QWidget* widget = window ? WidgetOf(window.Get()) : nullptr;
  if (widget == nullptr) return;
  if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) widget = area->viewport();
  const QPointF place(at.x, at.y);
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, (flags & MK_SHIFT) != 0);
  modifiers.setFlag(Qt::ControlModifier, (flags & MK_CONTROL) != 0);
  QMouseEvent event(type, place, widget->mapToGlobal(place),
                    static_cast<Qt::MouseButton>(ButtonsOf(button).toInt()), ButtonsOf(flags), modifiers);
  QApplication::sendEvent(widget, &event);
}

void GiveWheel(CWnd& window, CPoint at, QPoint pixels, QPoint angle, Qt::ScrollPhase phase) {
  QWidget* const widget = WidgetOf(&window);
  const QPointF place(at.x, at.y);
  QWheelEvent event(place, widget->mapToGlobal(place), pixels, angle, Qt::NoButton, Qt::NoModifier, phase,
                    false);
  QApplication::sendEvent(widget, &event);
}

}  // namespace

void MovePointer(CWnd& window, CPoint at, UINT flags) {
  GiveMouse(WindowRef(&window), QEvent::MouseMove, at, 0, flags);
}

void PressButton(CWnd& window, UINT button, CPoint at) {
  GiveMouse(WindowRef(&window), QEvent::MouseButtonPress, at, button, button);
}

void ReleaseButton(CWnd& window, UINT button, CPoint at) {
  GiveMouse(WindowRef(&window), QEvent::MouseButtonRelease, at, button, 0);
}

void TakePointerAway(CWnd& window) {
  QEvent event(QEvent::Leave);
  QApplication::sendEvent(WidgetOf(&window), &event);
}

void SlideTwoFingers(CWnd& window, CPoint at, CSize by) {
  const QPoint pixels(by.cx, by.cy);
  GiveWheel(window, at, pixels, pixels * 8, Qt::ScrollUpdate);
}

void PressKey(CWnd& window, UINT key, bool control, bool shift) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ControlModifier, control);
  modifiers.setFlag(Qt::ShiftModifier, shift);
  GiveKey(window, ToolkitKey(key), modifiers, TextOf(key, control));
}

void TypeKeys(CWnd& window, const wchar_t* text) {
  for (const QChar character : QString::fromWCharArray(text)) {
    GiveKey(window, character.toUpper().unicode(), {}, QString(character));
  }
}

void CommitText(CWnd& window, const wchar_t* text) {
  QInputMethodEvent event(QString(), {});
  event.setCommitString(QString::fromWCharArray(text));
  QApplication::sendEvent(WidgetOf(&window), &event);
}

void DropText(CWnd& window, const wchar_t* text) {
  QWidget* widget = WidgetOf(&window);
  QMimeData data;
  data.setText(QString::fromWCharArray(text));
  const QPoint at(widget->width() - 3, widget->height() / 2);
  QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &enter);
  QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &drop);
}

void Click(CWnd& window) {
  const CRect client = window.GetClientRectangle();
  ClickAt(window, CPoint(client.Width() / 2, client.Height() / 2));
}

void ClickAt(CWnd& window, CPoint at) {
  const WindowRef life(&window);
  GiveMouse(life, QEvent::MouseButtonPress, at, MK_LBUTTON, MK_LBUTTON);
  GiveMouse(life, QEvent::MouseButtonRelease, at, MK_LBUTTON, 0);
}

void Drag(CWnd& window, CPoint from, CPoint to, const std::function<void()>& held) {
  const WindowRef life(&window);
  GiveMouse(life, QEvent::MouseButtonPress, from, MK_LBUTTON, MK_LBUTTON);
  GiveMouse(life, QEvent::MouseMove, to, 0, MK_LBUTTON);
  held();
  GiveMouse(life, QEvent::MouseButtonRelease, to, MK_LBUTTON, 0);
}

void StepMouse(CWnd& window, MouseStep step, CPoint at, bool right) {
  static UINT held = 0;
  static constexpr std::array kTypes{QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease,
                                     QEvent::MouseButtonDblClick};
  const UINT button = right ? MK_RBUTTON : MK_LBUTTON;
  if (step == MouseStep::release) held &= ~button;
  if (step == MouseStep::press || step == MouseStep::doubleClick) held |= button;
  GiveMouse(WindowRef(&window), kTypes[static_cast<std::size_t>(step)], at,
            step == MouseStep::move ? 0 : button, held);
}

void TurnWheel(CWnd& window, CPoint at, int delta) {
  GiveWheel(window, at, {}, QPoint(0, delta), Qt::NoScrollPhase);
}

CString ShownTip() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    CWnd* const window = widget->isVisible() ? WindowOf(widget) : nullptr;
    if (const auto* const tip = dynamic_cast<CToolTipCtrl*>(window); tip != nullptr) {
      return tip->GetWindowTextString();
    }
  }
  return {};
}

COLORREF ShownPixel(CWnd& window, CPoint at) {
  const QImage picture = Picture(window);
  const double scale = picture.devicePixelRatio();
  const QRgb colour = picture.pixel(static_cast<int>(at.x * scale), static_cast<int>(at.y * scale));
  return RGB(qRed(colour), qGreen(colour), qBlue(colour));
}

std::vector<DWORD> ShownDots(CWnd& window) {
  const QImage picture = Picture(window);
  std::vector<DWORD> dots;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) dots.push_back(picture.pixel(x, y) & 0xFFFFFF);
  }
  return dots;
}

int InkPixels(CWnd& window) {
  const std::vector<DWORD> dots = ShownDots(window);
  const auto width = static_cast<std::size_t>(Picture(window).width());
  const auto ground = std::count(dots.begin(), dots.end(), dots[2 * width + width / 2]);
  return static_cast<int>(dots.size()) - static_cast<int>(ground);
}

CString AccessibleDescription(CWnd& window) {
  return {WidgetOf(&window)->accessibleDescription().toStdWString()};
}

bool HasHandCursor(CWnd& window) {
  return WidgetOf(&window)->cursor().shape() == Qt::PointingHandCursor;
}

}  // namespace coregui::test
