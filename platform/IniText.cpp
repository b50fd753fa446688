#include "platform/IniText.h"

#include "platform/CString.h"

namespace coregui {
namespace {

std::wstring_view Trim(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L" \t");
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

bool IsSame(std::wstring_view a, std::wstring_view b) {
  return a.size() == b.size() && CString(a).CompareNoCase(CString(b)) == 0;
}

bool IsSectionHead(std::wstring_view line, std::wstring_view* name = nullptr) {
  const std::wstring_view text = Trim(line);
  if (text.size() < 2 || text.front() != L'[' || text.back() != L']') return false;
  if (name != nullptr) *name = Trim(text.substr(1, text.size() - 2));
  return true;
}

bool IsName(std::wstring_view name, std::wstring_view forbidden) {
  return !name.empty() && Trim(name) == name && name.find_first_of(forbidden) == std::wstring_view::npos &&
         std::wstring_view(L"[;#").find(name.front()) == std::wstring_view::npos;
}

/// Quoted where the plain text would be read back differently.
std::wstring Quote(std::wstring_view value) {
  const bool plain = Trim(value) == value &&
                     value.find_first_of(std::wstring_view(L"\r\n")) == std::wstring_view::npos &&
                     (value.empty() || value.front() != L'"');
  if (plain) return std::wstring(value);
  std::wstring quoted = L"\"";
  for (const wchar_t c : value) {
    if (c == L'\n') {
      quoted += L"\\n";
    } else if (c == L'\r') {
      quoted += L"\\r";
    } else {
      if (c == L'"' || c == L'\\') quoted += L'\\';
      quoted += c;
    }
  }
  return quoted + L"\"";
}

std::wstring Unquote(std::wstring_view value) {
  if (value.size() < 2 || value.front() != L'"' || value.back() != L'"') return std::wstring(value);
  std::wstring plain;
  for (std::size_t i = 1; i + 1 < value.size(); ++i) {
    wchar_t c = value[i];
    if (c == L'\\' && i + 2 < value.size()) {
      c = value[++i];
      c = c == L'n' ? L'\n' : c == L'r' ? L'\r' : c;
    }
    plain += c;
  }
  return plain;
}

}  // namespace

std::optional<IniText::Span> IniText::Find(std::wstring_view section) const {
  for (std::size_t i = 0; i < m_lines.size(); ++i) {
    std::wstring_view name;
    if (!IsSectionHead(m_lines[i], &name) || !IsSame(name, section)) continue;
    std::size_t end = i + 1;
    while (end < m_lines.size() && !IsSectionHead(m_lines[end])) ++end;
    while (end > i + 1 && Trim(m_lines[end - 1]).empty()) --end;
    return Span{i + 1, end};
  }
  return std::nullopt;
}

std::size_t IniText::FindEntry(const Span& span, std::wstring_view entry) const {
  for (std::size_t i = span.begin; i < span.end; ++i) {
    const std::wstring_view line = m_lines[i];
    const std::size_t sign = line.find(L'=');
    if (sign != std::wstring_view::npos && IsSame(Trim(line.substr(0, sign)), entry)) return i;
  }
  return span.end;
}

std::optional<std::wstring> IniText::Get(std::wstring_view section, std::wstring_view entry) const {
  const std::optional<Span> span = Find(section);
  const std::size_t at = span ? FindEntry(*span, entry) : 0;
  if (!span || at == span->end) return std::nullopt;
  const std::wstring_view line = m_lines[at];
  return Unquote(Trim(line.substr(line.find(L'=') + 1)));
}

bool IniText::Set(std::wstring_view section, std::wstring_view entry, std::wstring_view value) {
  if (!IsName(section, L"]\r\n") || !IsName(entry, L"=\r\n")) return false;
  std::wstring line = std::wstring(entry) + L"=" + Quote(value);
  std::optional<Span> span = Find(section);
  if (!span) {
    if (!m_lines.empty() && !Trim(m_lines.back()).empty()) m_lines.emplace_back();
    m_lines.push_back(L"[" + std::wstring(section) + L"]");
    span = Span{m_lines.size(), m_lines.size()};
  }
  const std::size_t at = FindEntry(*span, entry);
  if (at < span->end) {
    m_lines[at] = std::move(line);
  } else {
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(span->end), std::move(line));
  }
  return true;
}

void IniText::Remove(std::wstring_view section, std::wstring_view entry) {
  const std::optional<Span> span = Find(section);
  if (!span) return;
  const std::size_t at = FindEntry(*span, entry);
  if (at < span->end) m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(at));
}

void IniText::RemoveSection(std::wstring_view section) {
  const std::optional<Span> span = Find(section);
  if (!span) return;
  m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(span->begin) - 1,
                m_lines.begin() + static_cast<std::ptrdiff_t>(span->end));
}

}  // namespace coregui
