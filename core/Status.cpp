#include "core/Status.h"

#include <cstdio>
#include <memory>
#include <utility>

#include "core/Utf8.h"

namespace {

coregui::StatusSink& CurrentSink() {
  // Never destroyed: what goes at the exit of a program may still have something to say.
  static auto& sink = *std::make_unique<coregui::StatusSink>().release();
  return sink;
}

void WriteToErrorStream(const std::wstring& line) {
  const std::string bytes = coregui::ToUtf8(line) + '\n';
  std::fwrite(bytes.data(), 1, bytes.size(), stderr);
}

/// Marks that a sink is at work, also when it leaves by an exception.
struct Running {
  Running() { ++depth; }
  ~Running() { --depth; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  static inline int depth = 0;
};

}  // namespace

void coreStatusOut(const wchar_t* text) {
  const std::wstring line = text == nullptr ? L"" : text;
  if (!CurrentSink() || Running::depth > 0) {
    WriteToErrorStream(line);
    return;
  }
  const coregui::StatusSink sink = CurrentSink();  // kept alive, should it replace itself
  const Running running;
  sink(line);
}

coregui::StatusSink coregui::SetStatusSink(StatusSink sink) {
  return std::exchange(CurrentSink(), std::move(sink));
}
