#include "dialogs/LockFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <cstdlib>
#include <filesystem>

#include "platform/Profile.h"
#include "platform/System.h"
#include "tests/support/FolderTest.h"
#include "tests/support/FullDisk.h"
#include "tests/support/LogWatch.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/ShownWindow.h"

namespace {

namespace fs = std::filesystem;
using namespace coregui::test;

class LockFileTest : public FolderTest {
 protected:
  ~LockFileTest() override { ::setenv("USERNAME", "tester", 1); }
  void WriteLock(const std::string& bytes) const { Write("a survey.lck", bytes); }
  std::string Lock() const { return Read("a survey.lck"); }
  bool Check(bool checkOnly = true) const { return coreCheckLockStatus(m_data, L"lck", checkOnly, nullptr); }
  bool Release() const { return coreReleaseLock(m_data, L"lck"); }
  void ExpectNotMade(const char* data) const {
    ExpectLog(L"... Unable to create lock file");
    EXPECT_FALSE(coreCheckLockStatus(Wide(data), L"lck", false, nullptr));
  }
  static std::string Serial() { return CString::Formatted(L"%X", GetMachineSerial()).ToUtf8(); }

  const std::string m_lock = At("a survey.lck");
  const CString m_data = Wide("a survey.csv");
};

TEST_F(LockFileTest, ALockIsTakenToTheByteAndGivenBack) {
  const NoWindow none;
  EXPECT_TRUE(Check());
  EXPECT_FALSE(fs::exists(m_lock));
  EXPECT_TRUE(Check(false));
  EXPECT_EQ(Lock(), "tester," + Serial() + "\n");
  EXPECT_TRUE(Check());
  EXPECT_TRUE(Check(false));
  CString user;
  bool own = false;
  EXPECT_TRUE(coreGetLockHolder(m_data, L".lck", user, &own));
  EXPECT_EQ(user, L"tester");
  EXPECT_TRUE(own);
  EXPECT_TRUE(Release());
  EXPECT_FALSE(fs::exists(m_lock));
  EXPECT_TRUE(Release());
  EXPECT_FALSE(coreGetLockHolder(m_data, L"lck", user));
}

TEST_F(LockFileTest, TheUserNameHasAStandInAndALimit) {
  for (const std::string& name : {std::string(), std::string(255, 'n')}) {
    ::setenv("USERNAME", name.c_str(), 1);
    EXPECT_TRUE(Check(false));
    EXPECT_EQ(Lock(),
              name.empty() ? "Unknown User," + Serial() + "\n" : name + "," + Serial().substr(0, 4) + "\n");
    fs::remove(m_lock);
  }
}

TEST_F(LockFileTest, WhoseLockItIs) {
  const std::string serial = Serial();
  const std::tuple<std::string, bool, CString> rows[] = {
      {"tester", true, L"tester"},
      {"Tester", false, L"Tester"},
      {"tester,0", true, L"tester"},
      {"tester,", false, L"tester"},
      {"tester,00", false, L"tester"},
      {"somebody," + serial + ",more\r\nlines", true, L"somebody"},
      {"somebody, " + serial, false, L"somebody"},
      {"", false, L""},
      {"\n\n\n", false, L""},
      {"," + serial, true, L""},
      {"J\xC3\xBCrg\n", false, L"J\u00fcrg"},
      {std::string(300, 'x'), false, CString(L'x', 256)}};
  for (const auto& [bytes, own, holder] : rows) {
    SCOPED_TRACE(bytes);
    WriteLock(bytes);
    EXPECT_EQ(Check(), own);
    CString user;
    bool isOwn = !own;
    EXPECT_TRUE(coreGetLockHolder(m_data, L"lck", user, &isOwn));
    EXPECT_EQ(isOwn, own);
    EXPECT_EQ(user, holder);
    EXPECT_EQ(Release(), own);
    EXPECT_EQ(fs::exists(m_lock), !own);
  }
}

TEST_F(LockFileTest, SomeoneElsesLockIsToldUnlessOnlyChecked) {
  WriteLock("100%s,1234ABCD");
  EXPECT_EQ(Told([this] { EXPECT_FALSE(Check(false)); }),
            "Error (stop): Data file " + m_data.ToUtf8() + "\nis marked as read-only.\nIn use by 100%s");
  EXPECT_EQ(Lock(), "100%s,1234ABCD");
  const NoWindow none;
  EXPECT_FALSE(Check());
}

TEST_F(LockFileTest, HostileLockFilesAreReadWithinTheLimits) {
  WriteLock(std::string(10'000'000, 'x'));  // NOLINT(bugprone-string-constructor): ten megabytes are meant
  ExpectLog(L"1024");
  EXPECT_FALSE(Check());
  WriteLock(std::string("tes\0ter\xFF\xFE\x01", 10));
  EXPECT_FALSE(Check());
  EXPECT_FALSE(TakeLog().empty());
}

TEST_F(LockFileTest, WhatCannotBeMadeOrReadGoesToTheStatusOutput) {
  const NoWindow none;
  EXPECT_TRUE(coreCheckLockStatus(Wide("no folder/a.csv"), L"lck", true, nullptr));
  ExpectNotMade("no folder/a.csv");
  fs::create_directory(m_lock);  // a folder is no lock file, and none can be made in its place
  ExpectNotMade("a survey.csv");
}

TEST_F(LockFileTest, AFullDiskLeavesNoLockOfNobody) {
  const FullDisk disk(0);
  ExpectNotMade("a survey.csv");
  EXPECT_FALSE(fs::exists(m_lock));
}

TEST_F(LockFileTest, AnUnreadableLockRefuses) {
  WriteLock("tester");
  for (const int rights : {0400, 0}) {  // the lock is opened for writing, too
    fs::permissions(m_lock, fs::perms(rights));
    const OrdinaryUser user;
    for (int i = 0; i < 3; ++i) ExpectLog(L"... Enable to read lock file");
    EXPECT_FALSE(Check(false) || Check(true) || Release());
  }
}

TEST_F(LockFileTest, InAReadOnlyFolderNoLockIsTakenOrGivenBack) {
  WriteLock("tester");
  fs::permissions(m_lock, fs::perms(0666));
  fs::permissions(m_folder, fs::perms(0555));
  {
    const OrdinaryUser user;
    EXPECT_TRUE(Check(false));  // one's own is read all the same
    ExpectLog(L"cannot be removed: Permission denied");
    EXPECT_FALSE(Release());
    ExpectNotMade("other.csv");
  }
  fs::permissions(m_folder, fs::perms::owner_all);
}

TEST_F(LockFileTest, OnlyThe260FirstCharactersOfThePathAreUsedIsKept) {
  const std::string shown = At(std::string(260 - At("").size() - 2, 'n') + ".c");
  fs::path lock = shown;
  if (lock.filename().string().size() > 250) GTEST_SKIP() << "file names are too short here for such a path";
  ExpectLog(L"260 characters");
  EXPECT_TRUE(coreCheckLockStatus(CString::FromUtf8(shown + "sv"), L"lck", false, nullptr));
  EXPECT_TRUE(fs::exists(lock.replace_extension("lck")));
}

}  // namespace
