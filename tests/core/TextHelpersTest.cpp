#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "core/Expression.h"
#include "core/Fields.h"
#include "core/Paths.h"
#include "core/SizeText.h"
#include "core/Status.h"
#include "core/UI_LIST.h"
#include "core/Utf8.h"
#include "tests/support/LogWatch.h"

TEST(Paths, ExtensionIsThatOfTheFileNameOnly) {
  constexpr std::tuple<const wchar_t*, const wchar_t*, const wchar_t*> rows[] = {
      {L"/a.b/survey", L".lck", L"/a.b/survey.lck"},
      {L"C:\\a.b\\survey.old.csv", L"lck", L"C:\\a.b\\survey.old.lck"},
      {L"/home/.profile", L"bak", L"/home/.profile.bak"},
      {L"survey.csv", L"", L"survey"},
      {nullptr, nullptr, L""}};
  for (const auto& [path, extension, changed] : rows) EXPECT_EQ(coreChangeFileExt(path, extension), changed);
}

TEST(Paths, FolderKeepsItsSeparatorSoThatANameCanBeAppended) {
  EXPECT_EQ(coreExtractFilePath(L"/data/road/a.csv"), L"/data/road/");
  EXPECT_EQ(coreExtractFilePath(L"C:\\data\\a.csv"), L"C:\\data\\");
  EXPECT_EQ(coreExtractFilePath(L"a.csv"), L"");
  EXPECT_EQ(coreExtractFileName(L"C:\\data\\a.b.csv"), L"a.b.csv");
  EXPECT_EQ(coreExtractFileName(L"/data/road/"), L"");
  EXPECT_EQ(coreChangeFileName(L"/data/a.csv", L"b.txt"), L"/data/b.txt");
  EXPECT_EQ(coreChangeFileName(L"a.csv", L"b.txt"), L"b.txt");
}

TEST(Fields, DefaultStandsForAMissingFieldAndNotForAnEmptyOne) {
  constexpr std::tuple<const wchar_t*, int, const wchar_t*> rows[] = {
      {L"user,1A", 1, L"user"}, {L"user,1A", 2, L"1A"}, {L"user,", 2, L""},      {L"user", 2, L"0"},
      {L",b", 1, L""},          {L"a,b", 0, L"0"},      {L"\"a,b\"", 2, L"b\""}, {nullptr, 2, L"0"}};
  bool isCut = true;
  for (const auto& [line, n, field] : rows) {
    EXPECT_EQ(coreGetField(line, n, L',', L"0", 4, &isCut), field);
    EXPECT_FALSE(isCut);
  }
  EXPECT_EQ(coreGetField(L"a,12345,c", 2, L',', nullptr, 4, &isCut), L"1234");
  EXPECT_TRUE(isCut);
}

TEST(SizeText, UnitsChangeAtTheirFirstByteAndRoundingUpToTheNextOneIsKept) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  constexpr std::pair<std::uint64_t, const wchar_t*> rows[] = {
      {0, L"0 bytes"},       {1023, L"1023 bytes"},    {1024, L"1.00 KB"},           {1048575, L"1024.00 KB"},
      {1048576, L"1.00 MB"}, {1073741824, L"1.00 GB"}, {kMost, L"17179869184.00 GB"}};
  for (const auto& [bytes, text] : rows) EXPECT_EQ(coreGetSizeString(bytes), text);
}

TEST(Expression, KnowsTheUsualFunctionsAndConstantsWhateverTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "de_DE.UTF-8");  // where there is one
  const std::wstring nested = std::wstring(2000, L'(') + L"1" + std::wstring(2000, L')');
  const std::pair<std::wstring, double> rows[] = {
      {L" 2*(3+sqrt(16))", 14}, {L"-2^2", -4},    {L"2^3^2", 512},        {L"sin(pi/6)", 0.5},
      {L"atan2(1,1)*8/pi", 2},  {L"ln(e)", 1},    {L"log10(1000)", 3},    {L"log(e)", 1},
      {L"max(1,7,3)", 7},       {L"1.5e3", 1500}, {L"3>2 ? 10 : 20", 10}, {nested, 1.0}};
  for (const auto& [text, expected] : rows) {
    double value = 0;
    std::wstring reason;
    EXPECT_TRUE(coreEvaluateExpression(text.c_str(), value, &reason))
        << coregui::ToUtf8(text) << ": " << coregui::ToUtf8(reason);
    EXPECT_NEAR(value, expected, 1e-12) << coregui::ToUtf8(text);
  }
  std::setlocale(LC_ALL, before.c_str());
}

TEST(Expression, FailureGivesAReasonAndLeavesTheValue) {
  const std::wstring longest(5000, L'1');
  const std::wstring deepest(4096, L'(');
  for (const wchar_t* text :
       {L"",       L"   ",   L"1+",       L"(1",       L"1)",           L"2 3",         L"1,5",   L"x+1",
        L"sin",    L"sin()", L"1/0",      L"sqrt(-1)", L"\"text\"",     L"x=5",         L"1e999", L"5\u20AC",
        L"\xD800", L"1?2",   L"atan2(1)", L"+-*/",     longest.c_str(), deepest.c_str()}) {
    double value = 42;
    std::wstring reason;
    EXPECT_FALSE(coreEvaluateExpression(text, value, &reason)) << coregui::ToUtf8(text);
    EXPECT_EQ(value, 42) << coregui::ToUtf8(text);
    EXPECT_FALSE(reason.empty()) << coregui::ToUtf8(text);
  }
  double value = 42;
  EXPECT_FALSE(coreEvaluateExpression(nullptr, value));
}

TEST(Expression, IsThereForAProgramThatWasStartedByItsNameAlone) {
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
  const std::string run = "cd / && PATH='" + self.parent_path().string() + "' " + self.filename().string() +
                          " --gtest_filter=Expression.Knows* >&2";
  EXPECT_EQ(std::system(run.c_str()), 0);
}

TEST(Status, ASinkMayWriteItselfAndIsPutBack) {
  {
    const coregui::StatusSinkScope inner(
        [](const std::wstring&) { coreStatusOut(L"to the error stream, not here again"); });
    testing::internal::CaptureStderr();
    coreStatusOut(L"inner");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "to the error stream, not here again\n");
  }
  coreStatusOut(L"outer");
  EXPECT_EQ(coregui::test::TakeLog(), std::vector<std::wstring>{L"outer"});
}

TEST(UiList, KeepsItsOrder) {
  UI_LIST list;
  list.Add(L"b", 2);
  list.Insert(-5, L"a", 1);
  list.Insert(99, L"d", 4);
  list.Insert(2, L"c", 3);
  std::wstring texts;
  for (const UI_ELEMENT& element : list) texts += element.text;
  EXPECT_EQ(texts, L"abcd");
  EXPECT_EQ(list.FindId(3), 2);
  EXPECT_EQ(list.FindText(L"d"), 3);
  EXPECT_TRUE(list.Remove(0));
  EXPECT_FALSE(list.Remove(3));
  EXPECT_EQ(list.FindText(L"a"), UI_LIST::kNotFound);
}

TEST(FileName, KeepsBytesThatAreNoUtf8WhichNoTextIsWrittenWith) {
  const std::string bytes = "l\xE4nge \xC3\xA4 \xE8\xB7";
  const std::wstring name = coregui::FromFileName(bytes);
  EXPECT_EQ(coregui::ToFileName(name), bytes);
  EXPECT_EQ(coregui::ToUtf8(name), "l\xEF\xBF\xBDnge \xC3\xA4 \xEF\xBF\xBD\xEF\xBF\xBD");
}
