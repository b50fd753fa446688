#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/CString.h"
#include "tests/support/TestEnvironment.h"

namespace coregui::test {

/// A test with an empty folder of its own.
class FolderTest : public testing::Test {
 protected:
  FolderTest() { std::filesystem::create_directories(m_folder); }
  ~FolderTest() override { std::filesystem::remove_all(m_folder); }
  /// The path of a name in the folder.
  std::string At(const std::string& name) const { return m_folder + "/" + name; }
  CString Wide(const std::string& name) const { return CString::FromUtf8(At(name)); }
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(At(name), std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(At(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  bool Has(const std::string& name) const { return std::filesystem::exists(At(name)); }
  /// How many files and folders lie in the folder, or in one below it.
  std::size_t Count(const std::string& below = "") const {
    const std::filesystem::directory_iterator first(At(below));
    return static_cast<std::size_t>(std::distance(first, std::filesystem::directory_iterator()));
  }

  const std::string m_folder = ScratchFolder() + "/folder";
};

}  // namespace coregui::test
