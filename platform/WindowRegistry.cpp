#include "platform/WindowRegistry.h"

#include <cstdint>
#include <map>

namespace coregui {
namespace {

std::map<std::uintptr_t, CWnd*>& Windows() {
  static std::map<std::uintptr_t, CWnd*> windows;
  return windows;
}

}  // namespace

HWND RegisterWindow(CWnd* window) {
  static std::uintptr_t last = 0x10000;
  last += 2;
  Windows().emplace(last, window);
  return reinterpret_cast<HWND>(last);
}

void UnregisterWindow(HWND handle) {
  Windows().erase(reinterpret_cast<std::uintptr_t>(handle));
}

CWnd* FindWindowOf(HWND handle) {
  const auto found = Windows().find(reinterpret_cast<std::uintptr_t>(handle));
  return found == Windows().end() ? nullptr : found->second;
}

std::vector<WindowRef> RegisteredWindows() {
  std::vector<WindowRef> windows;
  for (const auto& [handle, window] : Windows()) {
    windows.emplace_back(window);
  }
  return windows;
}

}  // namespace coregui
