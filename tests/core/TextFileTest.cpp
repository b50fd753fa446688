#include "core/TextFile.h"

#include <gtest/gtest.h>

#include "tests/core/TemporaryFile.h"

using coregui::CoreFilePtr;

namespace {

CoreFilePtr Open(const TemporaryFile& file, const wchar_t* mode) {
  return CoreFilePtr(coreFileOpen(file.Path().c_str(), mode));
}

std::wstring Read(const CoreFilePtr& file) {
  std::wstring line;
  return coreFileTxtRead(file.get(), line, 1024) ? line : L"(end)";
}

}  // namespace

TEST(TextFile, WrittenLinesReadBackInEveryReadingMode) {
  const TemporaryFile file;
  CoreFilePtr writer = Open(file, L"w+t");
  ASSERT_TRUE(writer);
  EXPECT_TRUE(coreFileTxtWrite(writer.get(), L"12,5 \u00E4\u20AC\U0001D11E"));
  EXPECT_TRUE(coreFileTxtWrite(writer.get(), L""));
  EXPECT_EQ(coreFileLength(writer.get()), 16U);
  EXPECT_TRUE(coreFileClose(writer.release()));
  EXPECT_EQ(file.Bytes(), "12,5 \u00E4\u20AC\U0001D11E\n\n");
  for (const wchar_t* mode : {L"rt", L"rb", L"r+t"}) {
    const CoreFilePtr reader = Open(file, mode);
    EXPECT_EQ(Read(reader), L"12,5 \u00E4\u20AC\U0001D11E");
    EXPECT_EQ(Read(reader), L"");
    EXPECT_EQ(Read(reader), L"(end)");
  }
}

TEST(TextFile, ReadingAndWritingTakeTurnsAtOnePlace) {
  const TemporaryFile file("one\ntwo\nsix\n");
  const CoreFilePtr both = Open(file, L"r+t");
  EXPECT_EQ(Read(both), L"one");
  EXPECT_TRUE(coreFileTxtWrite(both.get(), L"2nd"));
  EXPECT_EQ(Read(both), L"six");
  EXPECT_TRUE(coreFileTxtWrite(both.get(), L"end"));
  EXPECT_EQ(Read(both), L"(end)");
  EXPECT_EQ(file.Bytes(), "one\n2nd\nsix\nend\n");
}

TEST(TextFile, WriteFailuresAreKnownAtOnce) {
  const TemporaryFile file(
      "\xFF\xFE"
      "a");
  EXPECT_FALSE(coreFileTxtWrite(Open(file, L"rt").get(), L"x"));
  EXPECT_FALSE(coreFileTxtWrite(Open(file, L"r+t").get(), L"UTF-8 into UTF-16"));
  EXPECT_EQ(file.Bytes(),
            "\xFF\xFE"
            "a");
  const CoreFilePtr full(coreFileOpen(L"/dev/full", L"w+t"));
  ASSERT_TRUE(full);
  EXPECT_FALSE(coreFileTxtWrite(full.get(), L"x"));
}

TEST(TextFile, OpenRefusesWhatCannotServe) {
  const TemporaryFile file("kept");
  for (const wchar_t* mode : {L"", L"x", L"wx", L"a", L"rtt"}) EXPECT_FALSE(Open(file, mode)) << mode;
  EXPECT_FALSE(coreFileOpen(file.Path().c_str(), nullptr));
  EXPECT_FALSE(coreFileOpen(nullptr, L"rt"));
  for (const wchar_t* mode : {L"rt", L"r+t", L"w+t"})
    EXPECT_FALSE(coreFileOpen(file.Folder().c_str(), mode)) << mode;
  EXPECT_FALSE(coreFileOpen((file.Folder() + L"/none/x").c_str(), L"w+t"));
  EXPECT_FALSE(coreFileOpen(L"/dev/zero", L"rt"));
  EXPECT_EQ(file.Bytes(), "kept");
}

TEST(TextFile, AFolderIsNoExistingFile) {
  const TemporaryFile file("");
  EXPECT_TRUE(coreFileExist(file.Path().c_str()));
  EXPECT_FALSE(coreFileExist(file.Folder().c_str()));
  EXPECT_FALSE(coreFileExist((file.Path() + L"x").c_str()));
  EXPECT_FALSE(coreFileExist(nullptr));
}
