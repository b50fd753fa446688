#pragma once

#include "core/Export.h"
#include "platform/CString.h"

/// Broken-down date and time, Gregorian.
struct SYSTEMTIME {
  int wYear = 0;
  int wMonth = 0;      ///< 1 to 12
  int wDayOfWeek = 0;  ///< 0 Sunday
  int wDay = 0;        ///< 1 to 31
  int wHour = 0;
  int wMinute = 0;
  int wSecond = 0;
  int wMilliseconds = 0;
};

/// An automation date: days since 30 December 1899 with the time of day as the fraction. Before that day the
/// whole part is negative and the fraction still counts forwards within its day: -1.25 is 29 December 1899,
/// 06:00.
using DATE = double;

/// Results of date parsing.
enum class DateResult { ok, typeMismatch, overflow };

/// Between broken-down time and date; false for fields outside a real date, or years outside 100 to 9999.
COREGUI_API bool SystemTimeToVariantTime(const SYSTEMTIME& time, DATE* date);
COREGUI_API bool VariantTimeToSystemTime(DATE date, SYSTEMTIME* time);

/// Lenient parse in the user's locale: day, month and year in the locale's order with any of . / - or blanks
/// between, month names short or long (the locale's or English), ISO order where the year leads, two-digit
/// years in 1930 to 2029, time of day with or without seconds and AM/PM, date or time alone. A date that is
/// none in the locale's order but in another is taken so; a missing year is the current one, a missing day
/// the first. Names of weekdays are skipped. `overflow`: a date, but beyond the year 9999.
COREGUI_API DateResult VarDateFromStr(const wchar_t* text, DATE* date);
/// The date's text in the user's locale, to the second: time alone when the day is 0, date alone when the
/// time is midnight, else both. Empty for a number outside the years 100 to 9999.
COREGUI_API CString VarDateToStr(DATE date);
/// Now, local time, to the millisecond.
COREGUI_API DATE GetCurrentDate();
