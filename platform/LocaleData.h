#pragma once

#include <array>
#include <string>

#include "platform/Locale.h"

namespace coregui {

enum class DateOrder { dayMonthYear, monthDayYear, yearMonthDay };

/// How a locale names and orders dates. Names are in lower case and without a final '.'.
struct DateWords {
  DateOrder order = DateOrder::monthDayYear;
  std::array<std::wstring, 12> months;
  std::array<std::wstring, 12> shortMonths;
  std::array<std::wstring, 7> days;
  std::array<std::wstring, 7> shortDays;
  std::wstring am;
  std::wstring pm;
};

/// The toolkit's data of one locale.
struct LocaleData {
  UserLocale numbers;
  DateWords dates;
  std::string name;  ///< by which the toolkit finds it again to write dates
};

/// False for an unknown name; an empty one is the desktop's.
bool LoadLocaleData(const std::string& name, LocaleData& data);
/// The locale's short date with a four-digit year.
CString WriteDate(const std::string& localeName, int year, int month, int day);
/// The locale's time of day with seconds, with ':' between.
CString WriteTime(const std::string& localeName, int hour, int minute, int second);

/// The data in force, loaded at the first call.
const LocaleData& CurrentLocaleData();
/// English month and day names, which every locale's dates may use.
const DateWords& EnglishDateWords();

}  // namespace coregui
