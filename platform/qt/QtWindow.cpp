#include "platform/qt/QtWindow.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>
#include <unordered_map>

#include "platform/CDC.h"
#include "platform/CWnd.h"
#include "platform/FileDrop.h"
#include "platform/WindowState.h"
#include "platform/qt/EventRoad.h"
#include "platform/qt/SyntheticEvents.h"
#include "platform/qt/interop.h"

namespace coregui {
namespace {

std::unordered_map<const QObject*, QtWindow*>& Windows() {
  static std::unordered_map<const QObject*, QtWindow*> windows;
  return windows;
}

/// A widget may be in the middle of an event: it goes when the event loop is back.
void PutAway(QWidget* widget) {
  QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr && (focus == widget || widget->isAncestorOf(focus))) {
    focus->clearFocus();
  }
  widget->hide();
  widget->setParent(nullptr);
  widget->deleteLater();
}

}  // namespace

QtWindow::QtWindow(CWnd& window, const CREATESTRUCT& create, std::unique_ptr<QWidget> widget)
    : m_window(window), m_widget(widget.release()) {
  Windows()[m_widget] = this;
  QWidget* parent = WidgetOf((create.style & WS_CHILD) != 0 ? CWnd::FromHandle(create.parent)
                                                            : window.State().family.owner.Get());
  m_widget->setParent(parent, FlagsOf(create.style));
  m_widget->setMouseTracking(true);
  m_widget->setAttribute(Qt::WA_TransparentForMouseEvents, (create.exStyle & WS_EX_NOACTIVATE) != 0);
  if ((create.exStyle & WS_EX_ACCEPTFILES) != 0) m_widget->setAcceptDrops(true);
  Place(window.State().look.rect, create.style);
  m_widget->setEnabled((create.style & WS_DISABLED) == 0);
  m_widget->setWindowTitle(QString::fromWCharArray(create.name));
  m_widget->setAccessibleName(QString::fromStdWString(window.State().look.accessibleName.Str()));
  m_widget->installEventFilter(this);
  connect(m_widget, &QObject::destroyed, this, &QtWindow::WidgetLost);
}

QtWindow::QtWindow(CWnd& window, QWidget& borrowed)
    : m_window(window), m_widget(&borrowed), m_borrowed(true) {}

QtWindow::~QtWindow() {
  Forget();
  if (m_widget != nullptr && !m_borrowed) {
    disconnect(m_widget, nullptr, this, nullptr);
    m_widget->removeEventFilter(this);
    PutAway(m_widget);
  }
}

QtWindow* QtWindow::Of(const QWidget* widget) {
  for (const QWidget* at = widget; at != nullptr; at = at->parentWidget()) {
    const auto found = Windows().find(at);
    if (found != Windows().end()) return found->second;
    if (at->isWindow()) return nullptr;
  }
  return nullptr;
}

void QtWindow::Watch(QWidget* inner) {
  Windows()[inner] = this;
  inner->installEventFilter(this);
  connect(inner, &QObject::destroyed, this, [inner] { Windows().erase(inner); });
}

void QtWindow::Forget() {
  std::erase_if(Windows(), [this](const auto& entry) { return entry.second == this; });
}

void QtWindow::WidgetLost() {
  Forget();
  m_widget = nullptr;
  m_window.DestroyWindow();
}

Qt::WindowFlags QtWindow::FlagsOf(DWORD style) const {
  if ((style & WS_CHILD) != 0) {
    return Qt::Widget;
  }
  if ((m_window.GetExStyle() & WS_EX_NOACTIVATE) != 0) {
    return Qt::ToolTip | Qt::WindowDoesNotAcceptFocus;
  }
  if ((style & WS_CAPTION) != WS_CAPTION && (style & WS_POPUP) != 0) {
    return Qt::Tool | Qt::FramelessWindowHint;
  }
  return (style & WS_POPUP) != 0 ? Qt::Dialog : Qt::Window;
}

void QtWindow::Show(int command) {
  if (m_widget == nullptr) {
    return;
  }
  m_widget->setAttribute(Qt::WA_ShowWithoutActivating, command == SW_SHOWNOACTIVATE);
  switch (command) {
    case SW_HIDE:
      m_widget->hide();
      break;
    case SW_SHOWMAXIMIZED:
      m_widget->showMaximized();
      break;
    case SW_MINIMIZE:
      m_widget->showMinimized();
      break;
    case SW_SHOWNORMAL:
      m_widget->showNormal();
      break;
    default:
      m_widget->show();
      break;
  }
}

void QtWindow::Enable(bool enable) {
  if (m_widget != nullptr) m_widget->setEnabled(enable);
}

void QtWindow::SetText(const CString& text) {
  if (m_widget != nullptr) m_widget->setWindowTitle(QString::fromStdWString(text.Str()));
}

bool QtWindow::ReadText(CString& /*text*/) const {
  return false;
}

void QtWindow::SetAccessibleName(const CString& name) {
  if (m_widget != nullptr) m_widget->setAccessibleName(QString::fromStdWString(name.Str()));
}

void QtWindow::SetFont(const CFont* /*font*/) {}

void QtWindow::SetParent(NativeWindow* parent) {
  if (m_widget == nullptr) {
    return;
  }
  const bool shown = (m_window.GetStyle() & WS_VISIBLE) != 0;
  QWidget* under = parent == nullptr ? nullptr : static_cast<QWidget*>(parent->Widget());
  m_widget->setParent(
      under, under != nullptr ? Qt::WindowFlags(Qt::Widget) : FlagsOf(m_window.GetStyle() & ~WS_CHILD));
  Place(m_window.State().look.rect, m_window.GetStyle());
  m_widget->setVisible(shown);
}

void QtWindow::Raise() {
  if (m_widget != nullptr) m_widget->raise();
}

void QtWindow::StackUnder(NativeWindow& sibling) {
  auto* other = static_cast<QWidget*>(sibling.Widget());
  if (m_widget != nullptr && other != nullptr) m_widget->stackUnder(other);
}

void QtWindow::StyleChanged() {}

void QtWindow::TakeFocus() {
  if (m_widget == nullptr) {
    return;
  }
  if (m_widget->isVisible() && !m_widget->isActiveWindow()) {
    m_widget->activateWindow();
  }
  // Of a window of several parts, a find dialog say, the part that had it last.
  QWidget* part = m_widget->focusWidget();
  if (part == nullptr || part->isHidden() || Of(part) != this) part = m_widget;
  part->setFocus(Qt::OtherFocusReason);
}

void QtWindow::Activate() {
  if (m_widget != nullptr) {
    m_widget->window()->raise();
    m_widget->activateWindow();
  }
}

void QtWindow::SetModal(bool modal) {
  if (m_widget != nullptr) m_widget->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
}

double QtWindow::Scale() const {
  return m_widget == nullptr ? 1.0 : m_widget->devicePixelRatioF();
}

void QtWindow::StartTimer(UINT id, UINT milliseconds) {
  m_timers[id].start(static_cast<int>(std::min<UINT>(milliseconds, 0x7FFFFFFF)), this);
}

void QtWindow::StopTimer(UINT id) {
  m_timers.erase(id);
}

void QtWindow::timerEvent(QTimerEvent* event) {
  if (event->timerId() == m_resizeAwaited.timerId()) {
    m_resizeAwaited.stop();
    if (m_widget != nullptr) NoteGeometry();
    return;
  }
  const auto timer = std::find_if(m_timers.begin(), m_timers.end(), [event](const auto& entry) {
    return entry.second.timerId() == event->timerId();
  });
  if (timer != m_timers.end()) {
    m_window.SendMessage(WM_TIMER, timer->first);
  }
}

bool QtWindow::MovePixels(const CRect& /*rect*/, const CRect& clip, int /*dx*/, int /*dy*/) {
  Expose(clip);
  return true;
}

void QtWindow::PrintTo(CDC& dc) {
  if (m_widget == nullptr) {
    return;
  }
  const CRect place = m_window.GetClientRectangle();
  QImage picture(m_widget->size() * Scale(), QImage::Format_ARGB32);
  picture.setDevicePixelRatio(Scale());
  picture.fill(Qt::transparent);
  // A widget's own parts, a list's viewport say, are its children too.
  m_widget->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
  std::vector<DWORD> pixels;
  pixels.reserve(static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height()));
  for (int y = 0; y < picture.height(); ++y) {
    const auto* row = reinterpret_cast<const DWORD*>(picture.constScanLine(y));
    pixels.insert(pixels.end(), row, row + picture.width());
  }
  CBitmap bitmap;
  if (bitmap.CreateFromPixels(picture.width(), picture.height(), pixels) != FALSE) {
    dc.StretchBitmap(bitmap, place);
  }
}

bool QtWindow::DefaultMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (!HasOwnBehaviour() || m_widget == nullptr) {
    return false;
  }
  result = 0;
  if (InFlight* flight = m_inFlight; flight != nullptr && flight->message == message) {
    if (!flight->delivered) {
      flight->delivered = true;
      Deliver(*flight->receiver, *flight->event);  // may destroy this object
    }
    return !IsWheel(message) || flight->event->isAccepted();
  }
  if (m_inFlight != nullptr && IsInput(message)) {
    return true;  // the other half of an event that the widget gets as a whole
  }
  if (message == WM_MOUSEACTIVATE) {
    return false;
  }
  return GiveAsEvent(*m_widget, message, wParam, lParam) || message == WM_PAINT || message == WM_ERASEBKGND ||
         message == WM_SETCURSOR;
}

void QtWindow::Deliver(QWidget& receiver, QEvent& event) {
  static_cast<QObject&>(receiver).event(&event);
}

bool QtWindow::FilterOther(QWidget& /*receiver*/, QEvent& /*event*/) {
  return false;
}

bool QtWindow::eventFilter(QObject* receiver, QEvent* event) {
  if (!receiver->isWidgetType() || m_widget == nullptr) {
    return false;
  }
  return EventRoad(*this, *static_cast<QWidget*>(receiver), *event).Travel();
}

}  // namespace coregui
