#include "core/TextFile.h"

#include <gtest/gtest.h>

#include "tests/support/FolderTest.h"

namespace {

using coregui::CoreFilePtr;

class TextFile : public coregui::test::FolderTest {
 protected:
  CoreFilePtr Open(const wchar_t* mode) const { return CoreFilePtr(coreFileOpen(Wide("a"), mode)); }
};

std::wstring ReadLine(const CoreFilePtr& file) {
  std::wstring line;
  return coreFileTxtRead(file.get(), line, 1024) ? line : L"(end)";
}

TEST_F(TextFile, WrittenLinesReadBackInEveryReadingMode) {
  CoreFilePtr writer = Open(L"w+t");
  ASSERT_TRUE(writer);
  EXPECT_TRUE(coreFileTxtWrite(writer.get(), L"12,5 \u00E4\u20AC\U0001D11E"));
  EXPECT_TRUE(coreFileTxtWrite(writer.get(), L""));
  EXPECT_EQ(coreFileLength(writer.get()), 16U);
  EXPECT_TRUE(coreFileClose(writer.release()));
  EXPECT_EQ(Read("a"), "12,5 \u00E4\u20AC\U0001D11E\n\n");
  for (const wchar_t* mode : {L"rt", L"rb", L"r+t"}) {
    const CoreFilePtr reader = Open(mode);
    for (const wchar_t* line : {L"12,5 \u00E4\u20AC\U0001D11E", L"", L"(end)"}) {
      EXPECT_EQ(ReadLine(reader), line);
    }
  }
}

TEST_F(TextFile, ReadingAndWritingTakeTurnsAtOnePlace) {
  Write("a", "one\ntwo\nsix\n");
  const CoreFilePtr both = Open(L"r+t");
  EXPECT_EQ(ReadLine(both), L"one");
  EXPECT_TRUE(coreFileTxtWrite(both.get(), L"2nd"));
  EXPECT_EQ(ReadLine(both), L"six");
  EXPECT_TRUE(coreFileTxtWrite(both.get(), L"end"));
  EXPECT_EQ(ReadLine(both), L"(end)");
  EXPECT_EQ(Read("a"), "one\n2nd\nsix\nend\n");
}

TEST_F(TextFile, WriteFailuresAreKnownAtOnce) {
  Write("a", "\xFF\xFE!");
  EXPECT_FALSE(coreFileTxtWrite(Open(L"rt").get(), L"x"));
  EXPECT_FALSE(coreFileTxtWrite(Open(L"r+t").get(), L"UTF-8 into UTF-16"));
  EXPECT_EQ(Read("a"), "\xFF\xFE!");
  const CoreFilePtr full(coreFileOpen(L"/dev/full", L"w+t"));
  ASSERT_TRUE(full);
  EXPECT_FALSE(coreFileTxtWrite(full.get(), L"x"));
}

TEST_F(TextFile, OpenRefusesWhatCannotServe) {
  Write("a", "kept");
  for (const wchar_t* mode : {L"", L"x", L"wx", L"a", L"rtt", static_cast<const wchar_t*>(nullptr)}) {
    EXPECT_FALSE(Open(mode)) << testing::PrintToString(mode);
  }
  for (const wchar_t* mode : {L"rt", L"r+t", L"w+t"}) EXPECT_FALSE(coreFileOpen(Wide(""), mode)) << mode;
  EXPECT_FALSE(coreFileOpen(nullptr, L"rt"));
  EXPECT_FALSE(coreFileOpen(Wide("none/x"), L"w+t"));
  EXPECT_FALSE(coreFileOpen(L"/dev/zero", L"rt"));
  EXPECT_EQ(Read("a"), "kept");
  EXPECT_TRUE(coreFileExist(Wide("a")));
  EXPECT_FALSE(coreFileExist(Wide("")) || coreFileExist(Wide("x")) || coreFileExist(nullptr));
}

}  // namespace
