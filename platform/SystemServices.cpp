#include <cerrno>
#include <chrono>
#include <map>
#include <system_error>
#include <thread>

#include "platform/Sound.h"
#include "platform/System.h"

namespace {

void (*g_sleepHook)(UINT milliseconds) = nullptr;

std::map<UINT, int>& BeepCounts() {
  static std::map<UINT, int> counts;
  return counts;
}

}  // namespace

void MessageBeep(UINT sound) {
  ++BeepCounts()[sound];
  coregui::PlayBeep();
}

int GetBeepCount(UINT sound) {
  return BeepCounts()[sound];
}

void Sleep(UINT milliseconds) {
  if (g_sleepHook != nullptr) {
    g_sleepHook(milliseconds);
  } else {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
}

void SetSleepHook(void (*hook)(UINT milliseconds)) {
  g_sleepHook = hook;
}

std::uint64_t GetTickCount64() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
}

DWORD GetLastError() {
  return static_cast<DWORD>(errno);
}

void SetLastError(DWORD error) {
  errno = static_cast<int>(error);
}

CString GetErrorText(DWORD error) {
  return CString::FromUtf8(std::generic_category().message(static_cast<int>(error)));
}
