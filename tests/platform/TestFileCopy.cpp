#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "platform/CString.h"
#include "platform/FileCopy.h"
#include "tests/support/FolderTest.h"
#include "tests/support/FullDisk.h"

namespace {

namespace fs = std::filesystem;
using coregui::CopyAnswer;
using coregui::CopyProgress;
using coregui::CopyReason;

class FileCopyTest : public coregui::test::FolderTest {
 protected:
  bool Copy(const char* from, const char* to, const bool* cancel = nullptr) {
    m_calls.clear();
    errno = 0;
    return coregui::CopyFileWithProgress(
        Wide(from), Wide(to),
        [this](const CopyProgress& p) {
          m_calls.push_back(p);
          return m_calls.size() == m_cancelAt ? CopyAnswer::cancel : CopyAnswer::proceed;
        },
        cancel);
  }
  std::vector<CopyProgress> m_calls;
  std::size_t m_cancelAt = 0;
};

TEST_F(FileCopyTest, ReportsTheStartAndEveryChunk) {
  const std::string bytes(600'000, 'x');
  Write("a", bytes);
  Write("b", "old and to be replaced");
  fs::permissions(At("a"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec);
  ASSERT_TRUE(Copy("a", "b"));
  EXPECT_EQ(Read("b"), bytes);
  EXPECT_EQ(fs::status(At("b")).permissions(), fs::status(At("a")).permissions());
  EXPECT_EQ(fs::last_write_time(At("b")), fs::last_write_time(At("a")));
  ASSERT_GE(m_calls.size(), 3U);
  EXPECT_EQ(m_calls.front().reason, CopyReason::started);
  EXPECT_EQ(m_calls.front().transferred, 0U);
  for (std::size_t i = 1; i < m_calls.size(); ++i) {
    EXPECT_EQ(m_calls[i].reason, CopyReason::chunkFinished);
    EXPECT_GT(m_calls[i].transferred, m_calls[i - 1].transferred);
    EXPECT_EQ(m_calls[i].total, bytes.size());
  }
  EXPECT_EQ(m_calls.back().transferred, bytes.size());
}

TEST_F(FileCopyTest, AnEmptyFileHasOneChunkUnderTheLongestNameToo) {
  Write("a", "");
  const std::string longest(255, 'n');
  ASSERT_TRUE(Copy("a", longest.c_str()));
  ASSERT_EQ(m_calls.size(), 2U);
  EXPECT_EQ(m_calls[1].reason, CopyReason::chunkFinished);
  EXPECT_EQ(m_calls[1].total, 0U);
  EXPECT_TRUE(fs::exists(At(longest)));
}

TEST_F(FileCopyTest, CancellingLeavesTheOldFile) {
  Write("a", std::string(900'000, 'x'));
  Write("b", "old");
  m_cancelAt = 2;
  EXPECT_FALSE(Copy("a", "b"));
  EXPECT_EQ(errno, ECANCELED);
  m_cancelAt = 0;
  const bool cancel = true;
  EXPECT_FALSE(Copy("a", "b", &cancel));
  EXPECT_EQ(errno, ECANCELED);
  EXPECT_EQ(Read("b"), "old");
  EXPECT_EQ(Count(), 2U);
}

TEST_F(FileCopyTest, AFailedWriteLeavesTheOldFileAndNoTemporaryOne) {
  Write("a", std::string(900'000, 'x'));
  Write("b", "old");
  {
    const coregui::test::FullDisk disk(300'000);
    EXPECT_FALSE(Copy("a", "b"));
    EXPECT_EQ(errno, EFBIG);
  }
  EXPECT_EQ(Read("b"), "old");
  EXPECT_EQ(Count(), 2U);
}

TEST_F(FileCopyTest, TooLittleRoomIsKnownBeforeAnythingIsWritten) {
  Write("a", "x");
  if (::truncate(At("a").c_str(), off_t{1} << 42) != 0) GTEST_SKIP() << "no sparse files here";
  ASSERT_LT(coregui::GetFreeDiskSpace(Wide("b")), std::uint64_t{1} << 42U);
  EXPECT_FALSE(Copy("a", "b"));
  EXPECT_EQ(errno, ENOSPC);
  EXPECT_TRUE(m_calls.empty());
  EXPECT_EQ(Count(), 1U);
}

TEST_F(FileCopyTest, OnlyPlainFilesThatDifferAreCopied) {
  Write("a", "x");
  fs::create_hard_link(At("a"), At("other name"));
  fs::create_directory(At("d"));
  ASSERT_EQ(::mkfifo(At("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
  struct Row {
    const char* from;
    const char* to;
    int reason;
  };
  constexpr Row rows[] = {{"missing", "b", ENOENT},   {"a", "a", EINVAL},   {"a", "other name", EINVAL},
                          {".", "b", EISDIR},         {"a", "d", EISDIR},   {"pipe", "b", EINVAL},
                          {"a", "nowhere/b", ENOENT}, {"a", "pipe", EINVAL}};
  for (const Row& row : rows) {
    EXPECT_FALSE(Copy(row.from, row.to)) << row.from << " to " << row.to;
    EXPECT_EQ(errno, row.reason) << row.from << " to " << row.to;
  }
  EXPECT_EQ(Read("a"), "x");
  EXPECT_EQ(Count(), 4U);
}

TEST_F(FileCopyTest, LinksAreFollowedAtBothEnds) {
  Write("a", "new");
  Write("real", "old");
  fs::create_symlink(At("real"), At("to"));
  fs::create_symlink(At("a"), At("from"));
  ASSERT_TRUE(Copy("from", "to"));
  EXPECT_TRUE(fs::is_symlink(At("to")));
  EXPECT_FALSE(fs::is_symlink(At("real")));
  EXPECT_EQ(Read("real"), "new");
}

}  // namespace
