#include "platform/LocaleData.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

namespace coregui {
namespace {

CString FromQ(const QString& text) {
  return CString(text.toStdWString());
}

std::wstring Word(const QString& name) {
  QString word = name.toLower();
  if (word.endsWith('.')) word.chop(1);
  return word.toStdWString();
}

QLocale Find(const std::string& name) {
  if (name.empty()) return QLocale(QLocale::system().name());
  return QLocale(QString::fromStdString(name));
}

/// "C" has no conventions of its own: it writes as the United States do.
QLocale WithConventions(const QLocale& locale) {
  return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

/// The toolkit answers an unknown name with "C" or with a relative.
bool IsKnown(const std::string& name, const QLocale& locale) {
  if (name.empty() || name == "C" || name == "POSIX") return true;
  const QString wanted = QString::fromStdString(name).section('.', 0, 0).replace('-', '_');
  return locale.name() == wanted || (!wanted.contains('_') && locale.name().section('_', 0, 0) == wanted);
}

/// Digits after the separator in the locale's amounts.
int CurrencyDigits(const QLocale& locale) {
  const QString amount = locale.toCurrencyString(0.0, QString(""));
  const qsizetype separator = amount.indexOf(locale.decimalPoint());
  if (separator < 0) return 0;
  int digits = 0;
  for (qsizetype i = separator + 1; i < amount.size() && amount[i].isDigit(); ++i) ++digits;
  return digits;
}

UserLocale Numbers(const QLocale& locale) {
  UserLocale numbers;
  numbers.decimal = FromQ(locale.decimalPoint());
  numbers.thousands = FromQ(locale.groupSeparator());
  if (!locale.currencySymbol().isEmpty()) numbers.currency = FromQ(locale.currencySymbol());
  numbers.negativeOrder = locale.toString(-1).endsWith(locale.negativeSign()) ? 3 : 1;
  numbers.currencyDigits = CurrencyDigits(locale);
  // The negative sign stays '-': the typographic minus that some locales prefer is not read back as a number.
  return numbers;
}

DateOrder Order(const QString& pattern) {
  const qsizetype day = pattern.indexOf('d');
  const qsizetype month = pattern.indexOf('M');
  const qsizetype year = pattern.indexOf('y');
  if (year < month && year < day) return DateOrder::yearMonthDay;
  return month < day ? DateOrder::monthDayYear : DateOrder::dayMonthYear;
}

DateWords Dates(const QLocale& locale) {
  DateWords words;
  words.order = Order(locale.dateFormat(QLocale::ShortFormat));
  for (int i = 0; i < 12; ++i) {
    words.months[static_cast<std::size_t>(i)] = Word(locale.monthName(i + 1, QLocale::LongFormat));
    words.shortMonths[static_cast<std::size_t>(i)] = Word(locale.monthName(i + 1, QLocale::ShortFormat));
  }
  for (int i = 0; i < 7; ++i) {
    words.days[static_cast<std::size_t>(i)] = Word(locale.dayName(i + 1, QLocale::LongFormat));
    words.shortDays[static_cast<std::size_t>(i)] = Word(locale.dayName(i + 1, QLocale::ShortFormat));
  }
  words.am = Word(locale.amText());
  words.pm = Word(locale.pmText());
  return words;
}

QString DatePattern(const QLocale& locale) {
  QString pattern = locale.dateFormat(QLocale::ShortFormat);
  if (!pattern.contains(QLatin1String("yyyy"))) pattern.replace(QLatin1String("yy"), QLatin1String("yyyy"));
  return pattern;
}

QString TimePattern(const QLocale& locale) {
  QString pattern = locale.timeFormat(QLocale::ShortFormat);
  pattern.replace(QChar(0x202F), ' ').replace('.', ':');
  if (!pattern.contains('s')) pattern.insert(pattern.lastIndexOf('m') + 1, QLatin1String(":ss"));
  return pattern;
}

}  // namespace

bool LoadLocaleData(const std::string& name, LocaleData& data) {
  const QLocale found = Find(name);
  if (!IsKnown(name, found)) return false;
  const QLocale locale = WithConventions(found);
  data.numbers = Numbers(locale);
  data.numbers.name = FromQ(found.name());
  data.dates = Dates(locale);
  data.name = locale.name().toStdString();
  return true;
}

CString WriteDate(const std::string& localeName, int year, int month, int day) {
  const QLocale locale(QString::fromStdString(localeName));
  return FromQ(locale.toString(QDate(year, month, day), DatePattern(locale)));
}

CString WriteTime(const std::string& localeName, int hour, int minute, int second) {
  const QLocale locale(QString::fromStdString(localeName));
  return FromQ(locale.toString(QTime(hour, minute, second), TimePattern(locale)));
}

}  // namespace coregui
