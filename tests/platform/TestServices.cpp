// The profile, the clipboard, file copies and what the system tells.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <QApplication>
#include <QPalette>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <tuple>
#include <vector>

#include "platform/CString.h"
#include "platform/Clipboard.h"
#include "platform/FileCopy.h"
#include "platform/Keys.h"
#include "platform/MachineIdentity.h"
#include "platform/Profile.h"
#include "platform/System.h"
#include "tests/support/FolderTest.h"
#include "tests/support/FullDisk.h"
#include "tests/support/LogWatch.h"

namespace {

namespace fs = std::filesystem;
using coregui::CopyAnswer;
using coregui::CopyProgress;
using coregui::CopyReason;

class ProfileTest : public coregui::test::FolderTest {
 protected:
  ProfileTest() { SetUpProfile(m_profile); }
  void SetUpProfile(coregui::Profile& profile) const {
    profile.SetFolder(CString::FromUtf8(m_folder));
    profile.SetCompany(L"Fenwarrow");
    profile.SetName(L"Desk 8/1");
  }
  static constexpr const char* kFile = "Fenwarrow/Desk 8_1.ini";
  std::string Contents() const { return Read(kFile); }
  void WriteFile(const std::string& text) const {
    fs::create_directories(At("Fenwarrow"));
    Write(kFile, text);
  }

  coregui::Profile m_profile;
};

TEST_F(ProfileTest, EntriesAreKeptAcrossObjectsAndEveryTextComesBackAsItWas) {
  EXPECT_EQ(m_profile.GetInt(L"UnitTesting", L"PopupChoiceId", 7), 7);
  EXPECT_TRUE(m_profile.WriteInt(L"UnitTesting", L"PopupChoiceId", -5));
  EXPECT_TRUE(m_profile.WriteString(L"View", L"Title", L"L\u00E4nge = 5; # \"x\""));
  coregui::Profile other;
  SetUpProfile(other);
  EXPECT_EQ(other.GetInt(L"unittesting", L"POPUPCHOICEID", 0), -5);
  EXPECT_EQ(other.GetString(L"View", L"Title"), L"L\u00E4nge = 5; # \"x\"");
  EXPECT_EQ(other.GetPath(), Wide(kFile));
  for (const wchar_t* text :
       {L"", L" ", L" a ", L"\"", L"\"\"", L"\"a\"", L"a\nb\r\nc", L"\\", L" \\n\\", L"[x]", L"=", L"\t;#"}) {
    ASSERT_TRUE(m_profile.WriteString(L"S", L"E", text));
    EXPECT_EQ(m_profile.GetString(L"S", L"E", L"?"), text) << CString(text).ToUtf8();
  }
}

TEST_F(ProfileTest, HandEditedFilesKeepTheirLines) {
  WriteFile("[A]\nx=4294967295");
  EXPECT_EQ(m_profile.GetInt(L"A", L"x", 0), -1);
  WriteFile("; mine\nstray\n[A]\nx = 1\n\n[ B ]\ny=0x10\nz\n[A]\nx=2\n");
  EXPECT_EQ(m_profile.GetInt(L"A", L"X", 0), 1);
  EXPECT_EQ(m_profile.GetInt(L"b", L"y", 9), 0);
  EXPECT_EQ(m_profile.GetInt(L"B", L"z", 9), 9);
  EXPECT_TRUE(m_profile.WriteInt(L"A", L"new", 3));
  EXPECT_TRUE(m_profile.WriteInt(L"B", L"Y", 4));
  EXPECT_TRUE(m_profile.WriteInt(L"C", L"n", 5));
  EXPECT_EQ(Contents(), "; mine\nstray\n[A]\nx = 1\nnew=3\n\n[ B ]\nY=4\nz\n[A]\nx=2\n\n[C]\nn=5\n");
  EXPECT_TRUE(m_profile.WriteString(L"A", L"x", nullptr));
  EXPECT_TRUE(m_profile.WriteString(L"C", nullptr, nullptr));
  EXPECT_TRUE(m_profile.WriteString(L"none", nullptr, nullptr));
  EXPECT_EQ(Contents(), "; mine\nstray\n[A]\nnew=3\n\n[ B ]\nY=4\nz\n[A]\nx=2\n\n");
}

TEST_F(ProfileTest, NamesThatAFileCannotHoldAreRefused) {
  constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {
      {L"", L"e"}, {L"a]b", L"e"}, {L"a", L"e=f"}, {L"a", L";e"}, {L"a", L"e\nf"}};
  for (const auto& [section, entry] : rows) EXPECT_FALSE(m_profile.WriteInt(section, entry, 1));
  EXPECT_FALSE(Has(kFile));
}

TEST_F(ProfileTest, AnUnwritableFolderIsReportedOnceAndTheValuesLast) {
  Write("plain", "x");
  m_profile.SetFolder(Wide("plain"));
  coregui::test::ExpectLog(L"Unable to write profile " + CString::FromUtf8(m_folder).Str());
  EXPECT_FALSE(m_profile.WriteInt(L"U", L"n", 0x0706));
  EXPECT_FALSE(m_profile.WriteInt(L"U", L"n", 0x07));
  EXPECT_EQ(m_profile.GetInt(L"U", L"n", 0), 0x07);
  EXPECT_FALSE(m_profile.WriteString(L"U", L"n", nullptr));
  EXPECT_EQ(m_profile.GetInt(L"U", L"n", 3), 3);
  fs::remove(At("plain"));
  EXPECT_TRUE(m_profile.WriteInt(L"U", L"m", 1));
}

TEST(Clipboard, HoldsTextUntilItIsEmptied) {
  coregui::EmptyClipboard();
  CString text = L"before";
  EXPECT_FALSE(coregui::GetClipboardText(text));
  EXPECT_EQ(text, L"before");
  EXPECT_TRUE(coregui::SetClipboardText(L"a\tb\n\u00E4\U0001F600"));
  EXPECT_TRUE(coregui::GetClipboardText(text));
  EXPECT_EQ(text, L"a\tb\n\u00E4\U0001F600");
  coregui::EmptyClipboard();
  EXPECT_FALSE(coregui::GetClipboardText(text));
}

// --- Copies

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
  Write("empty", "");
  const std::string longest(255, 'n');
  ASSERT_TRUE(Copy("empty", longest.c_str()) && Has(longest));
  ASSERT_EQ(m_calls.size(), 2U);
  EXPECT_EQ(m_calls[1].reason, CopyReason::chunkFinished);
  EXPECT_EQ(m_calls[1].total, 0U);
}

TEST_F(FileCopyTest, WhatIsCancelledOrFailsLeavesTheOldFileAndNoTemporaryOne) {
  Write("a", std::string(900'000, 'x'));
  Write("b", "old");
  m_cancelAt = 2;
  EXPECT_FALSE(Copy("a", "b"));
  EXPECT_EQ(errno, ECANCELED);
  m_cancelAt = 0;
  const bool cancel = true;
  EXPECT_FALSE(Copy("a", "b", &cancel));
  EXPECT_EQ(errno, ECANCELED);
  {
    const coregui::test::FullDisk disk(300'000);
    EXPECT_FALSE(Copy("a", "b"));
    EXPECT_EQ(errno, EFBIG);
  }
  if (::truncate(At("a").c_str(), off_t{1} << 42) != 0) GTEST_SKIP() << "no sparse files here";
  ASSERT_LT(coregui::GetFreeDiskSpace(Wide("b")), std::uint64_t{1} << 42U);
  EXPECT_FALSE(Copy("a", "b"));
  EXPECT_EQ(errno, ENOSPC);
  EXPECT_TRUE(m_calls.empty()) << "known before anything is written";
  EXPECT_EQ(Read("b"), "old");
  EXPECT_EQ(Count(), 2U);
}

TEST_F(FileCopyTest, OnlyPlainFilesThatDifferAreCopiedAndLinksFollowedAtBothEnds) {
  Write("a", "x");
  fs::create_hard_link(At("a"), At("other name"));
  fs::create_directory(At("d"));
  ASSERT_EQ(::mkfifo(At("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
  constexpr std::tuple<const char*, const char*, int> rows[] = {
      {"missing", "b", ENOENT}, {"a", "a", EINVAL},    {"a", "other name", EINVAL}, {".", "b", EISDIR},
      {"a", "d", EISDIR},       {"pipe", "b", EINVAL}, {"a", "nowhere/b", ENOENT},  {"a", "pipe", EINVAL}};
  for (const auto& [from, to, reason] : rows) {
    EXPECT_FALSE(Copy(from, to)) << from << " to " << to;
    EXPECT_EQ(errno, reason) << from << " to " << to;
  }
  EXPECT_EQ(Read("a"), "x");
  EXPECT_EQ(Count(), 4U);
  Write("real", "old");
  fs::create_symlink(At("real"), At("to"));
  fs::create_symlink(At("a"), At("from"));
  ASSERT_TRUE(Copy("from", "to"));
  EXPECT_TRUE(fs::is_symlink(At("to")) && !fs::is_symlink(At("real")));
  EXPECT_EQ(Read("real"), "x");
}

// --- The system

TEST(SystemColours, FollowTheApplicationsPalette_AlsoAfterADarkTheme) {
  EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), RGB(0, 120, 215));
  const auto setBase = [](const QColor& base) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, base);
    QApplication::setPalette(palette);
  };
  setBase(QColor(1, 2, 3));
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(1, 2, 3));
  SetSysColor(COLOR_WINDOW, RGB(9, 9, 9));
  setBase(QColor(250, 250, 240));
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(9, 9, 9));
  ResetSysColors();
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(250, 250, 240));
  for (const int none : {-1, 27}) EXPECT_EQ(GetSysColor(none), 0U);
  for (int twice = 0; twice < 2; ++twice) SetDarkTheme(true);
  EXPECT_TRUE(IsDarkTheme());
  EXPECT_LT(GetRValue(GetSysColor(COLOR_WINDOW)), 64);
  EXPECT_GT(GetRValue(GetSysColor(COLOR_WINDOWTEXT)), 192);
  SetDarkTheme(false);
  EXPECT_FALSE(IsDarkTheme());
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(250, 250, 240)) << "the desktop's own";
  SetDarkTheme(true);
  setBase(QColor(240, 250, 250));
  for (const bool dark : {true, false}) SetDarkTheme(dark);
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), RGB(240, 250, 250)) << "a new one of the desktop's takes its place";
}

TEST(DpiScale, LengthsRoundAndNeverVanish) {
  SetDpiScale(1.25);
  for (const auto& [length, scaled] : {std::pair(2, 3), {-2, -3}, {0, 0}})
    EXPECT_EQ(ScaleByDpi(length), scaled);
  SetDpiScale(0.2);
  EXPECT_EQ(ScaleByDpi(1), 1);
  SetDpiScale(0);
  EXPECT_EQ(GetDpiScale(), 1.0);
}

TEST(KeyState, PressingTogglesTheLowBit) {
  EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
  for (const int toggled : {1, 0}) {
    for (int presses = 0; presses < 2; ++presses) {  // the second one repeats
      SetKeyState(VK_SHIFT, true);
      EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    }
    SetKeyState(VK_SHIFT, false);
    EXPECT_EQ(GetKeyState(VK_SHIFT), toggled);
  }
  SetKeyState(5000, true);
  EXPECT_EQ(GetKeyState(5000), 0);
}

TEST(Identity, SerialIsStableAndTheUserNameThatOfTheDesktop) {
  EXPECT_EQ(GetMachineSerial(), GetMachineSerial());
  EXPECT_EQ(coregui::SerialFromIdentity("a", "host"), 0xE40C292CU);
  EXPECT_EQ(coregui::SerialFromIdentity("", "a"), 0xE40C292CU);
  EXPECT_NE(coregui::SerialFromIdentity("", ""), 0U);
  coregui::SetUpUserName();
  EXPECT_STREQ(std::getenv("USERNAME"), "tester");
  setenv("USERNAME", "", 1);
  coregui::SetUpUserName();
  const std::string account = std::getenv("USERNAME");
  setenv("USERNAME", "tester", 1);
  EXPECT_FALSE(account.empty());
}

TEST(Cursors, TheLastOneShownIsReturned) {
  const HCURSOR arrow = LoadSystemCursor(SystemCursor::arrow);
  EXPECT_EQ(arrow, LoadSystemCursor(SystemCursor::arrow));
  SetCursor(arrow);
  EXPECT_EQ(SetCursor(LoadSystemCursor(SystemCursor::hand)), arrow);
  ShowWaitCursor(false);
  ShowWaitCursor(true);
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  ShowWaitCursor(false);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
