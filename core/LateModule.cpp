#include "core/LateModule.h"

#include <dlfcn.h>

#include <string>

#include "core/Status.h"
#include "core/Utf8.h"

namespace coregui {

void* LateFunction(const char* module, const char* function) {
  // The loader itself knows where this code was loaded from, however the program was started and wherever it
  // works now: a program's own name may be one that was found in PATH, or a path from a folder left since.
  std::string file = "$ORIGIN/" COREGUI_MODULE_FOLDER "/";
  file.append(module).append(".so");
  void* loaded = dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
  void* found = loaded == nullptr ? nullptr : dlsym(loaded, function);
  if (found == nullptr) {
    const char* reason = dlerror();
    coreStatusOut(FromUtf8(reason == nullptr ? file : reason).c_str());
  }
  return found;
}

}  // namespace coregui
