#include "grid/data/NumberText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
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
  static constexpr std::size_t LONGEST = 3;
  constexpr Mark() = default;
  constexpr explicit Mark(std::wstring_view text) : m_length(std::min(text.size(), LONGEST)) {
    std::copy_n(text.begin(), m_length, m_characters.begin());
  }
  std::size_t Length() const { return m_length; }
  /// Returns where the mark ends; LONGEST characters are written in any case.
  wchar_t* WriteAt(wchar_t* at) const {
    std::memcpy(at, m_characters.data(), sizeof m_characters);
    return at + m_length;
  }

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

const Marks& PlainMarks(bool leadingZero) {
  static constexpr Mark POINT(L".");
  static constexpr Mark MINUS(L"-");
  static constexpr Marks WITH_ZERO{POINT, {}, MINUS, true, true};
  static constexpr Marks WITHOUT{POINT, {}, MINUS, false, true};
  return leadingZero ? WITH_ZERO : WITHOUT;
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

void WriteFour(wchar_t* at, std::uint32_t digits) {
  WritePair(at, digits / 100);
  WritePair(at + 2, digits % 100);
}

void WriteEight(wchar_t* at, std::uint32_t digits) {
  WriteFour(at, digits / 10'000);
  WriteFour(at + 4, digits % 10'000);
}

/// How many of four digits, of which one is not 0, are zeros at the end.
std::size_t EndingZeros(std::uint32_t digits) {
  return static_cast<std::size_t>(digits % 10 == 0) + static_cast<std::size_t>(digits % 100 == 0) +
         static_cast<std::size_t>(digits % 1000 == 0);
}

/// How many digits a number below 10^19 has; 1 for 0.
std::size_t CountDigits(std::uint64_t number) {
  static constexpr auto POWERS = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
  }();
  // log10(2) = 1233 / 4096 closely enough; what is one too many shows in the table.
  const auto most = (static_cast<std::size_t>(std::bit_width(number | 1U)) * 1233) >> 12U;
  return most + static_cast<std::size_t>((number | 1U) >= POWERS[most]);
}

/// A number's text on its way into its place. Little here depends on the digits by a branch: the numbers of a
/// column differ in them without a rule, and a wrong guess costs more than the digits do.
class NumberLine {
 public:
  /// `places`: decimals to show, or a negative number for those up to the last that is not 0.
  NumberLine(const DecimalDigits& digits, int places, const Marks& marks)
      : m_digits(digits), m_places(digits.IsWhole() ? std::max(places, 0) : places), m_marks(marks) {}

  void Write(bool negative, CellText& text) const {
    const bool noWhole = m_digits.whole == 0 && !m_marks.leadingZero && m_places != 0;
    const std::size_t count = noWhole ? 0 : CountDigits(m_digits.whole);
    const std::size_t marks = (count - (noWhole ? 0 : 1)) / GROUP;
    const std::size_t sign = negative ? m_marks.minus.Length() : 0;
    const std::size_t whole = sign + count + marks * m_marks.thousands.Length();
    wchar_t* const begin = text.Open(whole + 2 * Mark::LONGEST + DecimalDigits::PLACES);
    // What a mark writes too much, the digits behind it overwrite.
    if (negative) m_marks.minus.WriteAt(begin);
    WriteWhole(count, begin + whole);
    text.Close(static_cast<std::size_t>(WriteDecimals(begin + whole) - begin));
  }

 private:
  static constexpr std::size_t GROUP = 3;
  static_assert(Mark::LONGEST <= GROUP);

  /// The whole part ends at `end`.
  void WriteWhole(std::size_t count, wchar_t* end) const {
    std::uint64_t whole = m_digits.whole;
    for (; count > GROUP; count -= GROUP) {
      const std::uint64_t left = whole / 1000;
      const auto group = static_cast<std::uint32_t>(whole - left * 1000);
      wchar_t* const mark = end - GROUP - m_marks.thousands.Length();
      m_marks.thousands.WriteAt(mark);
      end[-3] = static_cast<wchar_t>(L'0' + group / 100);
      WritePair(end - 2, group % 100);
      end = mark;
      whole = left;
    }
    if (count == 0) return;
    // The places of one to three digits, of which later ones win.
    const auto first = static_cast<std::uint32_t>(whole);
    wchar_t* const begin = end - count;
    begin[0] = static_cast<wchar_t>(L'0' + first / 100);
    begin[count / 3] = static_cast<wchar_t>(L'0' + first / 10 % 10);
    begin[count - 1] = static_cast<wchar_t>(L'0' + first % 10);
  }
  wchar_t* WriteDecimals(wchar_t* at) const {
    if (m_places == 0) return at;
    at = m_marks.decimal.WriteAt(at);
    WriteEight(at, static_cast<std::uint32_t>(m_digits.groups[0]));
    WriteEight(at + 8, static_cast<std::uint32_t>(m_digits.groups[1]));
    const auto last = static_cast<std::uint32_t>(m_digits.groups[2]);
    WriteFour(at + 16, last);
    if (m_places > 0) return at + m_places;
    wchar_t* end = at + DecimalDigits::PLACES;
    if (last != 0) return end - EndingZeros(last);
    while (end[-1] == L'0') --end;
    return end;
  }

  const DecimalDigits& m_digits;
  const int m_places;
  const Marks& m_marks;
};

/// The road of nearly all numbers. False where the platform has to decide: what is no number or has more
/// digits, marks out of the usual, a zero with a sign.
bool WriteUsual(double number, const NumberForm& form, const Marks& marks, CellText& text) {
  if (!marks.areUsual || (form.fixedDecimals && form.decimals > DecimalDigits::PLACES)) return false;
  const int decimals = form.fixedDecimals ? std::max(form.decimals, 0) : DecimalDigits::PLACES;
  DecimalDigits digits;
  if (!SplitNumber(number, decimals, digits)) return false;
  const bool negative = std::signbit(number);
  if (negative && form.userLocale && digits.whole == 0 && digits.IsWhole()) return false;
  NumberLine(digits, form.fixedDecimals ? decimals : -1, marks).Write(negative, text);
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

void WriteByPlatform(double number, const NumberForm& form, CellText& text) {
  const std::string plain = PrintPlain(number, form);
  std::wstring wide(plain.begin(), plain.end());
  if (form.userLocale) {
    const std::size_t point = plain.rfind('.');
    const int shown = point == std::string::npos ? 0 : static_cast<int>(plain.size() - point - 1);
    const CString formatted = FormatNumberText(CString(wide), form.fixedDecimals ? form.decimals : shown);
    if (!formatted.IsEmpty()) {
      wide = formatted.Str();
    } else if (point != std::string::npos) {
      wide.replace(point, 1, GetUserLocale().decimal.Str());
    }
  }
  text.Assign(wide);
}

}  // namespace

void WriteNumber(double number, const NumberForm& form, CellText& text) {
  // Without the user's marks a leading zero stays where digits are fixed or a sign stands before it.
  const bool done =
      form.userLocale
          ? WriteUsual(number, form, UserMarks(), text)
          : WriteUsual(number, form, PlainMarks(form.fixedDecimals || std::signbit(number)), text);
  if (!done) WriteByPlatform(number, form, text);
}

}  // namespace coregui
