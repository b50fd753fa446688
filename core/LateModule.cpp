#include "core/LateModule.h"

#include <dlfcn.h>

#include <string>

#include "core/Status.h"
#include "core/Utf8.h"

namespace coregui {
namespace {

/// Where this code was loaded from, with the separator at the end.
std::string FolderOfLibrary() {
  static const char here = 0;
  Dl_info library{};
  if (dladdr(&here, &library) == 0 || library.dli_fname == nullptr) return {};
  std::string file = library.dli_fname;
  return file.erase(file.rfind('/') + 1);
}

}  // namespace

void* LateFunction(const char* module, const char* function) {
  std::string file = FolderOfLibrary();
  file.append(COREGUI_MODULE_FOLDER "/").append(module).append(".so");
  void* loaded = dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* found = loaded == nullptr ? nullptr : dlsym(loaded, function);
  if (found == nullptr) {
    const char* reason = dlerror();
    coreStatusOut(FromUtf8(reason == nullptr ? file : reason).c_str());
  }
  return found;
}

}  // namespace coregui
