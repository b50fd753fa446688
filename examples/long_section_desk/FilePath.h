#pragma once

#include <filesystem>
#include <string>

#include "coregui/coregui.h"

namespace desk {

// A path and its text. File names are UTF-8 whatever the process's locale is, and bytes that are not are kept
// as they are: the standard library's own conversion throws where the locale knows no such letters.

inline std::filesystem::path ToPath(const std::wstring& text) {
  return coregui::ToFileName(text);
}

inline std::wstring FromPath(const std::filesystem::path& path) {
  return coregui::FromFileName(path.string());
}

}  // namespace desk
