#include "platform/WindowRegistry.h"

#include <cstdint>
#include <cstdlib>
#include <map>
#include <set>
#include <typeindex>
#include <typeinfo>

#include "platform/CWnd.h"

namespace coregui {
namespace {

std::map<std::uintptr_t, CWnd*>& Windows() {
  // Never destroyed: a program's own statics, an application object with its windows say, outlive it at the
  // exit.
  static auto& windows = *new std::map<std::uintptr_t, CWnd*>;
  return windows;
}

}  // namespace

HWND RegisterWindow(CWnd* window) {
  static std::uintptr_t last = 0x10000;
  last += 2;
  Windows().emplace(last, window);
  return reinterpret_cast<HWND>(last);
}

void DestroyBeforeExit(const CWnd& window) {
  // What is registered last is called first, and tables register themselves as they are made, one for each
  // class.
  static auto& known = *new std::set<std::type_index>;
  if (!known.insert(typeid(window)).second) return;
  std::atexit([] {
    for (const WindowRef& left : RegisteredWindows()) {
      if (CWnd* alive = left.Get()) alive->DestroyWindow();
    }
  });
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
