#include "tests/support/LogWatch.h"

#include <QLoggingCategory>
#include <QString>
#include <algorithm>
#include <mutex>

#include "core/Status.h"
#include "core/Utf8.h"

namespace coregui::test {
namespace {

struct Log {
  std::mutex mutex;
  std::vector<std::wstring> lines;     ///< that nobody announced
  std::vector<std::wstring> expected;  ///< announced, not yet seen
};

Log& TheLog() {
  static Log log;
  return log;
}

void NoteToolkitMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  // What the headless display cannot do (raise, grab) is no fault of the code that asks for it.
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  if (type != QtDebugMsg && type != QtInfoMsg) NoteLogLine(message.toStdWString());
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "fatal: %s\n", message.toUtf8().constData());
  }
}

}  // namespace

void ExpectLog(std::wstring part) {
  const std::lock_guard lock(TheLog().mutex);
  TheLog().expected.push_back(std::move(part));
}

std::vector<std::wstring> TakeLog() {
  const std::lock_guard lock(TheLog().mutex);
  return std::exchange(TheLog().lines, {});
}

void NoteLogLine(std::wstring line) {
  const std::lock_guard lock(TheLog().mutex);
  auto& expected = TheLog().expected;
  const auto announced = std::find_if(expected.begin(), expected.end(), [&](const std::wstring& part) {
    return line.find(part) != std::wstring::npos;
  });
  if (announced != expected.end()) {
    expected.erase(announced);
  } else {
    TheLog().lines.push_back(std::move(line));
  }
}

std::string CloseLog() {
  const std::lock_guard lock(TheLog().mutex);
  std::string faults;
  for (const auto& line : TheLog().lines) faults += "unexpected log line: " + ToUtf8(line) + "\n";
  for (const auto& part : TheLog().expected) faults += "missing log line: " + ToUtf8(part) + "\n";
  TheLog().lines.clear();
  TheLog().expected.clear();
  return faults;
}

void InstallLogWatch() {
  qInstallMessageHandler(NoteToolkitMessage);
  SetStatusSink(NoteLogLine);
}

}  // namespace coregui::test
