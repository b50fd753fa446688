// From the lines of a file to a table.

#include <gtest/gtest.h>

#include <utility>

#include "CsvLine.h"
#include "SurveyReader.h"
#include "tests/support/FolderTest.h"
#include "tests/support/LogWatch.h"

namespace {

TEST(CsvLine, SplitsAsSpreadsheetsWrite) {
  const std::pair<const wchar_t*, std::vector<std::wstring>> rows[] = {
      {L"", {L""}},
      {L"a;;b;", {L"a", L"", L"b", L""}},
      {L"\"a;b\";c", {L"a;b", L"c"}},
      {L"\"say \"\"yes\"\"\";\"\";x", {L"say \"yes\"", L"", L"x"}},
      {L"5\" pipe;6,5", {L"5\" pipe", L"6,5"}},
      {L"\"a\"b;c", {L"ab", L"c"}},
      {L"1;\"two\nlines\"", {L"1", L"two\nlines"}}};
  desk::CsvLine line;
  for (const auto& [record, fields] : rows) {
    EXPECT_TRUE(line.Split(record, L';'));
    EXPECT_EQ(std::vector<std::wstring>(line.Fields().begin(), line.Fields().end()), fields);
  }
  EXPECT_FALSE(line.Split(L"1;\"two", L';')) << "it goes on in the next line";
}

TEST(CsvLine, OnlyWholeNumbersAreNumbers) {
  double value = 0.0;
  for (const wchar_t* text : {L"12", L" 12 ", L"+12", L"12.0", L"1.2e1"}) {
    ASSERT_TRUE(desk::ParseNumber(text, L'.', value)) << testing::PrintToString(text);
    EXPECT_EQ(value, 12.0);
  }
  ASSERT_TRUE(desk::ParseNumber(L"\u22123,25", L',', value));
  EXPECT_EQ(value, -3.25);
  for (const wchar_t* text :
       {L"", L" ", L"12 m", L"A12", L"1,5", L"1.2.3", L"--1", L"nan", L"inf", L"1e999", L"-"}) {
    EXPECT_FALSE(desk::ParseNumber(text, L'.', value)) << testing::PrintToString(text);
  }
}

TEST(CsvDialect, FindsSeparatorDecimalHeadingsAndNumbers) {
  const auto german =
      desk::DetectDialect({L"Station;H\u00F6he;Text", L"0,5;101,25;Anfang, Nagel", L"1,0;;", L"1,5;101;x"});
  EXPECT_EQ(german.separator, L';');
  EXPECT_EQ(german.decimal, L',');
  EXPECT_TRUE(german.hasHeadings);
  EXPECT_EQ(german.headings[1], L"H\u00F6he");
  EXPECT_EQ(german.numeric, std::vector<bool>({true, true, false}));
  EXPECT_EQ(german.decimals, std::vector<int>({1, 2, 0}));

  const auto bare = desk::DetectDialect({L"0.0\t1.5", L"1.0\t1.6"});
  EXPECT_EQ(bare.separator, L'\t');
  EXPECT_FALSE(bare.hasHeadings);
  EXPECT_EQ(bare.headings, std::vector<std::wstring>({L"Column 1", L"Column 2"}));

  const auto ragged = desk::DetectDialect({L"a,b", L"1,2", L"1,2,3", L"x,4"});
  EXPECT_EQ(ragged.numeric, std::vector<bool>({false, true, true}));
  EXPECT_EQ(ragged.headings[2], L"Column 3");
}

class TableSink : public desk::SurveySink {
 public:
  void Begin(const desk::CsvDialect& dialect) override { columns = dialect.headings.size(); }
  void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) override {
    EXPECT_EQ(row, rows.size());
    rows.emplace_back(fields.begin(), fields.end());
    if (row == 0 && onFirstRow) onFirstRow();
  }
  bool Progress(double /*part*/) override { return true; }

  std::function<void()> onFirstRow;

  std::size_t columns = 0;
  std::vector<std::vector<std::wstring>> rows;
};

class SurveyReading : public coregui::test::FolderTest {
 protected:
  desk::SurveyReport Survey(const std::string& bytes) {
    Write("table.csv", bytes);
    sink = TableSink();
    auto report = desk::ReadSurvey(Wide("table.csv").Str(), sink);
    coregui::test::TakeLog();  // the report says it all
    return report;
  }
  TableSink sink;
};

TEST_F(SurveyReading, ReadsRowsBelowHeadings) {
  const auto report =
      Survey("Chainage,Level,Remark\r\n0.0,101.5,\"nail, kerb\"\r\n\r\n2.0,101.6,\"two\nlines\"\r\n");
  EXPECT_EQ(report.error, L"");
  EXPECT_EQ(report.Summary(), L"2 rows in 3 columns");
  EXPECT_EQ(sink.columns, 3U);
  EXPECT_EQ(sink.rows, (std::vector<std::vector<std::wstring>>{{L"0.0", L"101.5", L"nail, kerb"},
                                                               {L"2.0", L"101.6", L"two\nlines"}}));
  const auto quoted = Survey("Chainage,\"Level\n[m]\"\n1,100\n2,101\n");
  EXPECT_EQ(quoted.Summary(), L"2 rows in 2 columns");
  EXPECT_EQ(quoted.dialect.headings, std::vector<std::wstring>({L"Chainage", L"Level [m]"}));
  EXPECT_EQ(quoted.dialect.numeric, std::vector<bool>({true, true}));
  EXPECT_EQ(Survey("5.5;7,25").Summary(), L"1 row in 2 columns");
  EXPECT_EQ(Survey("x").Summary(), L"1 row in 1 column");
  EXPECT_EQ(Survey("Chainage,Level\n").Summary(), L"0 rows in 2 columns");
  EXPECT_EQ(Survey("a,b\n1," + std::string(1U << 21U, 'x') + "\n").Summary(),
            L"1 row in 2 columns; 1 line is cut off after a million characters");
  EXPECT_EQ(Survey("\xEF\xBB\xBFH\xF6he,x\n1,2\n").foreignBytes, 1U);
  EXPECT_EQ(sink.rows.size(), 1U);
}

TEST_F(SurveyReading, SaysWhatCouldNotBeTaken) {
  // The sample decides that the first column holds numbers; what breaks the rule comes later.
  std::string bytes = "Chainage,Level\n";
  for (int i = 0; i < 300; ++i) bytes += std::to_string(i) + ",1.5\n";
  bytes += "here,1\n5\n6,7,8\n\"open,9\n7,8\n";
  const auto report = Survey(bytes);
  EXPECT_EQ(
      report.Summary(),
      L"305 rows in 2 columns; 2 values are no numbers (first in line 302); 2 lines are too short (first in "
      L"line 303); 1 line is too long, its rest left out (first in line 304); 1 quote never closes (first in "
      L"line 305)");
  EXPECT_EQ(sink.rows.back()[0], L"7");
}

TEST_F(SurveyReading, TellsWhenTheFileChangesMeanwhile) {
  Write("a.csv", "a,b\n1,2\n3,4\n");
  sink.onFirstRow = [this] { Write("a.csv", "a,b\n1,2\n"); };
  const auto report = desk::ReadSurvey(Wide("a.csv").Str(), sink);
  EXPECT_TRUE(report.HasOddities());
  EXPECT_NE(report.Summary().find(L"; the file changed while it was read"), std::wstring::npos);
}

TEST_F(SurveyReading, RefusesWhatIsNoTable) {
  EXPECT_EQ(desk::ReadSurvey(Wide("missing.csv").Str(), sink).Summary(), L"The file does not exist.");
  EXPECT_EQ(desk::ReadSurvey(Wide("").Str(), sink).error, L"This is a folder, not a file.");
  EXPECT_EQ(desk::ReadSurvey(L"/dev/null", sink).error, L"This is not an ordinary file.");
  EXPECT_EQ(Survey("").error, L"The file is empty.");
  EXPECT_EQ(Survey(std::string("\x7f"
                               "ELF\x02\x01\x00\x00\x03\x00>\x00\n\x01\x00",
                               15))
                .error,
            L"The file holds no table: it is not text.");
  EXPECT_EQ(Survey(std::string("1\0,\0002\0\n\0", 8)).error,
            L"The file seems to be UTF-16 without a byte-order mark. Save it as UTF-8 and open it again.");
  EXPECT_EQ(Survey(std::string(10'000, ',') + "\n").error, L"The file has more than 10,000 columns.");
  EXPECT_TRUE(sink.rows.empty());
}

}  // namespace
