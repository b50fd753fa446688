#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "platform/LocaleData.h"
#include "platform/OleDate.h"
#include "platform/UnicodeText.h"

namespace {

using coregui::DateOrder;
using coregui::DateWords;

/// A number of the text, or a month that it names.
struct DatePart {
  int value = 0;
  int digits = 0;  ///< 0: the name of a month
};

struct TimeParts {
  bool found = false;
  int hour = 0;
  int minute = 0;
  int second = 0;
  double fraction = 0.0;  ///< of a second
};

enum class Half { none, am, pm };

bool IsSeparator(wchar_t c) {
  return std::wstring_view(L" ./-,\u5E74\u6708\u65E5").find(c) != std::wstring_view::npos;
}

/// In lower case, with plain blanks and digits; direction marks taken out.
std::wstring Normalise(const wchar_t* text) {
  std::wstring plain;
  for (const wchar_t* at = text; *at != 0; ++at) {
    const int digit = coregui::DigitValue(*at);
    if (*at == 0x200E || *at == 0x200F) continue;
    if (digit >= 0) {
      plain += static_cast<wchar_t>(L'0' + digit);
    } else if (*at == L'\t' || *at == 0x00A0 || *at == 0x202F) {
      plain += L' ';
    } else {
      plain += coregui::LowerCase(*at);
    }
  }
  plain.erase(0, std::min(plain.find_first_not_of(L' '), plain.size()));
  plain.erase(plain.find_last_not_of(L' ') + 1);
  return plain;
}

template <std::size_t count>
int IndexOf(const std::array<std::wstring, count>& names, std::wstring_view word) {
  const auto found = std::find(names.begin(), names.end(), word);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

int MonthOf(std::wstring_view word, const DateWords& words) {
  return std::max(IndexOf(words.months, word), IndexOf(words.shortMonths, word)) + 1;
}

bool IsWeekday(std::wstring_view word, const DateWords& words) {
  return IndexOf(words.days, word) >= 0 || IndexOf(words.shortDays, word) >= 0;
}

/// Splits a date text into its parts; what is none makes it fail.
class DateScanner {
 public:
  explicit DateScanner(std::wstring_view text)
      : m_rest(text), m_words(coregui::CurrentLocaleData().dates), m_english(coregui::EnglishDateWords()) {}

  bool Scan() {
    if (m_rest.empty() || (IsSeparator(m_rest.front()) && m_rest.front() != L' ')) return false;
    while (!m_rest.empty()) {
      if (IsSeparator(m_rest.front())) {
        m_rest.remove_prefix(1);
      } else if (!(IsDigitHere() ? ScanNumber() : ScanWord())) {
        return false;
      }
    }
    return m_half == Half::none || ApplyHalf();
  }

  const std::vector<DatePart>& Parts() const { return m_parts; }
  const TimeParts& Time() const { return m_time; }

 private:
  bool IsDigitHere() const { return !m_rest.empty() && m_rest.front() >= L'0' && m_rest.front() <= L'9'; }

  /// False for more digits than any part has.
  bool TakeNumber(DatePart& part) {
    part = DatePart();
    for (; IsDigitHere(); m_rest.remove_prefix(1)) {
      if (++part.digits > 8) return false;
      part.value = part.value * 10 + static_cast<int>(m_rest.front() - L'0');
    }
    return part.digits > 0;
  }

  bool ScanNumber() {
    DatePart part;
    if (!TakeNumber(part)) return false;
    if (!m_rest.empty() && m_rest.front() == L':') return ScanTime(part);
    SkipOrdinal();
    if (!m_rest.empty() && m_rest.front() == L't' && m_rest.size() > 1 && m_rest[1] >= L'0' &&
        m_rest[1] <= L'9') {
      m_rest.remove_prefix(1);  // between date and time of the ISO form
    }
    m_parts.push_back(part);
    return m_parts.size() <= 4;
  }

  void SkipOrdinal() {
    for (const std::wstring_view ending : {L"st", L"nd", L"rd", L"th"}) {
      const bool whole =
          m_rest.size() == ending.size() || (m_rest.size() > ending.size() && IsSeparator(m_rest[2]));
      if (whole && m_rest.starts_with(ending)) m_rest.remove_prefix(ending.size());
    }
  }

  /// Behind the hour, at the ':'.
  bool ScanTime(const DatePart& hour) {
    if (m_time.found) return false;
    m_time.found = true;
    m_time.hour = hour.value;
    DatePart part;
    m_rest.remove_prefix(1);
    if (!TakeNumber(part)) return false;
    m_time.minute = part.value;
    if (!m_rest.empty() && m_rest.front() == L':') {
      m_rest.remove_prefix(1);
      if (!TakeNumber(part)) return false;
      m_time.second = part.value;
      ScanFraction();
    }
    if (m_rest == L"z") m_rest.remove_prefix(1);
    return m_time.hour <= 23 && m_time.minute <= 59 && m_time.second <= 59;
  }

  void ScanFraction() {
    DatePart part;
    if (m_rest.size() < 2 || (m_rest.front() != L'.' && m_rest.front() != L',') || m_rest[1] < L'0' ||
        m_rest[1] > L'9') {
      return;
    }
    m_rest.remove_prefix(1);
    if (TakeNumber(part)) m_time.fraction = part.value / std::pow(10.0, part.digits);
  }

  bool ScanWord() {
    std::wstring word;
    for (; !m_rest.empty() && !IsDigitHere(); m_rest.remove_prefix(1)) {
      // A full stop inside belongs to the word ("a.m."); any other separator ends it.
      const bool inside = m_rest.front() == L'.' && m_rest.size() > 1 && !IsSeparator(m_rest[1]) &&
                          (m_rest[1] < L'0' || m_rest[1] > L'9');
      if (IsSeparator(m_rest.front()) && !inside) break;
      if (m_rest.front() != L'.') word += m_rest.front();
    }
    const int month = std::max(MonthOf(word, m_words), MonthOf(word, m_english));
    if (month > 0) {
      m_parts.push_back({month, 0});
      return m_parts.size() <= 4;
    }
    return TakeHalf(word) || IsWeekday(word, m_words) || IsWeekday(word, m_english);
  }

  bool TakeHalf(const std::wstring& word) {
    std::wstring am = m_words.am;
    std::wstring pm = m_words.pm;
    std::erase(am, L'.');
    std::erase(pm, L'.');
    const bool isAm = word == L"am" || word == L"a" || (!am.empty() && word == am);
    const bool isPm = word == L"pm" || word == L"p" || (!pm.empty() && word == pm);
    if ((!isAm && !isPm) || m_half != Half::none) return false;
    m_half = isAm ? Half::am : Half::pm;
    return true;
  }

  bool ApplyHalf() {
    if (!m_time.found && !m_parts.empty() && m_parts.back().digits > 0) {  // "3 PM"
      m_time.found = true;
      m_time.hour = m_parts.back().value;
      m_parts.pop_back();
    }
    if (!m_time.found || m_time.hour < 1 || m_time.hour > 12) return false;
    m_time.hour = m_time.hour % 12 + (m_half == Half::pm ? 12 : 0);
    return true;
  }

  std::wstring_view m_rest;
  const DateWords& m_words;
  const DateWords& m_english;
  std::vector<DatePart> m_parts;
  TimeParts m_time;
  Half m_half = Half::none;
};

int FullYear(const DatePart& part) {
  if (part.digits > 2) return part.value;
  return part.value + (part.value < 30 ? 2000 : 1900);
}

/// Tries one reading of the parts; days and months have at most two digits.
DateResult TryDate(const DatePart& year, const DatePart& month, const DatePart& day, DATE& date) {
  if (year.digits < 2 || month.digits > 2 || day.digits > 2) return DateResult::typeMismatch;
  SYSTEMTIME time;
  time.wYear = FullYear(year);
  time.wMonth = month.value;
  time.wDay = day.value;
  if (SystemTimeToVariantTime(time, &date)) return DateResult::ok;
  time.wYear = 2000 + time.wYear % 400;  // the same calendar in a year within the range
  DATE other = 0.0;
  return FullYear(year) > 9999 && SystemTimeToVariantTime(time, &other) ? DateResult::overflow
                                                                        : DateResult::typeMismatch;
}

DateResult FromThreeNumbers(const std::vector<DatePart>& p, DateOrder order, DATE& date) {
  if (p[0].digits > 2) return TryDate(p[0], p[1], p[2], date);
  struct Reading {
    int year, month, day;
  };
  constexpr Reading dmy{2, 1, 0};
  constexpr Reading mdy{2, 0, 1};
  constexpr Reading ymd{0, 1, 2};
  std::array<Reading, 3> readings = {dmy, mdy, ymd};
  if (order == DateOrder::monthDayYear) readings = {mdy, dmy, ymd};
  if (order == DateOrder::yearMonthDay) readings = {ymd, mdy, dmy};
  DateResult result = DateResult::typeMismatch;
  for (const Reading& reading : readings) {
    const auto at = [&](int index) { return p[static_cast<std::size_t>(index)]; };
    result = TryDate(at(reading.year), at(reading.month), at(reading.day), date);
    if (result != DateResult::typeMismatch) return result;
  }
  return result;
}

DatePart CurrentYear() {
  SYSTEMTIME now;
  VariantTimeToSystemTime(GetCurrentDate(), &now);
  return {now.wYear, 4};
}

DateResult FromTwoNumbers(const std::vector<DatePart>& p, DateOrder order, DATE& date) {
  const DatePart first{1, 1};
  if (p[0].digits > 2) return TryDate(p[0], p[1], first, date);
  if (p[1].digits > 2) return TryDate(p[1], p[0], first, date);
  const bool dayFirst = order == DateOrder::dayMonthYear;
  const DatePart year = CurrentYear();
  const DateResult result = TryDate(year, p[dayFirst ? 1 : 0], p[dayFirst ? 0 : 1], date);
  if (result == DateResult::ok) return result;
  return TryDate(year, p[dayFirst ? 0 : 1], p[dayFirst ? 1 : 0], date);
}

DateResult FromNamedMonth(const DatePart& month, const std::vector<DatePart>& numbers, DATE& date) {
  const DatePart named{month.value, 1};
  if (numbers.size() == 1) {
    if (numbers[0].digits > 2) return TryDate(numbers[0], named, {1, 1}, date);
    return TryDate(CurrentYear(), named, numbers[0], date);
  }
  const bool yearLeads = numbers[0].digits > 2 || numbers[0].value > 31;
  return yearLeads ? TryDate(numbers[0], named, numbers[1], date)
                   : TryDate(numbers[1], named, numbers[0], date);
}

DateResult FromParts(const std::vector<DatePart>& parts, DATE& date) {
  const DateOrder order = coregui::CurrentLocaleData().dates.order;
  std::vector<DatePart> numbers;
  std::vector<DatePart> months;
  for (const DatePart& part : parts) (part.digits == 0 ? months : numbers).push_back(part);
  if (months.empty() && numbers.size() == 3) return FromThreeNumbers(numbers, order, date);
  if (months.empty() && numbers.size() == 2) return FromTwoNumbers(numbers, order, date);
  if (months.size() == 1 && (numbers.size() == 1 || numbers.size() == 2)) {
    return FromNamedMonth(months[0], numbers, date);
  }
  return DateResult::typeMismatch;
}

}  // namespace

DateResult VarDateFromStr(const wchar_t* text, DATE* date) {
  const std::wstring plain = Normalise(text == nullptr ? L"" : text);
  DateScanner scanner(plain);
  if (!scanner.Scan()) return DateResult::typeMismatch;
  DATE day = 0.0;
  if (!scanner.Parts().empty()) {
    const DateResult result = FromParts(scanner.Parts(), day);
    if (result != DateResult::ok) return result;
  } else if (!scanner.Time().found) {
    return DateResult::typeMismatch;
  }
  const TimeParts& time = scanner.Time();
  const double moment = (time.hour * 3600.0 + time.minute * 60.0 + time.second + time.fraction) / 86400.0;
  *date = day < 0 ? day - moment : day + moment;
  return DateResult::ok;
}
