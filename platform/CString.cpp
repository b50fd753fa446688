#include "platform/CString.h"

#include <algorithm>
#include <cstdarg>

#include "core/Utf8.h"
#include "platform/TextFormat.h"
#include "platform/UnicodeText.h"

namespace {

std::size_t ClipStart(int start, int length) {
  return static_cast<std::size_t>(std::clamp(start, 0, length));
}

const wchar_t* OrEmpty(const wchar_t* text) {
  return text == nullptr ? L"" : text;
}

}  // namespace

CString::CString(const wchar_t* text) : m_text(OrEmpty(text)) {}

CString CString::FromUtf8(std::string_view text) {
  return {coregui::FromUtf8(text)};
}

std::string CString::ToUtf8() const {
  return coregui::ToUtf8(m_text);
}

int CString::Compare(const wchar_t* other) const {
  return m_text.compare(OrEmpty(other));
}

int CString::CompareNoCase(const wchar_t* other) const {
  const std::wstring_view theirs = OrEmpty(other);
  const std::size_t common = std::min(m_text.size(), theirs.size());
  for (std::size_t i = 0; i < common; ++i) {
    const wchar_t a = coregui::LowerCase(m_text[i]);
    const wchar_t b = coregui::LowerCase(theirs[i]);
    if (a != b) return a < b ? -1 : 1;
  }
  if (m_text.size() == theirs.size()) return 0;
  return m_text.size() < theirs.size() ? -1 : 1;
}

CString& CString::MakeUpper() {
  std::transform(m_text.begin(), m_text.end(), m_text.begin(), coregui::UpperCase);
  return *this;
}

CString& CString::MakeLower() {
  std::transform(m_text.begin(), m_text.end(), m_text.begin(), coregui::LowerCase);
  return *this;
}

int CString::Find(const wchar_t* text, int start) const {
  if (start > GetLength()) return -1;
  const std::size_t found = m_text.find(OrEmpty(text), ClipStart(start, GetLength()));
  return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

int CString::Find(wchar_t character, int start) const {
  if (start > GetLength()) return -1;
  const std::size_t found = m_text.find(character, ClipStart(start, GetLength()));
  return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

int CString::ReverseFind(wchar_t character) const {
  const std::size_t found = m_text.rfind(character);
  return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

CString CString::Left(int count) const {
  return Mid(0, count);
}

CString CString::Right(int count) const {
  const int kept = std::clamp(count, 0, GetLength());
  return Mid(GetLength() - kept, kept);
}

CString CString::Mid(int first) const {
  return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
  if (count <= 0) return {};
  return CString(m_text.substr(ClipStart(first, GetLength()), static_cast<std::size_t>(count)));
}

int CString::Replace(const wchar_t* from, const wchar_t* to) {
  const std::wstring_view old = OrEmpty(from);
  const std::wstring_view with = OrEmpty(to);
  if (old.empty()) return 0;
  std::wstring result;
  int count = 0;
  std::size_t position = 0;
  for (std::size_t found = m_text.find(old); found != std::wstring::npos;
       found = m_text.find(old, position)) {
    result.append(m_text, position, found - position).append(with);
    position = found + old.size();
    ++count;
  }
  if (count > 0) {
    result.append(m_text, position);
    m_text = std::move(result);
  }
  return count;
}

int CString::Remove(wchar_t character) {
  return static_cast<int>(std::erase(m_text, character));
}

CString& CString::Insert(int index, const wchar_t* text) {
  m_text.insert(ClipStart(index, GetLength()), std::wstring(OrEmpty(text)));
  return *this;
}

CString& CString::Delete(int index, int count) {
  if (count > 0) m_text.erase(ClipStart(index, GetLength()), static_cast<std::size_t>(count));
  return *this;
}

CString& CString::TrimLeft(const wchar_t* characters) {
  m_text.erase(0, std::min(m_text.find_first_not_of(OrEmpty(characters)), m_text.size()));
  return *this;
}

CString& CString::TrimRight(const wchar_t* characters) {
  m_text.erase(m_text.find_last_not_of(OrEmpty(characters)) + 1);
  return *this;
}

void CString::Format(const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  std::wstring text = coregui::FormatText(format, arguments);  // an argument may be this text itself
  va_end(arguments);
  m_text = std::move(text);
}

CString CString::Formatted(const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  CString text(coregui::FormatText(format, arguments));
  va_end(arguments);
  return text;
}

void CString::AppendFormat(const wchar_t* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const std::wstring text = coregui::FormatText(format, arguments);
  va_end(arguments);
  m_text += text;
}
