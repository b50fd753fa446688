#include <algorithm>
#include <array>
#include <string_view>

#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr std::size_t kLongest = 255;

/// The parts of a plain number.
struct PlainNumber {
  bool negative = false;
  std::wstring_view whole;  ///< without leading zeros
  std::wstring_view fraction;
};

std::size_t CountDigits(std::wstring_view text) {
  std::size_t count = 0;
  while (count < text.size() && text[count] >= L'0' && text[count] <= L'9') ++count;
  return count;
}

bool ParsePlain(std::wstring_view text, PlainNumber& number) {
  number.negative = !text.empty() && text.front() == L'-';
  if (number.negative) text.remove_prefix(1);
  number.whole = text.substr(0, CountDigits(text));
  text.remove_prefix(number.whole.size());
  if (!text.empty() && text.front() == L'.') {
    text.remove_prefix(1);
    number.fraction = text.substr(0, CountDigits(text));
    text.remove_prefix(number.fraction.size());
  }
  if (!text.empty() || number.whole.size() + number.fraction.size() == 0) return false;
  number.whole.remove_prefix(std::min(number.whole.find_first_not_of(L'0'), number.whole.size()));
  return true;
}

/// A text that is written from its end to its start, and fails when it grows too long.
class BackwardText {
 public:
  void Put(wchar_t character) {
    if (m_start == 0) {
      m_overflow = true;
    } else {
      m_text[--m_start] = character;
    }
  }
  void Put(std::wstring_view text) {
    std::for_each(text.rbegin(), text.rend(), [this](wchar_t c) { Put(c); });
  }
  CString Take() const {
    return m_overflow ? CString()
                      : CString(m_text.data() + m_start, static_cast<int>(m_text.size() - m_start));
  }

 private:
  std::array<wchar_t, kLongest> m_text;
  std::size_t m_start = kLongest;
  bool m_overflow = false;
};

/// The digits of the rounded number, whole part and fraction together.
class RoundedDigits {
 public:
  /// The number of digits must not exceed kLongest.
  RoundedDigits(const PlainNumber& number, std::size_t decimals) : m_whole(number.whole.size()) {
    const std::size_t taken = std::min(decimals, number.fraction.size());
    wchar_t* end = std::copy(number.whole.begin(), number.whole.end(), m_digits.begin() + 1);
    end = std::copy_n(number.fraction.begin(), taken, end);
    end = std::fill_n(end, decimals - taken, L'0');
    m_text = std::wstring_view(m_digits.data() + 1, static_cast<std::size_t>(end - m_digits.data()) - 1);
    if (number.fraction.size() > decimals && number.fraction[decimals] >= L'5') RoundUp(end);
  }
  std::wstring_view Whole() const { return m_text.substr(0, m_whole); }
  std::wstring_view Fraction() const { return m_text.substr(m_whole); }
  bool IsZero() const { return m_text.find_first_not_of(L'0') == std::wstring_view::npos; }

 private:
  void RoundUp(wchar_t* end) {
    wchar_t* digit = end - 1;
    while (digit > m_digits.data() && *digit == L'9') *digit-- = L'0';
    if (digit > m_digits.data()) {
      ++*digit;
      return;
    }
    *digit = L'1';  // the carry runs out of the number: one more digit in front
    m_text = std::wstring_view(digit, m_text.size() + 1);
    ++m_whole;
  }

  std::array<wchar_t, kLongest + 1> m_digits;  ///< the first place is for the carry
  std::wstring_view m_text;
  std::size_t m_whole;
};

std::wstring_view View(const CString& text) {
  return text.Str();
}

void PutGrouped(BackwardText& out, std::wstring_view digits, std::wstring_view separator) {
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && i % 3 == 0) out.Put(separator);
    out.Put(digits[digits.size() - 1 - i]);
  }
}

void PutSignBehind(BackwardText& out, const UserLocale& locale) {
  if (locale.negativeOrder == 0) out.Put(L')');
  if (locale.negativeOrder == 3 || locale.negativeOrder == 4) out.Put(View(locale.negative));
  if (locale.negativeOrder == 4) out.Put(L' ');
}

void PutSignBefore(BackwardText& out, const UserLocale& locale) {
  if (locale.negativeOrder == 0) out.Put(L'(');
  if (locale.negativeOrder == 2) out.Put(L' ');
  if (locale.negativeOrder == 1 || locale.negativeOrder == 2) out.Put(View(locale.negative));
}

}  // namespace

CString FormatNumberText(const CString& number, int decimals) {
  PlainNumber plain;
  const std::size_t wanted = static_cast<std::size_t>(std::max(decimals, 0));
  if (!ParsePlain(View(number), plain) || wanted > kLongest || plain.whole.size() + wanted > kLongest)
    return {};
  const UserLocale& locale = GetUserLocale();
  const RoundedDigits digits(plain, wanted);
  const bool negative = plain.negative && !digits.IsZero();

  BackwardText out;
  if (negative) PutSignBehind(out, locale);
  if (wanted > 0) {
    out.Put(digits.Fraction());
    out.Put(View(locale.decimal));
  }
  PutGrouped(out, digits.Whole(), View(locale.thousands));
  if (digits.Whole().empty() && (locale.leadingZero || wanted == 0)) out.Put(L'0');
  if (negative) PutSignBefore(out, locale);
  return out.Take();
}

}  // namespace coregui
