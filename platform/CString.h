#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "core/Export.h"
#include "platform/Types.h"

/// Wide text with value semantics. Positions and lengths count characters.
/// Narrow text going in and out is UTF-8; bytes that are not UTF-8 are read as Windows-1252.
class COREGUI_API CString {
 public:
  CString() = default;
  /// A null pointer gives the empty text.
  CString(const wchar_t* text);  // NOLINT(google-explicit-constructor): literals serve as text
  CString(std::wstring text) : m_text(std::move(text)) {}  // NOLINT(google-explicit-constructor): same value
  explicit CString(std::wstring_view text) : m_text(text) {}
  CString(const wchar_t* text, int length) : m_text(text, static_cast<std::size_t>(length)) {}
  CString(wchar_t character, int count) : m_text(static_cast<std::size_t>(count), character) {}
  static CString FromUtf8(std::string_view text);
  std::string ToUtf8() const;

  int GetLength() const { return static_cast<int>(m_text.size()); }
  bool IsEmpty() const { return m_text.empty(); }
  void Empty() { m_text.clear(); }
  /// The character at an index from 0 to length - 1.
  wchar_t GetAt(int index) const { return m_text[static_cast<std::size_t>(index)]; }
  wchar_t operator[](int index) const { return GetAt(index); }
  void SetAt(int index, wchar_t character) { m_text[static_cast<std::size_t>(index)] = character; }
  const wchar_t* GetString() const { return m_text.c_str(); }
  // NOLINTNEXTLINE(google-explicit-constructor): passes as text
  operator const wchar_t*() const { return m_text.c_str(); }
  const std::wstring& Str() const { return m_text; }

  CString& operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
  }
  CString& operator+=(const wchar_t* text) {
    if (text != nullptr) m_text += text;
    return *this;
  }
  CString& operator+=(wchar_t character) {
    m_text += character;
    return *this;
  }
  friend CString operator+(CString a, const CString& b) { return a += b; }
  friend CString operator+(CString a, const wchar_t* b) { return a += b; }
  friend CString operator+(const wchar_t* a, const CString& b) { return CString(a) += b; }
  friend CString operator+(CString a, wchar_t b) { return a += b; }
  friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
  friend bool operator==(const CString& a, const wchar_t* b) { return a.m_text == (b == nullptr ? L"" : b); }
  friend std::strong_ordering operator<=>(const CString& a, const CString& b) {
    return a.m_text <=> b.m_text;
  }

  /// Negative, 0 or positive, code unit by code unit.
  int Compare(const wchar_t* other) const;
  /// The same, ignoring case.
  int CompareNoCase(const wchar_t* other) const;
  /// Upper and lower case by the Unicode tables, character by character.
  CString& MakeUpper();
  CString& MakeLower();
  /// The index of the first occurrence at or after `start`, or -1.
  int Find(const wchar_t* text, int start = 0) const;
  int Find(wchar_t character, int start = 0) const;
  int ReverseFind(wchar_t character) const;
  /// Parts; counts and starts outside the text are clipped to it.
  CString Left(int count) const;
  CString Right(int count) const;
  CString Mid(int first) const;
  CString Mid(int first, int count) const;
  /// Replaces every occurrence; returns how many there were.
  int Replace(const wchar_t* from, const wchar_t* to);
  /// Removes every occurrence of the character; returns how many there were.
  int Remove(wchar_t character);
  CString& Insert(int index, const wchar_t* text);
  CString& Delete(int index, int count = 1);
  CString& TrimLeft(const wchar_t* characters = L" \t\r\n");
  CString& TrimRight(const wchar_t* characters = L" \t\r\n");
  CString& Trim(const wchar_t* characters = L" \t\r\n") { return TrimLeft(characters).TrimRight(characters); }

  /// Sets the text by a printf format. `%s` and `%ls` both take wide text (a null pointer prints as nothing),
  /// `%S` and `%hs` take UTF-8 text, `%I64` sizes are understood; numbers use '.' whatever the locale.
  void Format(const wchar_t* format, ...);
  static CString Formatted(const wchar_t* format, ...);
  void AppendFormat(const wchar_t* format, ...);

 private:
  std::wstring m_text;
};

// The reference leaves the namespace of the language out.
/// \cond
template <>
struct std::hash<CString> {
  std::size_t operator()(const CString& text) const noexcept { return std::hash<std::wstring>()(text.Str()); }
};
/// \endcond
