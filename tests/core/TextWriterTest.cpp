#include "core/TextWriter.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "tests/support/FolderTest.h"
#include "tests/support/FullDisk.h"

namespace {

namespace fs = std::filesystem;

class TextWriter : public coregui::test::FolderTest {
 protected:
  TextWriter() { Write("a", "old"); }
  coregui::TextWriter writer;
};

TEST_F(TextWriter, TheOldFileStaysUntilCommit) {
  {
    coregui::TextWriter given;
    ASSERT_TRUE(given.Open(Wide("a")));
    EXPECT_TRUE(given.WriteLine(L"given up"));
  }
  ASSERT_TRUE(writer.Open(Wide("a")));
  EXPECT_TRUE(writer.WriteLine(L"n\u00E4w"));
  EXPECT_TRUE(writer.WriteLine(L""));
  EXPECT_EQ(Read("a"), "old");
  EXPECT_TRUE(writer.Commit());
  EXPECT_EQ(Read("a"), "n\u00E4w\n\n");
  EXPECT_FALSE(writer.WriteLine(L"late"));
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(Count(), 1U);
}

TEST_F(TextWriter, AFullDiskLosesNothing) {
  const coregui::test::FullDisk disk(100'000);
  ASSERT_TRUE(writer.Open(Wide("a")));
  for (int i = 0; i < 50'000; ++i) writer.WriteLine(L"0123456789");
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(errno, EFBIG);
  EXPECT_EQ(Read("a"), "old");
  EXPECT_EQ(Count(), 1U);
}

TEST_F(TextWriter, LinksAndAccessRightsSurvive) {
  fs::create_symlink(At("a"), At("link"));
  fs::permissions(At("a"), fs::perms{0640});
  ASSERT_TRUE(writer.Open(Wide("link")));
  EXPECT_TRUE(writer.WriteLine(L"new") && writer.Commit());
  EXPECT_TRUE(fs::is_symlink(At("link")));
  EXPECT_EQ(Read("a"), "new\n");
  EXPECT_EQ(fs::status(At("a")).permissions(), fs::perms{0640});
}

TEST_F(TextWriter, OpenRefusesWhatCannotBeReplaced) {
  EXPECT_FALSE(writer.Open(Wide("")));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(writer.Open(Wide("none/x")));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(writer.Open(nullptr));
  EXPECT_EQ(Count(), 1U);
}

}  // namespace
