#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coregui {

/// The lines of an ini file: sections in brackets, entries "name=value", comments. Names are compared
/// ignoring case. What is not understood stays as it is, in its place, so that a file may be edited by hand
/// as well.
class IniText {
 public:
  void AddLine(std::wstring line) { m_lines.push_back(std::move(line)); }
  const std::vector<std::wstring>& Lines() const { return m_lines; }

  /// The value, unquoted; the first of several entries of one name counts.
  std::optional<std::wstring> Get(std::wstring_view section, std::wstring_view entry) const;
  /// False for a name that a file cannot hold: empty, with a line end, a section with ']', an entry with '='
  /// or a first character that marks something else.
  bool Set(std::wstring_view section, std::wstring_view entry, std::wstring_view value);
  void Remove(std::wstring_view section, std::wstring_view entry);
  void RemoveSection(std::wstring_view section);

 private:
  /// Line indexes: of the first line behind the section's head, and behind its last line that is not blank.
  struct Span {
    std::size_t begin;
    std::size_t end;
  };
  std::optional<Span> Find(std::wstring_view section) const;
  std::size_t FindEntry(const Span& span, std::wstring_view entry) const;

  std::vector<std::wstring> m_lines;
};

}  // namespace coregui
