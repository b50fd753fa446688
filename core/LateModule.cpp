#include "core/LateModule.h"

#include <dlfcn.h>
#include <link.h>

#include <array>
#include <climits>
#include <filesystem>
#include <string>

#include "core/Status.h"
#include "core/Utf8.h"

namespace coregui {
namespace {

/// Where this code was loaded from. A program's own name tells nothing: it may be one that was found in PATH,
/// or a path from a folder that was left since. Kept: no "$ORIGIN" for the loader, which takes it for the
/// folder of who calls it, and a sanitizer stands between.
std::filesystem::path FolderOfLibrary() {
  static const char here = 0;
  Dl_info library{};
  link_map* map = nullptr;
  if (dladdr1(&here, &library, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0) return {};
  std::error_code error;
  if (map->l_name[0] == '\0') return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  std::array<char, PATH_MAX> folder{};
  return dlinfo(map, RTLD_DI_ORIGIN, folder.data()) == 0 ? folder.data() : "";
}

}  // namespace

void* LateFunction(const char* module, const char* function) {
  std::string file = FolderOfLibrary() / COREGUI_MODULE_FOLDER / module;
  file.append(".so");
  void* loaded = dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* found = loaded == nullptr ? nullptr : dlsym(loaded, function);
  if (found == nullptr) {
    const char* reason = dlerror();
    coreStatusOut(FromUtf8(reason == nullptr ? file : reason).c_str());
  }
  return found;
}

}  // namespace coregui
