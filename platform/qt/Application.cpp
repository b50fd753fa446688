#include "platform/qt/Application.h"

#include <QApplication>

namespace coregui {

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
  static int count = 1;
  static char name[] = "coregui";
  static char* arguments[] = {name, nullptr};
  // Never destroyed: at exit the toolkit's own statics, some younger than it, are gone before it could be.
  static auto* const application = new QApplication(count, arguments);
  return *application;
}

}  // namespace coregui
