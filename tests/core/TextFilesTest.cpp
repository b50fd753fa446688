// Reading and writing text files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <tuple>

#include "core/TextFile.h"
#include "core/TextReader.h"
#include "core/TextWriter.h"
#include "tests/support/FolderTest.h"
#include "tests/support/FullDisk.h"
#include "tests/support/LogWatch.h"

namespace {

namespace fs = std::filesystem;
using coregui::CoreFilePtr;
using coregui::test::TakeLog;
using namespace std::string_literals;
using testing::ElementsAre;

// --- The reader

class TextReader : public coregui::test::FolderTest {
 protected:
  std::vector<std::wstring> ReadAll(const std::string& bytes,
                                    std::size_t maxCharacters = coregui::TextReader::kNoLimit) {
    Write("a", bytes);
    EXPECT_TRUE(reader.Open(Wide("a")));
    std::vector<std::wstring> lines;
    for (std::wstring line; reader.ReadLine(line, maxCharacters);) lines.push_back(line);
    EXPECT_EQ(reader.LineNumber(), lines.size());
    EXPECT_EQ(reader.Position(), bytes.size());
    return lines;
  }
  coregui::TextReader reader;
  const std::wstring path = Wide("a").Str();
};

const std::tuple<const char*, std::string, std::vector<std::wstring>> kReadingCases[] = {
    {"all line ends, mixed", "a\r\nb\rc\n\r\n\n\rd", {L"a", L"b", L"c", L"", L"", L"", L"d"}},
    {"a mark and nothing else", "\xEF\xBB\xBF", {}},
    {"a mark in front only",
     "\xEF\xBB\xBF"
     "a\n\xEF\xBB\xBF"
     "b",
     {L"a", L"\uFEFFb"}},
    {"UTF-8 of each length", "z\u00E4\u20AC\U0001D11E\n", {L"z\u00E4\u20AC\U0001D11E"}},
    {"UTF-16, low byte first",
     "\xFF\xFE"
     "a\0\r\0\n\0\x34\xD8\x1E\xDD"s,
     {L"a", L"\U0001D11E"}},
    {"UTF-16, high byte first",
     "\xFE\xFF"
     "\0a\0\n\x20\xAC"s,
     {L"a", L"\u20AC"}},
    {"UTF-16 with lone surrogates and half a unit",
     "\xFF\xFE\x1E\xDD"
     "a\0\x34\xD8z"s,
     {L"\uFFFDa\uFFFD\uFFFD"}},
    {"a line feed's byte inside a UTF-16 unit", "\xFF\xFE\x0A\x01"s, {L"\u010A"}},
};

TEST_F(TextReader, ReadsEveryEncodingAndLineEnd) {
  for (const auto& [name, bytes, lines] : kReadingCases) EXPECT_EQ(ReadAll(bytes), lines) << name;
}

TEST_F(TextReader, BytesThatAreNotUtf8AreWindows1252AndSpoilNothingElse) {
  EXPECT_THAT(ReadAll("ok\nM\xFCller \xC3\xA4 \x80\n\xE2\x82\nover\xC0\xAFlong \xED\xA0\x80\n\xC3"),
              ElementsAre(L"ok", L"M\u00FCller \u00E4 \u20AC", L"\u00E2\u201A",
                          L"over\u00C0\u00AFlong \u00ED\u00A0\u20AC", L"\u00C3"));
  EXPECT_THAT(TakeLog(),
              ElementsAre(path + L": line 2, column 2: not UTF-8; such bytes are read as Windows-1252"));
}

TEST_F(TextReader, NulCharactersAreLeftOutAndReportedWithTheirPlaceManyInANumber) {
  EXPECT_THAT(ReadAll("ab\n\0c\xC3\xA4\0d\n"s), ElementsAre(L"ab", L"c\u00E4d"));
  EXPECT_THAT(TakeLog(), ElementsAre(path + L": line 2, column 1: a NUL character is left out",
                                     path + L": line 2, column 4: a NUL character is left out"));
  EXPECT_THAT(ReadAll(std::string(100'000, '\0')), ElementsAre(L""));
  const std::vector<std::wstring> log = TakeLog();
  EXPECT_EQ(log.size(), 21U);
  EXPECT_EQ(log.back(), path + L": 100000 NUL characters in all are left out");
}

TEST_F(TextReader, ALongLineIsCutAtTheLimitAndTheNextOneIsWhole) {
  EXPECT_THAT(ReadAll("abc\nabcd\r\n\u00E4bc\nab\u00E4d\nabc", 3),
              ElementsAre(L"abc", L"abc", L"\u00E4bc", L"ab\u00E4", L"abc"));
  const std::wstring why = L", column 4: the line is longer than 3 characters; the rest is left out";
  EXPECT_THAT(TakeLog(), ElementsAre(path + L": line 2" + why, path + L": line 4" + why));
}

TEST_F(TextReader, BlockBordersFallAnywhere) {
  // Lines whose length has no factor in common with the block's, so that borders cut each kind of sequence
  // somewhere.
  const std::vector<std::string> pieces = {"plain text\n", "with \u20AC\r\n", "\U0001D11E\r", "\u00E4\r\n"};
  const std::vector<std::wstring> expected = {L"plain text", L"with \u20AC", L"\U0001D11E", L"\u00E4"};
  std::string bytes;
  for (int i = 0; i < 120'000; ++i) bytes += pieces[static_cast<std::size_t>(i % 4)];
  const std::vector<std::wstring> lines = ReadAll(bytes);
  ASSERT_EQ(lines.size(), 120'000U);
  for (std::size_t i = 0; i < lines.size(); ++i) ASSERT_EQ(lines[i], expected[i % 4]) << "line " << i + 1;
  const std::string longer(1'000'003, 'x');
  EXPECT_THAT(ReadAll("a\r\n" + longer + "\r\nb\r"),
              ElementsAre(L"a", std::wstring(longer.begin(), longer.end()), L"b"));
}

TEST_F(TextReader, OpensOnlyRegularFilesAndSaysWhyNot) {
  for (const auto& [file, why] :
       {std::pair(Wide(""), EISDIR), {Wide("none"), ENOENT}, {L"/dev/zero", EINVAL}}) {
    EXPECT_FALSE(reader.Open(file));
    EXPECT_EQ(errno, why);
  }
  EXPECT_FALSE(reader.Open(nullptr));
  std::wstring line = L"left over";
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_EQ(line, L"");
}

// --- The writer

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
  for (const auto& [name, why] : {std::pair("", EISDIR), {"none/x", ENOENT}}) {
    EXPECT_FALSE(writer.Open(Wide(name)));
    EXPECT_EQ(errno, why);
  }
  EXPECT_FALSE(writer.Open(nullptr));
  EXPECT_EQ(Count(), 1U);
}

// --- Both at one place

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
  for (const wchar_t* mode : {L"rt", L"r+t"}) EXPECT_FALSE(coreFileTxtWrite(Open(mode).get(), L"not UTF-16"));
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
