#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace desk {

/// A field with quotes may go on in the next lines, in so many at most: a quote that never closes is no
/// reason to swallow a file.
inline constexpr std::size_t kMostLinesOfAField = 64;

/// Splits one record of separated text into its fields. A field may stand in double quotes, in which a
/// separator is text and two quotes are one; quotes elsewhere in a field are text. The fields point into the
/// record or into this object and are valid until the next call.
class CsvLine {
 public:
  /// True when the record is complete; false when it ends inside quotes, so that the next line belongs to it.
  /// The fields are those found either way.
  bool Split(std::wstring_view record, wchar_t separator);
  const std::vector<std::wstring_view>& Fields() const { return m_fields; }

 private:
  bool AddQuoted(std::wstring_view record, std::size_t& at, wchar_t separator);

  std::vector<std::wstring_view> m_fields;
  std::vector<std::wstring> m_unquoted;  ///< texts of fields whose quotes had to be taken out
};

/// The value of a number as people write it in a table: optional sign, digits, one `decimal`, an exponent,
/// blanks around. False for anything else, so that "12 m" and "A12" stay text.
bool ParseNumber(std::wstring_view text, wchar_t decimal, double& value);

/// What a table's first lines tell of how it is written.
struct CsvDialect {
  wchar_t separator = L',';
  wchar_t decimal = L'.';
  bool hasHeadings = false;
  std::vector<std::wstring> headings;  ///< one for each column; "Column 3" where the file has none
  std::vector<bool> numeric;           ///< for each column: every filled field of the sample is a number
  std::vector<int> decimals;           ///< for each column: the most digits behind the decimal separator
};

/// Finds the dialect of a sample of lines: the separator (comma, semicolon, tab) that cuts most lines into
/// the same number of fields, the decimal separator that reads more numbers, and whether the first line is
/// headings: it holds no number. A single line is headings when it holds several texts.
CsvDialect DetectDialect(const std::vector<std::wstring>& lines);

}  // namespace desk
