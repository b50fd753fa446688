#include "platform/qt/Application.h"

#include <QApplication>

namespace coregui {
namespace {

QtMessageHandler& NextHandler() {
  static QtMessageHandler next = nullptr;
  return next;
}

/// Leaves out what the toolkit says of a machine without a desktop, where all works none the less: that it
/// looks for sockets in a folder of its own, that windows have no order.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) &&
      !message.startsWith(QLatin1String("This plugin does not support"))) {
    NextHandler()(type, context, message);
  }
}

}  // namespace

QApplication& EnsureApplication() {
  if (auto* existing = qobject_cast<QApplication*>(QCoreApplication::instance())) {
    return *existing;
  }
#ifdef Q_OS_LINUX
  const auto isUnset = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
  if (isUnset("DISPLAY") && isUnset("WAYLAND_DISPLAY") && isUnset("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
#endif
  NextHandler() = qInstallMessageHandler(HandleMessage);
  static int count = 1;
  static char name[] = "coregui";
  static char* arguments[] = {name, nullptr};
  // Never destroyed: at exit the toolkit's own statics, some younger than it, are gone before it could be.
  static auto* const application = new QApplication(count, arguments);
  return *application;
}

}  // namespace coregui
