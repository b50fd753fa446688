#include "SurveyReader.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/Status.h"

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

class SurveyReading : public testing::Test {
 protected:
  SurveyReading() : folder(std::filesystem::temp_directory_path() / ("desk" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(folder);
  }
  ~SurveyReading() override { std::filesystem::remove_all(folder); }

  desk::SurveyReport Read(const std::string& bytes) {
    const auto path = folder / "table.csv";
    std::ofstream(path, std::ios::binary) << bytes;
    sink = TableSink();
    const coregui::StatusSinkScope quiet([this](const std::wstring& line) { status.push_back(line); });
    return desk::ReadSurvey(path.wstring(), sink);
  }

  std::filesystem::path folder;
  TableSink sink;
  std::vector<std::wstring> status;
};

TEST_F(SurveyReading, ReadsRowsBelowHeadings) {
  const auto report = Read("Chainage,Level,Remark\r\n0.0,101.5,\"nail, kerb\"\r\n\r\n2.0,101.6,\r\n");
  EXPECT_EQ(report.error, L"");
  EXPECT_EQ(report.Summary(), L"2 rows in 3 columns");
  ASSERT_EQ(sink.rows.size(), 2U);
  EXPECT_EQ(sink.rows[0][2], L"nail, kerb");
  EXPECT_EQ(sink.rows[1][0], L"2.0");
}

TEST_F(SurveyReading, SaysWhatCouldNotBeTaken) {
  // The sample decides that the first column holds numbers; what breaks the rule comes later.
  std::string bytes = "Chainage,Level\n";
  for (int i = 0; i < 300; ++i) {
    bytes += std::to_string(i) + ",1.5\n";
  }
  bytes += "here,1\n5\n6,7,8\n\"open,9\n7,8\n";
  const auto report = Read(bytes);
  EXPECT_EQ(
      report.Summary(),
      L"305 rows in 2 columns; 2 values are no numbers (first in line 302); 2 lines are too short (first in "
      L"line 303); 1 line is too long, its rest left out (first in line 304); 1 quote never closes (first in "
      L"line 305)");
  EXPECT_EQ(sink.rows.back()[0], L"7");
}

TEST_F(SurveyReading, JoinsLinesThatQuotesHoldTogether) {
  Read("a,b\n1,\"two\nlines\"\n2,x\n");
  ASSERT_EQ(sink.rows.size(), 2U);
  EXPECT_EQ(sink.rows[0][1], L"two\nlines");
  const auto report = Read("Chainage,\"Level\n[m]\"\n1,100\n2,101\n");
  EXPECT_EQ(report.Summary(), L"2 rows in 2 columns");
  EXPECT_EQ(report.dialect.headings, std::vector<std::wstring>({L"Chainage", L"Level [m]"}));
  EXPECT_EQ(report.dialect.numeric, std::vector<bool>({true, true}));
}

TEST_F(SurveyReading, RefusesWhatIsNoTable) {
  desk::SurveyReport report = desk::ReadSurvey((folder / "missing.csv").wstring(), sink);
  EXPECT_EQ(report.Summary(), L"The file does not exist.");
  EXPECT_EQ(desk::ReadSurvey(folder.wstring(), sink).error, L"This is a folder, not a file.");
  EXPECT_EQ(desk::ReadSurvey(L"/dev/null", sink).error, L"This is not an ordinary file.");
  EXPECT_EQ(Read("").error, L"The file is empty.");
  EXPECT_EQ(Read(std::string("\x7f"
                             "ELF\x02\x01\x00\x00\x03\x00>\x00\n\x01\x00",
                             15))
                .error,
            L"The file holds no table: it is not text.");
  EXPECT_TRUE(sink.rows.empty());
}

TEST_F(SurveyReading, OneLineWithoutEndIsATable) {
  EXPECT_EQ(Read("5.5;7,25").Summary(), L"1 row in 2 columns");
  EXPECT_EQ(Read("x").Summary(), L"1 row in 1 column");
  EXPECT_EQ(Read("Chainage,Level\n").Summary(), L"0 rows in 2 columns");
  EXPECT_EQ(sink.rows.size(), 0U);
  EXPECT_EQ(Read("a,b\n1," + std::string(1U << 21U, 'x') + "\n").Summary(),
            L"1 row in 2 columns; 1 line is cut off after a million characters");
  EXPECT_EQ(Read("\xEF\xBB\xBFH\xF6he,x\n1,2\n").foreignBytes, 1U);
  EXPECT_EQ(sink.rows.size(), 1U);
}

}  // namespace
