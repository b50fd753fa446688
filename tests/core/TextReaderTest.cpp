#include "core/TextReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "tests/core/StatusLines.h"
#include "tests/core/TemporaryFile.h"

using coregui::TextReader;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_literals;

namespace {

std::vector<std::wstring> ReadAll(const TemporaryFile& file,
                                  std::size_t maxCharacters = TextReader::kNoLimit) {
  TextReader reader;
  EXPECT_TRUE(reader.Open(file.Path().c_str()));
  std::vector<std::wstring> lines;
  for (std::wstring line; reader.ReadLine(line, maxCharacters);) lines.push_back(line);
  EXPECT_EQ(reader.LineNumber(), lines.size());
  EXPECT_EQ(reader.Position(), file.Bytes().size());
  return lines;
}

struct ReadingCase {
  const char* name;
  std::string bytes;
  std::vector<std::wstring> lines;
};

const ReadingCase kReadingCases[] = {
    {"an empty file", "", {}},
    {"one empty line", "\n", {L""}},
    {"all line ends, mixed", "a\r\nb\rc\n\r\n\n\rd", {L"a", L"b", L"c", L"", L"", L"", L"d"}},
    {"CR at the very end", "a\r", {L"a"}},
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

}  // namespace

TEST(TextReader, ReadsEveryEncodingAndLineEnd) {
  for (const ReadingCase& row : kReadingCases) {
    SCOPED_TRACE(row.name);
    const StatusLines status;
    EXPECT_EQ(ReadAll(TemporaryFile(row.bytes)), row.lines);
    EXPECT_THAT(status.Lines(), IsEmpty());
  }
}

TEST(TextReader, BytesThatAreNotUtf8AreWindows1252AndSpoilNothingElse) {
  const StatusLines status;
  const TemporaryFile file("ok\nM\xFCller \xC3\xA4 \x80\n\xE2\x82\nover\xC0\xAFlong \xED\xA0\x80\n\xC3");
  EXPECT_THAT(ReadAll(file), ElementsAre(L"ok", L"M\u00FCller \u00E4 \u20AC", L"\u00E2\u201A",
                                         L"over\u00C0\u00AFlong \u00ED\u00A0\u20AC", L"\u00C3"));
  EXPECT_THAT(
      status.Lines(),
      ElementsAre(file.Path() + L": line 2, column 2: not UTF-8; such bytes are read as Windows-1252"));
}

TEST(TextReader, NulCharactersAreLeftOutAndReportedWithTheirPlace) {
  const StatusLines status;
  const TemporaryFile file("ab\n\0c\xC3\xA4\0d\n"s);
  EXPECT_THAT(ReadAll(file), ElementsAre(L"ab", L"c\u00E4d"));
  EXPECT_THAT(status.Lines(), ElementsAre(file.Path() + L": line 2, column 1: a NUL character is left out",
                                          file.Path() + L": line 2, column 4: a NUL character is left out"));
}

TEST(TextReader, ManyReportsEndInANumber) {
  const StatusLines status;
  const TemporaryFile file(std::string(100'000, '\0'));
  EXPECT_THAT(ReadAll(file), ElementsAre(L""));
  EXPECT_EQ(status.Lines().size(), 21U);
  EXPECT_EQ(status.Lines().back(), file.Path() + L": 100000 NUL characters in all are left out");
}

TEST(TextReader, ALongLineIsCutAtTheLimitAndTheNextOneIsWhole) {
  const StatusLines status;
  const TemporaryFile file("abc\nabcd\r\n\u00E4bc\nab\u00E4d\nabc");
  EXPECT_THAT(ReadAll(file, 3), ElementsAre(L"abc", L"abc", L"\u00E4bc", L"ab\u00E4", L"abc"));
  const std::wstring why = L", column 4: the line is longer than 3 characters; the rest is left out";
  EXPECT_THAT(status.Lines(), ElementsAre(file.Path() + L": line 2" + why, file.Path() + L": line 4" + why));
}

TEST(TextReader, BlockBordersFallAnywhere) {
  // Lines whose length has no factor in common with the block's, so that borders cut each kind of sequence
  // somewhere.
  const std::vector<std::string> pieces = {"plain text\n", "with \u20AC\r\n", "\U0001D11E\r", "\u00E4\r\n"};
  const std::vector<std::wstring> expected = {L"plain text", L"with \u20AC", L"\U0001D11E", L"\u00E4"};
  std::string bytes;
  for (int i = 0; i < 120'000; ++i) bytes += pieces[static_cast<std::size_t>(i % 4)];
  const std::vector<std::wstring> lines = ReadAll(TemporaryFile(bytes));
  ASSERT_EQ(lines.size(), 120'000U);
  for (std::size_t i = 0; i < lines.size(); ++i) ASSERT_EQ(lines[i], expected[i % 4]) << "line " << i + 1;
}

TEST(TextReader, ALineMayBeLongerThanABlock) {
  const std::string longLine(1'000'003, 'x');
  EXPECT_THAT(ReadAll(TemporaryFile("a\r\n" + longLine + "\r\nb\r")),
              ElementsAre(L"a", std::wstring(longLine.begin(), longLine.end()), L"b"));
}

TEST(TextReader, OpensOnlyRegularFilesAndSaysWhyNot) {
  const TemporaryFile file("a");
  TextReader reader;
  EXPECT_FALSE(reader.Open(file.Folder().c_str()));
  EXPECT_EQ(errno, EISDIR);
  EXPECT_FALSE(reader.Open((file.Path() + L".not").c_str()));
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(reader.Open(L"/dev/zero"));
  EXPECT_FALSE(reader.Open(nullptr));
  std::wstring line = L"left over";
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_EQ(line, L"");
}
