#include <limits>
#include <string_view>
#include <utility>

#include "platform/Locale.h"

namespace coregui {
namespace {

bool IsBlank(wchar_t c) {
  return c == L' ' || c == L'\t' || c == 0x00A0 || c == 0x202F || c == 0x2009;
}

bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

/// Reads an amount from left to right; what may stand where is decided by what was read so far.
class AmountReader {
 public:
  AmountReader(std::wstring_view text, const UserLocale& locale) : m_rest(text), m_locale(locale) {}

  bool Read(std::int64_t& tenThousandths) {
    while (!m_rest.empty()) {
      if (!ReadDigit() && !ReadMark()) return false;
    }
    if (m_digits == 0 || m_open != m_closed) return false;
    for (; m_decimals < 4; ++m_decimals) {
      if (!Append(0)) return false;
    }
    if (m_roundUp && m_value == kLargest) return false;
    if (m_roundUp) ++m_value;
    tenThousandths = m_negative ? -m_value : m_value;
    return true;
  }

 private:
  static constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

  bool Append(int digit) {
    m_overflow = m_value > (kLargest - digit) / 10;
    if (!m_overflow) m_value = m_value * 10 + digit;
    return !m_overflow;
  }

  bool ReadDigit() {
    if (!IsDigit(m_rest.front()) || m_ended) return false;
    const int digit = m_rest.front() - L'0';
    m_rest.remove_prefix(1);
    ++m_digits;
    if (m_inFraction && m_decimals >= 4) {
      if (m_decimals++ == 4) m_roundUp = digit >= 5;
      return true;
    }
    if (m_inFraction) ++m_decimals;
    return Append(digit);
  }

  /// Anything that is no digit.
  bool ReadMark() {
    if (m_overflow || IsDigit(m_rest.front())) return false;
    if (Take(m_locale.decimal)) {
      const bool first = !m_inFraction && !m_ended;
      m_inFraction = true;
      return first;
    }
    if (m_digits > 0 && !m_inFraction && !m_ended && TakeGroup()) return true;
    if (IsBlank(m_rest.front())) {
      m_rest.remove_prefix(1);
      return true;
    }
    if (Take(m_locale.currency)) {
      m_ended = m_digits > 0;
      return !std::exchange(m_symbol, true);
    }
    return ReadSign();
  }

  bool TakeGroup() {
    if (Take(m_locale.thousands)) return true;
    const bool apostrophe = m_locale.thousands == L"\u2019" && m_rest.front() == L'\'';
    const bool blank = IsBlank(m_rest.front()) && m_rest.size() > 1 && IsDigit(m_rest[1]) &&
                       !m_locale.thousands.IsEmpty() && IsBlank(m_locale.thousands[0]);
    if (apostrophe || blank) m_rest.remove_prefix(1);
    return apostrophe || blank;
  }

  bool ReadSign() {
    const wchar_t mark = m_rest.front();
    if (mark == L'(' && m_digits == 0 && !m_signed) {
      m_open = m_negative = m_signed = true;
    } else if (mark == L')' && m_open && !m_closed && m_digits > 0) {
      m_closed = m_ended = true;
    } else if ((mark == L'-' || mark == L'+' || mark == 0x2212 || Starts(m_locale.negative)) && !m_signed) {
      m_signed = true;
      m_negative = mark != L'+';
      m_ended = m_digits > 0;
    } else {
      return false;
    }
    m_rest.remove_prefix(1);
    return true;
  }

  bool Starts(const CString& text) const { return !text.IsEmpty() && m_rest.starts_with(text.Str()); }
  bool Take(const CString& text) {
    if (!Starts(text)) return false;
    m_rest.remove_prefix(text.Str().size());
    return true;
  }

  std::wstring_view m_rest;
  const UserLocale& m_locale;
  std::int64_t m_value = 0;
  int m_digits = 0;
  int m_decimals = 0;  ///< digits seen behind the separator; the first four count
  bool m_inFraction = false;
  bool m_roundUp = false;
  bool m_ended = false;  ///< no digit may follow
  bool m_symbol = false;
  bool m_signed = false;
  bool m_negative = false;
  bool m_open = false;
  bool m_closed = false;
  bool m_overflow = false;
};

}  // namespace

bool ParseCurrency(const wchar_t* text, std::int64_t& tenThousandths) {
  if (text == nullptr) return false;
  return AmountReader(text, GetUserLocale()).Read(tenThousandths);
}

}  // namespace coregui
