#pragma once

#include <filesystem>
#include <string>

#include "coregui/coregui.h"

namespace desk {

// A path and its text. File names are UTF-8 whatever the process's locale is: the standard library's own
// conversion throws where the locale knows no such letters.

inline std::filesystem::path ToPath(const std::wstring& text) {
  return CString(text).ToUtf8();
}

inline std::wstring FromPath(const std::filesystem::path& path) {
  return CString::FromUtf8(path.string()).Str();
}

}  // namespace desk
