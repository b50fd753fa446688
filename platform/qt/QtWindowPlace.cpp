#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/CWnd.h"
#include "platform/WindowState.h"
#include "platform/qt/QtWindow.h"

// Where a window lies, on its parent and among the dots of the screen.

namespace coregui {
namespace {

QRect ToQt(const CRect& rect) {
  return {rect.left, rect.top, rect.Width(), rect.Height()};
}

WPARAM SizeCodeOf(const QWidget& widget) {
  if (!widget.isWindow()) return SIZE_RESTORED;
  if (widget.isMinimized()) return SIZE_MINIMIZED;
  return widget.isMaximized() || widget.isFullScreen() ? SIZE_MAXIMIZED : SIZE_RESTORED;
}

bool IsBetweenDots(const QWidget& child) {
  const double scale = child.devicePixelRatioF();
  return scale != std::floor(scale) && child.isVisible() && !child.isWindow();
}

/// A part of a child in the window at the top, with a pixel round it: where a pixel is no whole number of
/// dots, the toolkit brings some parts of its picture to the screen without their last dot.
QRegion InWindow(const QWidget& child, const QRegion& part) {
  QRegion region;
  for (const QRect& piece : part.translated(child.mapTo(child.window(), QPoint()))) {
    region += piece.adjusted(-1, -1, 1, 1);
  }
  return region;
}

}  // namespace

bool QtWindow::IsTopLevel() const {
  return (m_window.GetStyle() & WS_CHILD) == 0;
}

/// A frame without WS_THICKFRAME cannot be dragged larger or smaller; code still sizes the window.
void QtWindow::Place(CRect rect, DWORD style) {
  const bool fixed = (style & (WS_CHILD | WS_CAPTION | WS_THICKFRAME)) == WS_CAPTION;
  if (fixed) m_widget->setFixedSize(std::max<LONG>(0, rect.Width()), std::max<LONG>(0, rect.Height()));
  rect.OffsetRect(ParentsBorder(), ParentsBorder());
  m_widget->setGeometry(ToQt(rect));
}

/// How far a widget in its parent's lies from the client area's corner.
int QtWindow::ParentsBorder() const {
  const CWnd* parent = m_window.GetParent();
  return parent == nullptr ? 0 : parent->State().look.border;
}

void QtWindow::Move(const CRect& rect) {
  if (m_widget != nullptr) Place(rect, m_window.GetStyle());
}

CPoint QtWindow::ClientOrigin() const {
  if (m_widget == nullptr) {
    return m_window.State().look.rect.TopLeft();
  }
  const int border = m_window.State().look.border;
  const QPoint origin = m_widget->mapToGlobal(QPoint(border, border));
  return {origin.x(), origin.y()};
}

void QtWindow::Expose(const CRect& rect) {
  Expose(ToQt(rect), false);
}

void QtWindow::Expose(const QRegion& part, bool now) {
  if (m_widget == nullptr) {
    return;
  }
  QWidget* shown = m_widget;
  QRegion region = part;
  if (IsBetweenDots(*shown)) {
    region = InWindow(*shown, part & shown->rect());
    shown = shown->window();
  }
  if (region.rectCount() == 1) {  // the toolkit is quicker with these
    const QRect& rect = *region.begin();
    now ? shown->repaint(rect) : shown->update(rect);
  } else {
    now ? shown->repaint(region) : shown->update(region);
  }
}

void QtWindow::NoteState() {
  // A maximised or restored window learns its size a little later; until then it has the old one.
  constexpr int longest = 100;  // milliseconds; a window may have had the new size before
  const WPARAM code = SizeCodeOf(*m_widget);
  if (code != SIZE_MINIMIZED && code != m_lastCode) {
    m_resizeAwaited.start(longest, this);
  }
  NoteGeometry();
}

void QtWindow::NoteGeometry() {
  const QRect place = m_widget->geometry().translated(-ParentsBorder(), -ParentsBorder());
  const CRect rect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
  const WindowState::Look& look = m_window.State().look;
  WPARAM code = SizeCodeOf(*m_widget);
  if (m_resizeAwaited.isActive() && rect.Size() == look.rect.Size()) {
    code = look.sizeCode;
  } else {
    m_resizeAwaited.stop();
  }
  if (!m_widget->isVisible() || (rect == look.rect && code == look.sizeCode)) {
    return;
  }
  if (code != SIZE_MINIMIZED) m_lastCode = code;
  NotePlace(m_window, rect, code);
}

/// A child was moved, sized, shown or hidden. Between whole scales, it and the windows on it have other dots
/// now; and both what it left and what it came to are to reach the screen whole.
void QtWindow::NoteDots() {
  const bool shown = IsBetweenDots(*m_widget);
  const QRect before = std::exchange(m_shownAt, shown ? m_widget->geometry() : QRect());
  const QWidget* const parent = m_widget->parentWidget();
  if (before == m_shownAt || parent == nullptr) return;
  for (const QWidget* inner : m_widget->findChildren<QWidget*>()) {
    if (QtWindow* const window = Of(inner)) window->NoteGrid();
  }
  parent->window()->update(InWindow(*parent, QRegion(before) + m_shownAt));
}

}  // namespace coregui
