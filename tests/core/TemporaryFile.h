#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "core/Utf8.h"

/// A file in a folder of its own, both gone when this object is.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string_view bytes) : TemporaryFile() {
    std::ofstream(m_path, std::ios::binary) << bytes;
  }
  TemporaryFile() {
    std::string pattern = (std::filesystem::temp_directory_path() / "coregui-XXXXXX").string();
    m_path = std::filesystem::path(::mkdtemp(pattern.data())) / "a file.txt";
  }
  ~TemporaryFile() { std::filesystem::remove_all(m_path.parent_path()); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  std::wstring Path() const { return coregui::FromUtf8(m_path.string()); }
  std::wstring Folder() const { return coregui::FromUtf8(m_path.parent_path().string()); }
  bool Exists() const { return std::filesystem::exists(m_path); }
  std::string Bytes() const {
    std::ostringstream bytes;
    bytes << std::ifstream(m_path, std::ios::binary).rdbuf();
    return bytes.str();
  }

 private:
  std::filesystem::path m_path;
};
