#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "CsvLine.h"

namespace desk {

/// One thing of a kind that a table held and that could not be taken as it stood.
struct Oddity {
  std::uint64_t count = 0;
  std::uint64_t firstLine = 0;  ///< of the file, from 1

  void Note(std::uint64_t line) {
    if (count++ == 0) {
      firstLine = line;
    }
  }
};

/// What came of reading a survey.
struct SurveyReport {
  std::wstring error;  ///< why nothing could be read; empty when the file was read
  CsvDialect dialect;
  std::uint64_t rows = 0;
  Oddity notNumbers;   ///< filled fields in a column of numbers that are none; kept as text
  Oddity moreFields;   ///< lines with more fields than the table has columns; the rest was left out
  Oddity fewerFields;  ///< lines with fewer; the cells stay empty
  Oddity openQuotes;   ///< quotes that never close; read as they stand
  std::uint64_t foreignBytes = 0;
  std::uint64_t nulCharacters = 0;
  std::uint64_t cutLines = 0;  ///< lines too long to be taken whole
  bool changed = false;        ///< another program has made the file longer or shorter, or removed it
  bool cutShort = false;       ///< reading stopped: a disk error, or the caller's wish

  /// "6,201 rows".
  std::wstring RowsText() const;
  /// True when something in the file could not be taken as it stood.
  bool HasOddities() const;
  /// "6,201 rows in 6 columns", and after it what was odd, in one line.
  std::wstring Summary() const;
};

/// Receives a table row by row.
class SurveySink {
 public:
  virtual ~SurveySink() = default;
  /// Called once, before the first row.
  virtual void Begin(const CsvDialect& dialect) = 0;
  /// One row; the fields are valid during the call. Not more than the dialect has columns.
  virtual void Row(std::uint64_t row, const std::vector<std::wstring_view>& fields) = 0;
  /// Called now and then with the part of the file that is read, 0 to 1. False stops the reading.
  virtual bool Progress(double part) = 0;
};

/// Why a path cannot be read as a table, before anything of it is; empty when nothing speaks against it.
std::wstring SurveyFault(const std::wstring& path);

/// Reads a table of separated text into a sink. Never throws for what the file holds: see the report.
SurveyReport ReadSurvey(const std::wstring& path, SurveySink& sink);

}  // namespace desk
