#include "grid/data/NumberText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cwchar>
#include <string>
#include <string_view>

#include "platform/Locale.h"

namespace coregui {
namespace {

__extension__ using Wide = unsigned __int128;

constexpr int MAX_EXACT_DECIMALS = 20;
constexpr std::uint64_t TEN_DIGITS = 10'000'000'000ULL;
constexpr int MAX_DECIMALS = 1100;  // no double has more digits
constexpr std::size_t MAX_WHOLE_DIGITS = 310;
constexpr std::size_t LONGEST_MARK = 4;  // characters of a mark that the quick road takes
constexpr std::size_t MOST_DIGITS = 60;

/// A plain number: optional '-', digits, and '.' with more digits.
class PlainText {
 public:
  std::string_view View() const { return {m_begin, m_size}; }
  void Assign(const char* begin, std::size_t size) {
    m_begin = begin;
    m_size = size;
  }
  char* Buffer() { return m_buffer.data(); }
  char* BufferEnd() { return m_buffer.data() + m_buffer.size(); }
  void Print(double number, int decimals) {
    m_long.resize(MAX_WHOLE_DIGITS + static_cast<std::size_t>(decimals) + 3);
    const auto end = std::to_chars(m_long.data(), m_long.data() + m_long.size(), number,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    Assign(m_long.data(), static_cast<std::size_t>(end - m_long.data()));
  }

 private:
  const char* m_begin = nullptr;
  std::size_t m_size = 0;
  std::array<char, 64> m_buffer{};
  std::string m_long;
};

Wide PowerOfTen(int exponent) {
  static const auto powers = [] {
    std::array<Wide, MAX_EXACT_DECIMALS + 1> values{};
    values[0] = 1;
    for (std::size_t i = 1; i < values.size(); ++i) values[i] = values[i - 1] * 10;
    return values;
  }();
  return powers[static_cast<std::size_t>(exponent)];
}

/// A number's value cut into the digits before the point and, times a power of ten, those after it.
struct Digits {
  std::uint64_t whole = 0;
  Wide fraction = 0;
};

/// Exact for a magnitude below 2^63 and at most 20 decimals: the value is m / 2^k with m < 2^53, and the
/// fraction times 10^20 stays below 2^53 * 2^67. Rounds to nearest, a tie to the even digit, as the C library
/// does.
bool SplitExactly(double number, int decimals, Digits& digits) {
  const auto bits = std::bit_cast<std::uint64_t>(number);
  const int exponentBits = static_cast<int>((bits >> 52U) & 0x7FFU);
  if (exponentBits >= 1023 + 63 || decimals > MAX_EXACT_DECIMALS) return false;
  const std::uint64_t low = bits & ((1ULL << 52U) - 1);
  const std::uint64_t mantissa = exponentBits == 0 ? low : (low | (1ULL << 52U));
  const int exponent = std::max(exponentBits, 1) - 1075;
  if (exponent >= 0) {
    digits.whole = mantissa << static_cast<unsigned>(exponent);
    return true;
  }
  const auto shift = static_cast<unsigned>(-exponent);
  digits.whole = shift < 64 ? mantissa >> shift : 0;
  const std::uint64_t rest = shift < 64 ? mantissa & ((1ULL << shift) - 1) : mantissa;
  if (rest == 0 || shift >= 128) return true;  // below 2^-75: nothing in 20 places
  const Wide one = PowerOfTen(decimals);
  const Wide scaled = static_cast<Wide>(rest) * one;
  digits.fraction = scaled >> shift;
  const Wide left = scaled - (digits.fraction << shift);
  const Wide half = static_cast<Wide>(1) << (shift - 1);
  const bool odd = ((decimals > 0 ? static_cast<std::uint64_t>(digits.fraction) : digits.whole) & 1U) != 0;
  if (left > half || (left == half && odd)) ++digits.fraction;
  if (digits.fraction == one) {
    digits.fraction = 0;
    ++digits.whole;
  }
  return true;
}

char* WriteBackwards(char* end, std::uint64_t value) {
  do {
    *--end = static_cast<char>('0' + value % 10);
    value /= 10;
  } while (value != 0);
  return end;
}

char* WriteBackwards(char* end, std::uint64_t value, int digits) {
  // Ten digits take two numbers of 32 bits, whose divisions are quick.
  auto low = static_cast<std::uint32_t>(value % 100'000);
  auto high = static_cast<std::uint32_t>(value / 100'000);
  for (int i = 0; i < digits && i < 5; ++i, low /= 10) *--end = static_cast<char>('0' + low % 10);
  for (int i = 5; i < digits; ++i, high /= 10) *--end = static_cast<char>('0' + high % 10);
  return end;
}

/// As "%1.<decimals>f" prints it.
void WritePlain(double number, int decimals, PlainText& text) {
  Digits digits;
  if (!SplitExactly(number, decimals, digits)) {
    text.Print(number, decimals);
    return;
  }
  char* begin = text.BufferEnd();
  const char* const end = begin;
  if (decimals > 10) {
    const auto upper = static_cast<std::uint64_t>(digits.fraction / TEN_DIGITS);
    const auto lower = static_cast<std::uint64_t>(digits.fraction - static_cast<Wide>(upper) * TEN_DIGITS);
    begin = WriteBackwards(begin, lower, 10);
    begin = WriteBackwards(begin, upper, decimals - 10);
  } else {
    begin = WriteBackwards(begin, static_cast<std::uint64_t>(digits.fraction), decimals);
  }
  if (decimals > 0) *--begin = '.';
  begin = WriteBackwards(begin, digits.whole);
  if (std::signbit(number)) *--begin = '-';
  text.Assign(begin, static_cast<std::size_t>(end - begin));
}

std::string_view StripZeros(std::string_view text) {
  while (!text.empty() && text.back() == '0') text.remove_suffix(1);
  while (!text.empty() && text.front() == '0') text.remove_prefix(1);
  return text;
}

/// The shortest road for the number that people mostly write: a whole one.
bool WriteWhole(double number, PlainText& text) {
  if (!(std::fabs(number) < 9.0e15) || number == 0.0) return false;
  const auto whole = static_cast<std::int64_t>(number);
  if (static_cast<double>(whole) != number) return false;
  char* const end = text.BufferEnd();
  char* begin = WriteBackwards(end, static_cast<std::uint64_t>(whole < 0 ? -whole : whole));
  if (whole < 0) *--begin = '-';
  text.Assign(begin, static_cast<std::size_t>(end - begin));
  return true;
}

/// The user's locale as the writer needs it, read again when it changed.
struct Punctuation {
  std::uint32_t version = 0;
  bool known = false;
  std::wstring decimal;
  std::wstring thousands;
  std::wstring minus;
  bool leadingZero = true;
  bool areShort = true;      ///< none of the marks is longer than LONGEST_MARK
  bool leadingMinus = true;  ///< negative numbers are the minus sign and the digits, as most write them

  static const Punctuation& Current() {
    static Punctuation current;
    const std::uint32_t version = GetUserLocaleVersion();
    if (!current.known || current.version != version) current.Read(version);
    return current;
  }

 private:
  void Read(std::uint32_t newVersion) {
    const UserLocale& locale = GetUserLocale();
    version = newVersion;
    known = true;
    decimal = locale.decimal.Str();
    thousands = locale.thousands.Str();
    minus = locale.negative.Str();
    leadingZero = locale.leadingZero;
    leadingMinus = locale.negativeOrder == 1;
    areShort =
        decimal.size() <= LONGEST_MARK && thousands.size() <= LONGEST_MARK && minus.size() <= LONGEST_MARK;
  }
};

void AppendAscii(std::wstring& target, std::string_view text) {
  target.append(text.begin(), text.end());
}

/// A grouped number on its way into a text: 60 digits and their separators fit.
class GroupedText {
 public:
  void Add(wchar_t character) { *m_end++ = character; }
  void Add(const std::wstring& mark) {
    for (const wchar_t character : mark) *m_end++ = character;
  }
  void Finish(CString& target) {
    *m_end = L'\0';
    target.Empty();
    target += m_text.data();
  }

 private:
  std::array<wchar_t, 2 * MOST_DIGITS + 20 * LONGEST_MARK> m_text;
  wchar_t* m_end = m_text.data();
};

/// Whether the text is digits with one '.' at most; finds the point, or the end, and whether a digit is not
/// 0.
bool IsPlain(std::string_view text, std::size_t& point, bool& notZero) {
  point = text.size();
  notZero = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '.' && point == text.size()) {
      point = i;
    } else if (character >= '0' && character <= '9') {
      notZero = notZero || character != '0';
    } else {
      return false;
    }
  }
  return true;
}

/// Groups and punctuates a plain number that already has its digits. False where the platform has to decide:
/// what is no number, a zero with a sign, other negative orders, texts near the limit.
bool WriteGrouped(std::string_view plain, CString& target) {
  const Punctuation& marks = Punctuation::Current();
  const bool negative = plain.front() == '-';
  if (negative) plain.remove_prefix(1);
  std::size_t point = 0;
  bool notZero = false;
  if (!marks.areShort || plain.size() > MOST_DIGITS || !IsPlain(plain, point, notZero)) return false;
  if (negative && (!notZero || !marks.leadingMinus)) return false;
  std::string_view whole = plain.substr(0, point);
  while (!whole.empty() && whole.front() == '0') whole.remove_prefix(1);
  GroupedText text;
  if (negative) text.Add(marks.minus);
  if (whole.empty() && (marks.leadingZero || point == plain.size())) text.Add(L'0');
  std::size_t untilMark = whole.size() % 3 == 0 ? 3 : whole.size() % 3;
  for (const char digit : whole) {
    if (untilMark == 0) {
      text.Add(marks.thousands);
      untilMark = 3;
    }
    text.Add(static_cast<wchar_t>(digit));
    --untilMark;
  }
  if (point < plain.size()) {
    text.Add(marks.decimal);
    for (const char digit : plain.substr(point + 1)) text.Add(static_cast<wchar_t>(digit));
  }
  text.Finish(target);
  return true;
}

std::string_view WithoutPoint(std::string_view text) {
  if (!text.empty() && text.back() == '.') {
    while (!text.empty() && text.back() == '.') text.remove_suffix(1);
  }
  return text.empty() ? std::string_view("0") : text;
}

/// Keeps the target's buffer.
void Store(const std::wstring& source, CString& target) {
  target.Empty();
  target += source.c_str();
}

void ReplaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to) {
  if (from.empty()) return;
  for (std::size_t at = text.find(from); at != std::wstring::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

/// A number of at most 15 digits is a whole number below 2^53 divided by a power of ten below 10^22: one
/// exact operation on exact operands, so the result is the nearest double.
bool ReadShort(std::wstring_view text, double& number) {
  const bool negative = !text.empty() && text.front() == L'-';
  if (negative) text.remove_prefix(1);
  if (text.empty() || text.size() > 16) return false;
  std::uint64_t whole = 0;
  int digits = 0;
  int decimals = -1;
  for (const wchar_t character : text) {
    if (character == L'.' && decimals < 0) {
      decimals = 0;
    } else if (character >= L'0' && character <= L'9') {
      whole = whole * 10 + static_cast<std::uint64_t>(character - L'0');
      ++digits;
      if (decimals >= 0) ++decimals;
    } else {
      return false;
    }
  }
  if (digits == 0 || digits > 15) return false;
  number = static_cast<double>(whole) /
           static_cast<double>(static_cast<std::uint64_t>(PowerOfTen(std::max(decimals, 0))));
  if (negative) number = -number;
  return true;
}

/// The C library reads the process's separator; the text has '.' by now.
locale_t PlainLocale() {
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return plain;
}

void WriteLocale(std::string_view plain, const NumberForm& form, std::wstring& scratch, CString& text) {
  if (WriteGrouped(plain, text)) return;
  scratch.clear();
  AppendAscii(scratch, plain);
  const CString source{std::wstring_view(scratch)};
  const std::size_t point = plain.rfind('.');
  const int shown = point == std::string_view::npos ? 0 : static_cast<int>(plain.size() - point - 1);
  text = FormatNumberText(source, form.fixedDecimals ? std::max(form.decimals, 0) : shown);
  if (!text.IsEmpty()) return;
  text = source;
  text.Replace(L".", GetUserLocale().decimal);
}

}  // namespace

void WriteNumber(double number, const NumberForm& form, CString& text) {
  PlainText buffer;
  std::string_view plain;
  if (form.fixedDecimals) {
    WritePlain(number, std::clamp(form.decimals, 0, MAX_DECIMALS), buffer);
    plain = buffer.View();
  } else if (WriteWhole(number, buffer)) {
    plain = buffer.View();
  } else {
    WritePlain(number, MAX_EXACT_DECIMALS, buffer);
    plain = StripZeros(buffer.View());
  }
  plain = WithoutPoint(plain);
  thread_local std::wstring scratch;
  if (form.userLocale) {
    WriteLocale(plain, form, scratch, text);
    return;
  }
  scratch.clear();
  AppendAscii(scratch, plain);
  Store(scratch, text);
}

double ReadNumber(const CString& text) {
  const UserLocale& locale = GetUserLocale();
  std::wstring plain = text.Str();
  ReplaceAll(plain, locale.thousands.Str(), L"");
  ReplaceAll(plain, locale.currency.Str(), L"");
  if (locale.decimal != L".") ReplaceAll(plain, locale.decimal.Str(), L".");
  double number = 0.0;
  return ReadShort(plain, number) ? number : wcstod_l(plain.c_str(), nullptr, PlainLocale());
}

}  // namespace coregui
