#include "grid/data/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "grid/data/DecimalDigits.h"
#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr int MAX_DECIMALS = 1100;  // no double has more digits
constexpr std::size_t MAX_WHOLE_DIGITS = 310;

/// One of the user's marks in a number, where it is as short as nearly all are.
class Mark {
 public:
  static constexpr std::size_t LONGEST = 4;
  Mark() = default;
  explicit Mark(const std::wstring& text) : m_length(std::min(text.size(), LONGEST)) {
    std::copy_n(text.begin(), m_length, m_characters.begin());
  }
  /// Puts the mark before `at` and returns where it begins.
  wchar_t* WriteBefore(wchar_t* at) const {
    for (std::size_t i = m_length; i-- > 0;) *--at = m_characters[i];
    return at;
  }
  wchar_t* WriteAt(wchar_t* at) const { return std::copy_n(m_characters.begin(), m_length, at); }

 private:
  std::array<wchar_t, LONGEST> m_characters{};
  std::size_t m_length = 0;
};

/// How a number's digits are set apart.
struct Marks {
  Mark decimal;
  Mark thousands;
  Mark minus;
  bool leadingZero = true;
  bool areUsual = true;  ///< none is longer than a Mark, and the minus sign stands before the digits
};

/// The user's marks, read again when the locale changed.
const Marks& UserMarks() {
  static Marks marks;
  static std::uint32_t version = 0;
  static bool known = false;
  if (known && version == GetUserLocaleVersion()) return marks;
  const UserLocale& locale = GetUserLocale();
  const auto isShort = [](const CString& text) { return text.Str().size() <= Mark::LONGEST; };
  marks.decimal = Mark(locale.decimal.Str());
  marks.thousands = Mark(locale.thousands.Str());
  marks.minus = Mark(locale.negative.Str());
  marks.leadingZero = locale.leadingZero;
  marks.areUsual = isShort(locale.decimal) && isShort(locale.thousands) && isShort(locale.negative) &&
                   locale.negativeOrder == 1;
  version = GetUserLocaleVersion();
  known = true;
  return marks;
}

Marks PlainMarks(bool leadingZero) {
  static const Mark point(L".");
  static const Mark minus(L"-");
  return {point, {}, minus, leadingZero, true};
}

/// 00 to 99 as characters.
constexpr auto PAIRS = [] {
  std::array<wchar_t, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<wchar_t>(L'0' + i / 10);
    pairs[2 * i + 1] = static_cast<wchar_t>(L'0' + i % 10);
  }
  return pairs;
}();

void WritePair(wchar_t* at, std::uint32_t pair) {
  std::copy_n(PAIRS.begin() + static_cast<std::ptrdiff_t>(2 * pair), 2, at);
}

void WriteTen(wchar_t* at, std::uint64_t value) {
  constexpr std::uint32_t EIGHT_DIGITS = 100'000'000;
  const auto top = static_cast<std::uint32_t>(value / EIGHT_DIGITS);
  const auto rest = static_cast<std::uint32_t>(value - static_cast<std::uint64_t>(top) * EIGHT_DIGITS);
  const std::uint32_t high = rest / 10'000;
  const std::uint32_t low = rest % 10'000;
  WritePair(at, top);
  WritePair(at + 2, high / 100);
  WritePair(at + 4, high % 100);
  WritePair(at + 6, low / 100);
  WritePair(at + 8, low % 100);
}

/// A number on its way into a text: the whole part grows to the front, the decimals to the back.
class NumberLine {
 public:
  explicit NumberLine(const Marks& marks) : m_marks(marks) {}
  /// `decimals` places, or with a negative number those up to the last that is not 0.
  void WriteDecimals(const DecimalDigits& digits, int decimals) {
    if (decimals == 0 || (decimals < 0 && digits.IsWhole())) return;
    wchar_t* const places = m_marks.decimal.WriteAt(m_end);
    WriteTen(places, digits.upper);
    if (decimals < 0 && digits.lower == 0) {
      m_end = WithoutZeros(places + DecimalDigits::PLACES / 2);
      return;
    }
    WriteTen(places + DecimalDigits::PLACES / 2, digits.lower);
    m_end = decimals < 0 ? WithoutZeros(places + DecimalDigits::PLACES) : places + decimals;
  }
  void WriteWhole(std::uint64_t whole) {
    if (whole == 0 && (m_marks.leadingZero || m_end == m_begin)) *--m_begin = L'0';
    while (whole >= 1000) {
      const std::uint64_t left = whole / 1000;
      const auto group = static_cast<std::uint32_t>(whole - left * 1000);
      m_begin -= 3;
      m_begin[0] = static_cast<wchar_t>(L'0' + group / 100);
      WritePair(m_begin + 1, group % 100);
      m_begin = m_marks.thousands.WriteBefore(m_begin);
      whole = left;
    }
    for (auto first = static_cast<std::uint32_t>(whole); first != 0; first /= 10)
      *--m_begin = static_cast<wchar_t>(L'0' + first % 10);
  }
  void WriteMinus() { m_begin = m_marks.minus.WriteBefore(m_begin); }
  void CopyTo(std::wstring& text) const { text.assign(m_begin, static_cast<std::size_t>(m_end - m_begin)); }

 private:
  static constexpr std::size_t WHOLE_ROOM = 19 + 7 * Mark::LONGEST;  // 19 digits, 6 separators, the sign

  static wchar_t* WithoutZeros(wchar_t* end) {
    while (end[-1] == L'0') --end;
    return end;
  }

  const Marks& m_marks;
  std::array<wchar_t, WHOLE_ROOM + Mark::LONGEST + DecimalDigits::PLACES> m_room;
  wchar_t* m_begin = m_room.data() + WHOLE_ROOM;
  wchar_t* m_end = m_begin;
};

/// The road of nearly all numbers. False where the platform has to decide: what is no number or has more
/// digits, marks out of the usual, a zero with a sign.
bool WriteUsual(double number, const NumberForm& form, const Marks& marks, std::wstring& text) {
  if (!marks.areUsual || (form.fixedDecimals && form.decimals > DecimalDigits::PLACES)) return false;
  const int decimals = form.fixedDecimals ? std::max(form.decimals, 0) : DecimalDigits::PLACES;
  DecimalDigits digits;
  if (!SplitNumber(number, decimals, digits)) return false;
  const bool negative = std::signbit(number);
  if (negative && form.userLocale && digits.whole == 0 && digits.IsWhole()) return false;
  NumberLine line(marks);
  line.WriteDecimals(digits, form.fixedDecimals ? decimals : -1);
  line.WriteWhole(digits.whole);
  if (negative) line.WriteMinus();
  line.CopyTo(text);
  return true;
}

/// As "%1.<decimals>f" prints it, without the zeros at its ends where decimals are not fixed.
std::string PrintPlain(double number, const NumberForm& form) {
  const int decimals =
      form.fixedDecimals ? std::clamp(form.decimals, 0, MAX_DECIMALS) : DecimalDigits::PLACES;
  std::string text(MAX_WHOLE_DIGITS + static_cast<std::size_t>(decimals) + 3, '\0');
  char* const end = text.data() + text.size();
  text.erase(static_cast<std::size_t>(
      std::to_chars(text.data(), end, number, std::chars_format::fixed, decimals).ptr - text.data()));
  if (!form.fixedDecimals) {
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(0, text.find_first_not_of('0'));
  }
  if (!text.empty() && text.back() == '.') text.erase(text.find_last_not_of('.') + 1);
  return text.empty() ? "0" : text;
}

void WriteByPlatform(double number, const NumberForm& form, std::wstring& text) {
  const std::string plain = PrintPlain(number, form);
  text.assign(plain.begin(), plain.end());
  if (!form.userLocale) return;
  const std::size_t point = plain.rfind('.');
  const int shown = point == std::string::npos ? 0 : static_cast<int>(plain.size() - point - 1);
  const CString formatted = FormatNumberText(CString(text), form.fixedDecimals ? form.decimals : shown);
  if (!formatted.IsEmpty()) {
    text = formatted.Str();
  } else if (point != std::string::npos) {
    text.replace(point, 1, GetUserLocale().decimal.Str());
  }
}

}  // namespace

void WriteNumber(double number, const NumberForm& form, std::wstring& text) {
  // Without the user's marks a leading zero stays where digits are fixed or a sign stands before it.
  const bool done =
      form.userLocale
          ? WriteUsual(number, form, UserMarks(), text)
          : WriteUsual(number, form, PlainMarks(form.fixedDecimals || std::signbit(number)), text);
  if (!done) WriteByPlatform(number, form, text);
}

}  // namespace coregui
