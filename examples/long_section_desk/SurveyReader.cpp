#include "SurveyReader.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <filesystem>
#include <string_view>

#include "FilePath.h"
#include "core/TextReader.h"

namespace desk {

namespace {

constexpr std::size_t kSampleLines = 200;
constexpr std::size_t kMaxLine = 1U << 20U;
constexpr std::size_t kMostColumns = 10'000;
constexpr std::uint64_t kRowsBetweenProgress = 20000;

std::wstring WithThousands(std::uint64_t number) {
  return coregui::FormatNumberText(CString(std::to_wstring(number)), 0).Str();
}

/// Why a sample is that of no text; empty when it may be. A text has hardly any control characters.
std::wstring TextFault(const std::deque<std::wstring>& sample, const coregui::TextReadTally& tally) {
  std::uint64_t characters = tally.nulCharacters;
  std::uint64_t controls = tally.nulCharacters;
  for (const std::wstring& line : sample) {
    characters += line.size();
    controls += static_cast<std::uint64_t>(std::count_if(line.begin(), line.end(), [](wchar_t c) {
      return (c < L' ' && c != L'\t') || c == L'\u007F' || c == L'\uFFFD';
    }));
  }
  if (!sample.empty() && controls * 20 <= characters) {
    return {};
  }
  // Of Latin letters in UTF-16 every other byte is zero.
  const bool everyOther = tally.nulCharacters * 3 > characters && tally.nulCharacters * 3 < characters * 2;
  return everyOther && controls == tally.nulCharacters
             ? L"The file seems to be UTF-16 without a byte-order mark. Save it as UTF-8 and open it again."
             : L"The file holds no table: it is not text.";
}

/// Gives the lines of the sample again, then the rest of the file, and joins those that quotes hold together.
class RecordReader {
 public:
  explicit RecordReader(coregui::TextReader& reader) : m_reader(reader) {}

  void TakeSample() {
    std::wstring line;
    while (m_sample.size() < kSampleLines && m_reader.ReadLine(line, kMaxLine)) {
      m_sample.push_back(line);
    }
  }
  const std::deque<std::wstring>& Sample() const { return m_sample; }
  std::uint64_t LineNumber() const { return m_line; }

  bool NextLine(std::wstring& line) {
    if (!m_sample.empty()) {
      line = std::move(m_sample.front());
      m_sample.pop_front();
    } else if (!m_reader.ReadLine(line, kMaxLine)) {
      return false;
    }
    ++m_line;
    return true;
  }

  /// The next record, split; quotes that do not close within some lines are no reason to swallow the file.
  bool NextRecord(CsvLine& split, wchar_t separator, Oddity& openQuotes) {
    if (!NextLine(m_record)) {
      return false;
    }
    if (split.Split(m_record, separator)) {
      return true;
    }
    std::wstring whole = m_record;
    std::deque<std::wstring> taken;
    const std::uint64_t firstLine = m_line;
    std::wstring more;
    while (taken.size() < kMostLinesOfAField && NextLine(more)) {
      taken.push_back(more);
      whole += L'\n' + more;
      if (split.Split(whole, separator)) {
        m_record = std::move(whole);
        split.Split(m_record, separator);
        return true;
      }
    }
    openQuotes.Note(firstLine);
    m_line = firstLine;
    m_sample.insert(m_sample.begin(), taken.begin(), taken.end());
    split.Split(m_record, separator);
    return true;
  }

 private:
  coregui::TextReader& m_reader;
  std::deque<std::wstring> m_sample;  ///< lines read ahead
  std::wstring m_record;
  std::uint64_t m_line = 0;
};

void ReadRows(RecordReader& records, const coregui::TextReader& reader, double size, SurveyReport& report,
              SurveySink& sink) {
  CsvLine split;
  const CsvDialect& dialect = report.dialect;
  const std::size_t columns = dialect.headings.size();
  std::vector<std::wstring_view> fields;
  while (records.NextRecord(split, dialect.separator, report.openQuotes)) {
    fields = split.Fields();
    if (fields.size() == 1 && fields[0].find_first_not_of(L" \t") == std::wstring_view::npos) {
      continue;
    }
    if (fields.size() > columns) {
      report.moreFields.Note(records.LineNumber());
      fields.resize(columns);
    } else if (fields.size() < columns) {
      report.fewerFields.Note(records.LineNumber());
    }
    for (std::size_t column = 0; column < fields.size(); ++column) {
      double value = 0.0;
      if (dialect.numeric[column] && !fields[column].empty() &&
          !ParseNumber(fields[column], dialect.decimal, value)) {
        report.notNumbers.Note(records.LineNumber());
      }
    }
    sink.Row(report.rows++, fields);
    if (report.rows % kRowsBetweenProgress == 0 &&
        !sink.Progress(std::min(static_cast<double>(reader.Position()) / size, 1.0))) {
      report.cutShort = true;
      return;
    }
  }
}

void Append(std::wstring& text, const Oddity& oddity, const wchar_t* one, const wchar_t* many) {
  if (oddity.count > 0) {
    text += L"; " + WithThousands(oddity.count) + (oddity.count == 1 ? one : many) + L" (first in line " +
            WithThousands(oddity.firstLine) + L")";
  }
}

}  // namespace

std::wstring SurveyFault(const std::wstring& path) {
  std::error_code error;
  const std::filesystem::path file = ToPath(path);
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) {
    return L"The file does not exist.";
  }
  if (std::filesystem::is_directory(status)) {
    return L"This is a folder, not a file.";
  }
  if (!std::filesystem::is_regular_file(status)) {
    return L"This is not an ordinary file.";
  }
  return std::filesystem::file_size(file, error) == 0 ? L"The file is empty." : L"";
}

SurveyReport ReadSurvey(const std::wstring& path, SurveySink& sink) {
  SurveyReport report;
  report.error = SurveyFault(path);
  if (!report.error.empty()) {
    return report;
  }
  coregui::TextReader reader;
  if (!reader.Open(path.c_str())) {
    report.error = errno == EACCES ? L"You may not read this file." : L"The file cannot be opened.";
    return report;
  }
  RecordReader records(reader);
  records.TakeSample();
  report.error = TextFault(records.Sample(), reader.Tally());
  if (!report.error.empty()) {
    return report;
  }
  report.dialect = DetectDialect({records.Sample().begin(), records.Sample().end()});
  if (report.dialect.headings.size() > kMostColumns) {
    report.error = L"The file has more than " + WithThousands(kMostColumns) + L" columns.";
    return report;
  }
  sink.Begin(report.dialect);
  if (report.dialect.hasHeadings) {
    CsvLine split;
    records.NextRecord(split, report.dialect.separator, report.openQuotes);
  }
  std::error_code unknown;
  const auto size = std::filesystem::file_size(ToPath(path), unknown);
  ReadRows(records, reader, unknown ? 1.0 : static_cast<double>(size), report, sink);
  reader.Close();
  report.changed = std::filesystem::file_size(ToPath(path), unknown) != size || unknown;
  report.cutShort = report.cutShort || reader.Tally().readError;
  report.foreignBytes = reader.Tally().foreignBytes;
  report.nulCharacters = reader.Tally().nulCharacters;
  report.cutLines = reader.Tally().cutLines;
  return report;
}

std::wstring SurveyReport::RowsText() const {
  return WithThousands(rows) + (rows == 1 ? L" row" : L" rows");
}

bool SurveyReport::HasOddities() const {
  return changed ||
         notNumbers.count + moreFields.count + fewerFields.count + openQuotes.count + foreignBytes +
                 nulCharacters + cutLines >
             0 ||
         cutShort;
}

std::wstring SurveyReport::Summary() const {
  if (!error.empty()) {
    return error;
  }
  std::wstring text = RowsText() + L" in " + WithThousands(dialect.headings.size()) +
                      (dialect.headings.size() == 1 ? L" column" : L" columns");
  Append(text, notNumbers, L" value is no number", L" values are no numbers");
  Append(text, fewerFields, L" line is too short", L" lines are too short");
  Append(text, moreFields, L" line is too long, its rest left out",
         L" lines are too long, their rest left out");
  Append(text, openQuotes, L" quote never closes", L" quotes never close");
  if (foreignBytes > 0) {
    text += L"; " + WithThousands(foreignBytes) + L" bytes read as Windows-1252";
  }
  if (nulCharacters > 0) {
    text += L"; " + WithThousands(nulCharacters) + L" NUL characters left out";
  }
  if (cutLines > 0) {
    text += L"; " + WithThousands(cutLines) + (cutLines == 1 ? L" line is" : L" lines are") +
            L" cut off after a million characters";
  }
  if (changed) {
    text += L"; the file changed while it was read";
  }
  if (cutShort) {
    text += L"; reading stopped before the end";
  }
  return text;
}

}  // namespace desk
