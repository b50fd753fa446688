#include <gtest/gtest.h>

#include <filesystem>

#include "platform/Clipboard.h"
#include "platform/Profile.h"
#include "tests/support/FolderTest.h"
#include "tests/support/LogWatch.h"

namespace {

namespace fs = std::filesystem;

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

TEST_F(ProfileTest, WhatAnotherProgramWritesIsSeenAndNamesThatAFileCannotHoldAreRefused) {
  constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {
      {L"", L"e"}, {L"a]b", L"e"}, {L"a", L"e=f"}, {L"a", L";e"}, {L"a", L"e\nf"}};
  for (const auto& [section, entry] : rows) EXPECT_FALSE(m_profile.WriteInt(section, entry, 1));
  EXPECT_FALSE(Has(kFile));
  for (const auto& [text, number] : {std::pair("1", 1), std::pair("4294967295", -1)}) {
    WriteFile(std::string("[U]\nn=") + text);
    EXPECT_EQ(m_profile.GetInt(L"U", L"n", 0), number);
  }
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

}  // namespace
