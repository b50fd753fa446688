#pragma once

#include <string>
#include <string_view>

#include "core/Export.h"

/// Field `n`, counted from 1, of a line whose fields `separator` divides; quotation marks mean nothing. A
/// line with fewer fields (and `n` below 1) gives `defaultText`; a field that is there but empty is empty. At
/// most `maxCharacters` are kept, of either; `isCut`, where given, tells whether the maximum cut something
/// off, for the caller to report. Null texts count as empty.
COREGUI_API std::wstring coreGetField(const wchar_t* line, int n, wchar_t separator,
                                      const wchar_t* defaultText, int maxCharacters, bool* isCut = nullptr);

namespace coregui {

/// Walks through the fields of a line once, without copying them. The line must outlive the walk.
class FieldWalk {
 public:
  FieldWalk(std::wstring_view line, wchar_t separator) : m_rest(line), m_separator(separator) {}

  /// Sets `field` to the next field. An empty line has one field, which is empty. False after the last.
  bool Next(std::wstring_view& field) {
    if (m_isDone) return false;
    const std::size_t end = m_rest.find(m_separator);
    m_isDone = end == std::wstring_view::npos;
    field = m_rest.substr(0, end);
    if (!m_isDone) m_rest.remove_prefix(end + 1);
    return true;
  }

 private:
  std::wstring_view m_rest;
  wchar_t m_separator;
  bool m_isDone = false;
};

}  // namespace coregui
