#include "platform/FileDrop.h"

#include <algorithm>
#include <memory>

#include "platform/DroppedFiles.h"
#include "platform/WindowRef.h"

struct coregui_dropped_files {
  coregui::WindowRef window;  ///< that was told of them
  std::vector<CString> files;
};

namespace {

std::vector<std::unique_ptr<coregui_dropped_files>>& Drops() {
  static auto& drops =
      *new std::vector<std::unique_ptr<coregui_dropped_files>>;  // never destroyed: see WindowRegistry.cpp
  return drops;
}

}  // namespace

namespace coregui {

void DropFiles(CWnd& window, std::vector<CString> files) {
  // A window that went before it was told gives nothing back.
  std::erase_if(Drops(), [](const auto& drop) { return !drop->window; });
  Drops().push_back(
      std::make_unique<coregui_dropped_files>(coregui_dropped_files{WindowRef(&window), std::move(files)}));
  window.PostMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(Drops().back().get()));
}

}  // namespace coregui

UINT DragQueryFile(HDROP drop, UINT index, wchar_t* path, UINT size) {
  const auto known =
      std::find_if(Drops().begin(), Drops().end(), [drop](const auto& each) { return each.get() == drop; });
  if (known == Drops().end()) {
    return 0;
  }
  const std::vector<CString>& files = (*known)->files;
  if (index == DRAG_COUNT) {
    return static_cast<UINT>(files.size());
  }
  if (index >= files.size() || (path != nullptr && size == 0)) {
    return 0;
  }
  const auto length = static_cast<UINT>(files[index].GetLength());
  if (path == nullptr) {
    return length;
  }
  const UINT copied = std::min(length, size - 1);
  std::copy_n(files[index].GetString(), copied, path);
  path[copied] = L'\0';
  return copied;
}

void DragFinish(HDROP drop) {
  std::erase_if(Drops(), [drop](const auto& each) { return each.get() == drop; });
}
