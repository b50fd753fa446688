#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/Clipboard.h"
#include "platform/KeyState.h"
#include "platform/Locale.h"
#include "platform/Profile.h"
#include "platform/System.h"

namespace coregui::test {
namespace {

std::unique_ptr<QTemporaryDir>& Folder() {
  static std::unique_ptr<QTemporaryDir> folder;
  return folder;
}

/// The light palette that pixels in tests are checked against.
QPalette LightPalette() {
  QPalette palette(QColor(240, 240, 240), QColor(240, 240, 240));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0, 120, 215));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

}  // namespace

void FixEnvironment() {
  Folder() = std::make_unique<QTemporaryDir>();
  if (!Folder()->isValid()) std::abort();
  const QByteArray home = Folder()->path().toUtf8();
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home);
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("LANGUAGE", "");
  qputenv("TZ", "UTC");
  const QByteArray scale = qgetenv("COREGUI_TEST_SCALE");
  qputenv("QT_SCALE_FACTOR", scale.isEmpty() ? QByteArray("1") : scale);
  qputenv("QT_FONT_DPI", "96");
  qputenv("QT_STYLE_OVERRIDE", "Fusion");
  qputenv("QT_QPA_PLATFORMTHEME", "generic");
  qputenv("USERNAME", "tester");
}

void FixLook() {
  if (QApplication::style()->name() != QLatin1String("fusion")) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
  }
  SetDarkTheme(false);
  if (QApplication::palette() != LightPalette()) QApplication::setPalette(LightPalette());
  QApplication::setFont(QFont("DejaVu Sans", 9));
}

void ResetGlobalState() {
  SetUserLocale(L"en_US");
  SetSleepHook(nullptr);
  std::remove(Profile::Get().GetPath().ToUtf8().c_str());
  Profile::Get().SetFolder(L"");
  Profile::Get().SetCompany(L"");
  Profile::Get().SetName(L"");
  SetDpiScale(0.0);
  ResetKeyState();
  ResetSysColors();
  EmptyClipboard();
  FixLook();
}

const std::string& ScratchFolder() {
  static const std::string path = Folder()->path().toStdString();
  return path;
}

}  // namespace coregui::test
