#include "platform/qt/Application.h"

#include <QApplication>
#include <memory>

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
  static const std::unique_ptr<QApplication> application = std::make_unique<QApplication>(count, arguments);
  return *application;
}

}  // namespace coregui
