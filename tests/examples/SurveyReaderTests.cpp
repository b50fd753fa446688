#include "SurveyReader.h"

#include <gtest/gtest.h>

#include "tests/support/FolderTest.h"
#include "tests/support/LogWatch.h"

namespace {

class TableSink : public desk::SurveySink {
 public:
  void Begin(const desk::CsvDialect& dialect) override { columns = dialect.headings.size(); }
  void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) override {
    EXPECT_EQ(row, rows.size());
    rows.emplace_back(fields.begin(), fields.end());
  }
  bool Progress(double /*part*/) override { return true; }

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
  EXPECT_EQ(sink.rows.size(), 0U);
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
  EXPECT_TRUE(sink.rows.empty());
}

}  // namespace
