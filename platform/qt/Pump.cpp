#include "platform/qt/Pump.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <utility>

#include "platform/CWnd.h"
#include "platform/MessageQueue.h"
#include "platform/Toolkit.h"
#include "platform/WindowRegistry.h"
#include "platform/WindowState.h"
#include "platform/qt/Application.h"

namespace coregui {
namespace {

QEvent::Type TypeOf(int index) {
  static const int first = QEvent::registerEventType();
  static const int second = QEvent::registerEventType();
  static const int third = QEvent::registerEventType();
  static const int fourth = QEvent::registerEventType();
  const int types[] = {first, second, third, fourth};
  return static_cast<QEvent::Type>(types[index]);
}

QEvent::Type MessagesType() {
  return TypeOf(0);
}
QEvent::Type PaintType() {
  return TypeOf(1);
}
QEvent::Type ExposureType() {
  return TypeOf(2);
}
QEvent::Type ThemeType() {
  return TypeOf(3);
}

void TellTheme() {
  for (const WindowRef& window : RegisteredWindows()) {
    if (CWnd* alive = window.Get()) alive->SendMessage(WM_SYSCOLORCHANGE);
    if (CWnd* alive = window.Get()) alive->Invalidate();
  }
}

class QtEventLoop;
std::vector<QtEventLoop*>& Loops() {
  static auto& loops = *new std::vector<QtEventLoop*>;  // never destroyed: see WindowRegistry.cpp
  return loops;
}

class QtEventLoop : public EventLoop {
 public:
  void Run() override {
    if (m_exited) return;
    Loops().push_back(this);
    m_loop.exec();
    std::erase(Loops(), this);
  }
  void Exit() override {
    m_exited = true;
    m_loop.exit();
  }
  bool HasExited() const override { return m_exited; }

 private:
  QEventLoop m_loop;
  bool m_exited = false;
};

}  // namespace

Pump::Pump(QObject* application) : QObject(application) {
  application->installEventFilter(this);
}

Pump& Pump::Get() {
  static QPointer<Pump> pump;
  if (pump == nullptr) {
    pump = new Pump(
        QCoreApplication::instance());  // NOLINT(cppcoreguidelines-owning-memory): the application owns it
  }
  return *pump;
}

void Pump::WakeForMessages() {
  if (!std::exchange(m_messages, true)) {
    QCoreApplication::postEvent(this, new QEvent(MessagesType()));
  }
}

void Pump::WakeForPaint() {
  if (!std::exchange(m_paint, true)) {
    QCoreApplication::postEvent(this, new QEvent(PaintType()), Qt::LowEventPriority);
  }
}

void Pump::QueueExposure(QtWindow* window) {
  if (m_exposures.empty()) {
    QCoreApplication::postEvent(this, new QEvent(ExposureType()), Qt::LowEventPriority);
  }
  m_exposures.emplace_back(window);
}

void Pump::Show() {
  // The last one takes the others along: one pass of the toolkit, and none that it has to be woken for.
  std::vector<QPointer<QtWindow>> windows = std::exchange(m_exposures, {});
  std::erase_if(windows,
                [](const QPointer<QtWindow>& window) { return window == nullptr || !window->HasDamage(); });
  for (const QPointer<QtWindow>& window : windows) {
    if (window != nullptr) window->ShowDamage(&window == &windows.back());
  }
}

bool Pump::event(QEvent* event) {
  if (event->type() == MessagesType()) {
    m_messages = false;
    DeliverPosted();
  } else if (event->type() == PaintType()) {
    m_paint = false;
    PaintPending();
  } else if (event->type() == ExposureType()) {
    Show();
  } else if (event->type() == ThemeType()) {
    m_theme = false;
    TellTheme();
  } else {
    return QObject::event(event);
  }
  return true;
}

bool Pump::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver == parent() && event->type() == QEvent::ApplicationPaletteChange &&
      !std::exchange(m_theme, true)) {
    QCoreApplication::postEvent(this, new QEvent(ThemeType()));
  }
  return false;
}

bool HasToolkit() {
  return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

void WakeForMessages() {
  if (HasToolkit()) Pump::Get().WakeForMessages();
}

void WakeForPaint() {
  if (HasToolkit()) Pump::Get().WakeForPaint();
}

bool HandleEvents(bool wait) {
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  if (!HasToolkit() || dispatcher == nullptr) {
    return false;
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return dispatcher->processEvents(wait ? QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents
                                        : QEventLoop::ProcessEventsFlags(QEventLoop::AllEvents));
}

std::unique_ptr<EventLoop> MakeEventLoop() {
  return std::make_unique<QtEventLoop>();
}

void ExitEventLoops() {
  for (QtEventLoop* loop : Loops()) loop->Exit();
}

bool EnsureToolkit() {
  if (QCoreApplication::instance() == nullptr) EnsureApplication();
  return HasToolkit();
}

CRect ScreenRect() {
  const QScreen* screen = HasToolkit() ? QGuiApplication::primaryScreen() : nullptr;
  if (screen == nullptr) {
    return {0, 0, 1024, 768};
  }
  const QRect area = screen->availableGeometry();
  return {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
}

CWnd* TopLevelAt(POINT screen) {
  const QWidget* widget = HasToolkit() ? QApplication::topLevelAt(screen.x, screen.y) : nullptr;
  const QtWindow* window = QtWindow::Of(widget);
  return window == nullptr ? nullptr : &window->Window();
}

}  // namespace coregui
