#include "controls/NumberFormat.h"

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "platform/Locale.h"

namespace coregui {
namespace {

constexpr int kMostDigits = 2;

/// As many digits as the number needs to be read back the same.
CString ShortestText(double value) {
  char text[32];
  constexpr double kFewest = 1e-5;
  constexpr double kMost = 1e15;
  const double size = std::fabs(value);
  const bool fixed = size == 0 || (size >= kFewest && size < kMost);
  const auto end = std::to_chars(text, text + sizeof(text), value,
                                 fixed ? std::chars_format::fixed : std::chars_format::scientific)
                       .ptr;
  return CString::FromUtf8({text, static_cast<std::size_t>(end - text)});
}

/// Reads digits at `at` and steps behind them; -1 for too many of them, 0 for none.
int ReadNumber(const std::wstring& text, std::size_t& at) {
  int value = 0;
  int digits = 0;
  for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at, ++digits) {
    if (digits == kMostDigits) return -1;
    value = value * 10 + (text[at] - L'0');
  }
  return value;
}

}  // namespace

NumberFormat::NumberFormat(Kind kind, const wchar_t* format) : m_kind(kind) {
  if (Read(format)) return;
  m_before.Empty();
  m_directive.Empty();
  m_after.Empty();
  m_decimals = 0;
}

bool NumberFormat::Read(const CString& format) {
  const std::wstring& text = format.Str();
  const std::wstring_view types = m_kind == Kind::real ? L"fFeEgG" : L"di";
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t first = at++;
    CString& around = m_directive.IsEmpty() ? m_before : m_after;
    if (text[first] != L'%') {
      around += text[first];
      continue;
    }
    if (at < text.size() && text[at] == L'%') {
      around += text[at++];
      continue;
    }
    if (!m_directive.IsEmpty()) return false;
    at = text.find_first_not_of(L"-+ #0", at);
    if (at == std::wstring::npos || ReadNumber(text, at) < 0) return false;
    int precision = -1;
    if (at < text.size() && text[at] == L'.') {
      ++at;
      precision = ReadNumber(text, at);
      if (precision < 0) return false;
    }
    if (at >= text.size() || types.find(text[at]) == std::wstring_view::npos) return false;
    const bool fixed = text[at] == L'f' || text[at] == L'F';
    constexpr int kUsualPrecision = 6;
    if (fixed) m_decimals = precision < 0 ? kUsualPrecision : precision;
    ++at;
    m_directive = text.substr(first, at - first);
  }
  return !m_directive.IsEmpty();
}

CString NumberFormat::Text(double value) const {
  if (m_kind == Kind::whole) {
    const wchar_t* directive = m_directive.IsEmpty() ? L"%d" : m_directive.GetString();
    return m_before + CString::Formatted(directive, static_cast<int>(value)) + m_after;
  }
  CString number = m_directive.IsEmpty() ? ShortestText(value) : CString::Formatted(m_directive, value);
  number.Replace(L".", GetUserLocale().decimal);
  return m_before + number + m_after;
}

CString NumberFormat::WithoutSurroundings(const CString& text) const {
  CString number = text;
  number.Trim();
  const CString before = CString(m_before).Trim();
  const CString after = CString(m_after).Trim();
  if (!before.IsEmpty() && number.Left(before.GetLength()) == before) number = number.Mid(before.GetLength());
  if (!after.IsEmpty() && number.Right(after.GetLength()) == after) {
    number = number.Left(number.GetLength() - after.GetLength());
  }
  return number.Trim();
}

}  // namespace coregui
