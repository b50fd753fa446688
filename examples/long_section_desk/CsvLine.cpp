#include "CsvLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>

namespace desk {

bool CsvLine::Split(std::wstring_view record, wchar_t separator) {
  m_fields.clear();
  m_unquoted.clear();
  // The texts must not move while fields point at them.
  m_unquoted.reserve(static_cast<std::size_t>(std::count(record.begin(), record.end(), L'"')) / 2 + 1);
  bool complete = true;
  std::size_t at = 0;
  while (true) {
    if (at < record.size() && record[at] == L'"') {
      complete = AddQuoted(record, at, separator);
    } else {
      const std::size_t end = std::min(record.find(separator, at), record.size());
      m_fields.push_back(record.substr(at, end - at));
      at = end;
    }
    if (at >= record.size()) {
      return complete;
    }
    ++at;
  }
}

bool CsvLine::AddQuoted(std::wstring_view record, std::size_t& at, wchar_t separator) {
  std::wstring text;
  bool closed = false;
  for (++at; at < record.size() && !closed; ++at) {
    if (record[at] != L'"') {
      text += record[at];
    } else if (at + 1 < record.size() && record[at + 1] == L'"') {
      text += L'"';
      ++at;
    } else {
      closed = true;
    }
  }
  // Text behind the closing quote belongs to the field: losing it would be worse.
  const std::size_t end = closed ? std::min(record.find(separator, at), record.size()) : record.size();
  if (closed) {
    text += record.substr(at, end - at);
  }
  at = end;
  m_unquoted.push_back(std::move(text));
  m_fields.emplace_back(m_unquoted.back());
  return closed;
}

bool ParseNumber(std::wstring_view text, wchar_t decimal, double& value) {
  constexpr std::wstring_view blanks = L" \t\u00A0";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::wstring_view::npos) {
    return false;
  }
  text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
  std::array<char, 64> plain{};
  if (text.size() >= plain.size()) {
    return false;
  }
  std::size_t length = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t character = text[i] == L'\u2212' ? L'-' : text[i];
    if (i == 0 && character == L'+') {
      continue;
    }
    const bool digit = character >= L'0' && character <= L'9';
    if (!digit && character != decimal && character != L'-' && character != L'e' && character != L'E' &&
        character != L'+') {
      return false;
    }
    plain[length++] = character == decimal ? '.' : static_cast<char>(character);
  }
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + length, value);
  return error == std::errc() && end == plain.data() + length && std::isfinite(value);
}

namespace {

wchar_t FindSeparator(const std::vector<std::wstring>& sample) {
  wchar_t best = L',';
  std::size_t bestScore = 0;
  CsvLine line;
  for (const wchar_t separator : {L';', L'\t', L','}) {
    std::map<std::size_t, std::size_t> linesByFields;
    for (const std::wstring& text : sample) {
      line.Split(text, separator);
      ++linesByFields[line.Fields().size()];
    }
    for (const auto& [fields, lines] : linesByFields) {
      const std::size_t score = fields > 1 ? lines * 100 + std::min<std::size_t>(fields, 99) : 0;
      if (score > bestScore) {
        bestScore = score;
        best = separator;
      }
    }
  }
  return best;
}

/// The records of a sample: lines that quotes hold together are one.
std::vector<std::wstring> JoinLines(const std::vector<std::wstring>& lines, wchar_t separator) {
  std::vector<std::wstring> records;
  CsvLine split;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    std::wstring record = lines[at];
    std::size_t last = at;
    bool complete = split.Split(record, separator);
    while (!complete && last + 1 < lines.size() && last - at < kMostLinesOfAField) {
      record += L'\n' + lines[++last];
      complete = split.Split(record, separator);
    }
    records.push_back(complete ? record : lines[at]);
    at = complete ? last : at;
  }
  return records;
}

/// For each column, over the lines from `first` on: are there numbers, and nothing but numbers?
std::vector<bool> NumericColumns(const std::vector<std::wstring>& sample, std::size_t first,
                                 const CsvDialect& dialect) {
  std::vector<int> numbers;
  std::vector<bool> numeric;
  CsvLine line;
  for (std::size_t i = first; i < sample.size(); ++i) {
    line.Split(sample[i], dialect.separator);
    numbers.resize(std::max(numbers.size(), line.Fields().size()), 0);
    numeric.resize(numbers.size(), true);
    for (std::size_t column = 0; column < line.Fields().size(); ++column) {
      double value = 0.0;
      const std::wstring_view field = line.Fields()[column];
      if (ParseNumber(field, dialect.decimal, value)) {
        ++numbers[column];
      } else if (field.find_first_not_of(L" \t") != std::wstring_view::npos) {
        numeric[column] = false;
      }
    }
  }
  for (std::size_t column = 0; column < numeric.size(); ++column) {
    numeric[column] = numeric[column] && numbers[column] > 0;
  }
  return numeric;
}

/// For each column of numbers the most digits that stand behind the decimal separator.
std::vector<int> Decimals(const std::vector<std::wstring>& sample, std::size_t first,
                          const CsvDialect& dialect) {
  std::vector<int> decimals(dialect.numeric.size(), 0);
  CsvLine line;
  for (std::size_t i = first; i < sample.size(); ++i) {
    line.Split(sample[i], dialect.separator);
    for (std::size_t column = 0; column < line.Fields().size(); ++column) {
      const std::wstring_view field = line.Fields()[column];
      const std::size_t point = field.find(dialect.decimal);
      if (dialect.numeric[column] && point != std::wstring_view::npos) {
        const std::size_t end = std::min(field.find_first_not_of(L"0123456789", point + 1), field.size());
        decimals[column] = std::max(decimals[column], static_cast<int>(end - point - 1));
      }
    }
  }
  return decimals;
}

}  // namespace

CsvDialect DetectDialect(const std::vector<std::wstring>& lines) {
  CsvDialect dialect;
  if (lines.empty()) {
    return dialect;
  }
  dialect.separator = FindSeparator(lines);
  const std::vector<std::wstring> sample = JoinLines(lines, dialect.separator);
  const auto countNumeric = [&](wchar_t decimal) {
    CsvDialect tried = dialect;
    tried.decimal = decimal;
    const auto columns = NumericColumns(sample, sample.size() > 1 ? 1 : 0, tried);
    return std::count(columns.begin(), columns.end(), true);
  };
  if (dialect.separator != L',' && countNumeric(L',') > countNumeric(L'.')) {
    dialect.decimal = L',';
  }
  dialect.numeric = NumericColumns(sample, sample.size() > 1 ? 1 : 0, dialect);
  CsvLine line;
  line.Split(sample.front(), dialect.separator);
  dialect.numeric.resize(std::max(dialect.numeric.size(), line.Fields().size()), false);
  const bool alone = sample.size() == 1;
  dialect.hasHeadings = !alone || line.Fields().size() > 1;
  for (const std::wstring_view field : line.Fields()) {
    double value = 0.0;
    dialect.hasHeadings =
        dialect.hasHeadings && !(alone && field.empty()) && !ParseNumber(field, dialect.decimal, value);
  }
  dialect.decimals = Decimals(sample, dialect.hasHeadings ? 1 : 0, dialect);
  for (std::size_t column = 0; column < dialect.numeric.size(); ++column) {
    const bool named = dialect.hasHeadings && column < line.Fields().size() && !line.Fields()[column].empty();
    dialect.headings.push_back(named ? std::wstring(line.Fields()[column])
                                     : L"Column " + std::to_wstring(column + 1));
    std::replace(dialect.headings.back().begin(), dialect.headings.back().end(), L'\n', L' ');
  }
  return dialect;
}

}  // namespace desk
