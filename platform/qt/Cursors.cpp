#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <map>

#include "platform/System.h"
#include "platform/Toolkit.h"
#include "platform/qt/CursorTarget.h"

namespace {

struct CursorState {
  QPointer<QWidget> target;
  HCURSOR shown = nullptr;
  int waiting = 0;
};

CursorState g_state;

Qt::CursorShape ShapeOf(SystemCursor cursor) {
  switch (cursor) {
    case SystemCursor::arrow:
      return Qt::ArrowCursor;
    case SystemCursor::iBeam:
      return Qt::IBeamCursor;
    case SystemCursor::wait:
      return Qt::WaitCursor;
    case SystemCursor::cross:
      return Qt::CrossCursor;
    case SystemCursor::sizeWE:
      return Qt::SizeHorCursor;
    case SystemCursor::sizeNS:
      return Qt::SizeVerCursor;
    case SystemCursor::sizeNWSE:
      return Qt::SizeFDiagCursor;
    case SystemCursor::sizeNESW:
      return Qt::SizeBDiagCursor;
    case SystemCursor::sizeAll:
      return Qt::SizeAllCursor;
    case SystemCursor::hand:
      return Qt::PointingHandCursor;
    case SystemCursor::no:
      return Qt::ForbiddenCursor;
  }
  return Qt::ArrowCursor;
}

QWidget* Target() {
  if (g_state.target != nullptr || !coregui::HasToolkit()) return g_state.target;
  return QApplication::widgetAt(QCursor::pos());
}

}  // namespace

namespace coregui {

void SetCursorTarget(QWidget* widget) {
  g_state.target = widget;
}

}  // namespace coregui

HCURSOR LoadSystemCursor(SystemCursor cursor) {
  if (!coregui::HasToolkit()) return nullptr;
  // Never destroyed: cursors that a program keeps in its own statics stay valid to the end.
  static auto& cursors = *new std::map<SystemCursor, coregui_cursor>;
  return &cursors.try_emplace(cursor, coregui_cursor{QCursor(ShapeOf(cursor))}).first->second;
}

HCURSOR SetCursor(HCURSOR cursor) {
  const HCURSOR before = g_state.shown;
  g_state.shown = cursor;
  QWidget* target = Target();
  if (target != nullptr) target->setCursor(cursor == nullptr ? QCursor(Qt::BlankCursor) : cursor->cursor);
  return before;
}

CPoint GetCursorPos() {
  if (!coregui::HasToolkit()) return {};
  const QPoint position = QCursor::pos();
  return {position.x(), position.y()};
}

void SetCursorPos(int x, int y) {
  if (coregui::HasToolkit()) QCursor::setPos(x, y);
}

void ShowWaitCursor(bool on) {
  if (!coregui::HasToolkit() || (!on && g_state.waiting == 0)) return;
  g_state.waiting += on ? 1 : -1;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}
