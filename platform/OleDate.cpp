#include "platform/OleDate.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "platform/LocaleData.h"

namespace {

constexpr std::chrono::sys_days kDayZero = std::chrono::year(1899) / 12 / 30;
constexpr long kFirstDay = (std::chrono::sys_days(std::chrono::year(100) / 1 / 1) - kDayZero).count();
constexpr long kLastDay = (std::chrono::sys_days(std::chrono::year(9999) / 12 / 31) - kDayZero).count();
constexpr double kMillisecondsPerDay = 86400000.0;

/// A date as a whole day and a moment within it.
struct DayAndMoment {
  long day = 0;
  long milliseconds = 0;
};

bool Split(DATE date, DayAndMoment& parts) {
  if (!(date > kFirstDay - 1.0 && date < kLastDay + 1.0)) return false;
  const double whole = std::trunc(date);
  parts.day = static_cast<long>(whole);
  parts.milliseconds = std::lround(std::abs(date - whole) * kMillisecondsPerDay);
  if (parts.milliseconds >= static_cast<long>(kMillisecondsPerDay)) {
    parts.milliseconds = 0;
    ++parts.day;
  }
  return parts.day >= kFirstDay && parts.day <= kLastDay;
}

/// Rounds to the second that a text shows.
bool SplitToSecond(DATE date, DayAndMoment& parts) {
  if (!Split(date, parts)) return false;
  parts.milliseconds = (parts.milliseconds + 500) / 1000 * 1000;
  if (parts.milliseconds >= static_cast<long>(kMillisecondsPerDay)) {
    parts.milliseconds = 0;
    ++parts.day;
  }
  return parts.day <= kLastDay;
}

SYSTEMTIME Join(const DayAndMoment& parts) {
  const std::chrono::sys_days days = kDayZero + std::chrono::days(parts.day);
  const std::chrono::year_month_day ymd(days);
  SYSTEMTIME time;
  time.wYear = static_cast<int>(ymd.year());
  time.wMonth = static_cast<int>(static_cast<unsigned>(ymd.month()));
  time.wDay = static_cast<int>(static_cast<unsigned>(ymd.day()));
  time.wDayOfWeek = static_cast<int>(std::chrono::weekday(days).c_encoding());
  time.wHour = static_cast<int>(parts.milliseconds / 3600000);
  time.wMinute = static_cast<int>(parts.milliseconds / 60000 % 60);
  time.wSecond = static_cast<int>(parts.milliseconds / 1000 % 60);
  time.wMilliseconds = static_cast<int>(parts.milliseconds % 1000);
  return time;
}

bool IsWithin(int value, int first, int last) {
  return value >= first && value <= last;
}

}  // namespace

bool SystemTimeToVariantTime(const SYSTEMTIME& time, DATE* date) {
  if (!IsWithin(time.wYear, 100, 9999) || !IsWithin(time.wMonth, 1, 12) || !IsWithin(time.wDay, 1, 31) ||
      !IsWithin(time.wHour, 0, 23) || !IsWithin(time.wMinute, 0, 59) || !IsWithin(time.wSecond, 0, 59) ||
      !IsWithin(time.wMilliseconds, 0, 999)) {
    return false;
  }
  const std::chrono::year_month_day ymd(std::chrono::year(time.wYear),
                                        std::chrono::month(static_cast<unsigned>(time.wMonth)),
                                        std::chrono::day(static_cast<unsigned>(time.wDay)));
  if (!ymd.ok()) return false;
  const double day = static_cast<double>((std::chrono::sys_days(ymd) - kDayZero).count());
  const double moment =
      (((time.wHour * 60.0 + time.wMinute) * 60.0 + time.wSecond) * 1000.0 + time.wMilliseconds) /
      kMillisecondsPerDay;
  *date = day < 0 ? day - moment : day + moment;
  return true;
}

bool VariantTimeToSystemTime(DATE date, SYSTEMTIME* time) {
  DayAndMoment parts;
  if (!Split(date, parts)) return false;
  *time = Join(parts);
  return true;
}

CString VarDateToStr(DATE date) {
  DayAndMoment parts;
  if (!SplitToSecond(date, parts)) return {};
  const SYSTEMTIME time = Join(parts);
  const std::string& locale = coregui::CurrentLocaleData().name;
  CString timeText = coregui::WriteTime(locale, time.wHour, time.wMinute, time.wSecond);
  if (parts.day == 0) return timeText;
  const CString dateText = coregui::WriteDate(locale, time.wYear, time.wMonth, time.wDay);
  return parts.milliseconds == 0 ? dateText : dateText + L" " + timeText;
}

DATE GetCurrentDate() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  const std::tm local = *std::localtime(&seconds);
  SYSTEMTIME time;
  time.wYear = local.tm_year + 1900;
  time.wMonth = local.tm_mon + 1;
  time.wDay = local.tm_mday;
  time.wHour = local.tm_hour;
  time.wMinute = local.tm_min;
  time.wSecond = std::min(local.tm_sec, 59);
  time.wMilliseconds = static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                            now - std::chrono::system_clock::from_time_t(seconds))
                                            .count());
  DATE date = 0.0;
  SystemTimeToVariantTime(time, &date);
  return date;
}
