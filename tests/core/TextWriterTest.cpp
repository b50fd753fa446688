#include "core/TextWriter.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "tests/core/TemporaryFile.h"
#include "tests/support/FullDisk.h"

using coregui::TextWriter;
using coregui::test::FullDisk;
namespace fs = std::filesystem;

namespace {

std::ptrdiff_t FilesBeside(const TemporaryFile& file) {
  return std::distance(fs::directory_iterator(file.Folder()), fs::directory_iterator());
}

}  // namespace

TEST(TextWriter, TheOldFileStaysUntilCommit) {
  const TemporaryFile file("old");
  {
    TextWriter given;
    ASSERT_TRUE(given.Open(file.Path().c_str()));
    EXPECT_TRUE(given.WriteLine(L"given up"));
  }
  EXPECT_EQ(file.Bytes(), "old");
  TextWriter writer;
  ASSERT_TRUE(writer.Open(file.Path().c_str()));
  EXPECT_TRUE(writer.WriteLine(L"n\u00E4w"));
  EXPECT_TRUE(writer.WriteLine(L""));
  EXPECT_EQ(file.Bytes(), "old");
  EXPECT_TRUE(writer.Commit());
  EXPECT_EQ(file.Bytes(), "n\u00E4w\n\n");
  EXPECT_FALSE(writer.WriteLine(L"late"));
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(FilesBeside(file), 1);
}

TEST(TextWriter, AFullDiskLosesNothing) {
  const TemporaryFile file("old");
  const FullDisk disk(100'000);
  TextWriter writer;
  ASSERT_TRUE(writer.Open(file.Path().c_str()));
  for (int i = 0; i < 50'000; ++i) writer.WriteLine(L"0123456789");
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(errno, EFBIG);
  EXPECT_EQ(file.Bytes(), "old");
  EXPECT_EQ(FilesBeside(file), 1);
}

TEST(TextWriter, LinksAndAccessRightsSurvive) {
  const TemporaryFile file("old");
  const std::wstring link = file.Folder() + L"/link";
  fs::create_symlink(file.Path(), link);
  fs::permissions(file.Path(), fs::perms{0640});
  TextWriter writer;
  ASSERT_TRUE(writer.Open(link.c_str()));
  EXPECT_TRUE(writer.WriteLine(L"new") && writer.Commit());
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(file.Bytes(), "new\n");
  EXPECT_EQ(fs::status(file.Path()).permissions(), fs::perms{0640});
}

TEST(TextWriter, OpenRefusesWhatCannotBeReplaced) {
  const TemporaryFile file("old");
  TextWriter writer;
  EXPECT_FALSE(writer.Open(file.Folder().c_str()));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(writer.Open((file.Folder() + L"/none/x").c_str()));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(writer.Open(nullptr));
  EXPECT_EQ(FilesBeside(file), 1);
}
