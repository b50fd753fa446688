#include "platform/Profile.h"

#include <cerrno>
#include <cwchar>
#include <filesystem>
#include <string>

#include "core/Status.h"
#include "core/TextReader.h"
#include "core/TextWriter.h"
#include "platform/ConfigFolder.h"
#include "platform/IniText.h"
#include "platform/System.h"

namespace coregui {
namespace {

CString AsFileName(CString name) {
  for (int i = 0; i < name.GetLength(); ++i) {
    if (std::wcschr(L"/\\:*?\"<>|", name[i]) != nullptr || name[i] < L' ') name.SetAt(i, L'_');
  }
  return name == L"." || name == L".." ? CString(L"_") : name;
}

std::wstring_view OrEmpty(const wchar_t* text) {
  return text == nullptr ? L"" : text;
}

}  // namespace

Profile& Profile::Get() {
  static auto& profile = *new Profile;  // never destroyed: see WindowRegistry.cpp
  return profile;
}

Profile::Profile() = default;
Profile::~Profile() = default;

void Profile::SetCompany(const CString& company) {
  m_company = AsFileName(company);
  Forget();
}

void Profile::SetName(const CString& name) {
  m_name = AsFileName(name);
  Forget();
}

void Profile::SetFolder(const CString& folder) {
  m_folder = folder;
  Forget();
}

void Profile::Forget() {
  m_unsaved.clear();
}

CString Profile::GetPath() const {
  CString path = m_folder.IsEmpty() ? ConfigFolder() : m_folder;
  if (!m_company.IsEmpty()) path += L"/" + m_company;
  return path + L"/" + (m_name.IsEmpty() ? CString(L"CoreGUI") : m_name) + L".ini";
}

IniText Profile::Load() const {
  IniText text;
  TextReader reader;
  if (reader.Open(GetPath())) {
    constexpr int kLongest = 1 << 20;
    std::wstring line;
    while (reader.ReadLine(line, kLongest)) text.AddLine(line);
  }
  for (const Change& change : m_unsaved) change(text);
  return text;
}

bool Profile::Save(const IniText& text) {
  const std::filesystem::path path(GetPath().ToUtf8());
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  TextWriter writer;
  if (!error && writer.Open(GetPath())) {
    for (const std::wstring& line : text.Lines()) writer.WriteLine(line);
    if (writer.Commit()) return true;
  }
  if (m_unsaved.empty()) {
    const CString reason = GetErrorText(error ? static_cast<DWORD>(error.value()) : GetLastError());
    coreStatusOut(
        CString::Formatted(L"Unable to write profile %s: %s", GetPath().GetString(), reason.GetString()));
  }
  return false;
}

bool Profile::Apply(const Change& change) {
  IniText text = Load();
  if (!change(text)) return false;
  if (Save(text)) {
    m_unsaved.clear();
    return true;
  }
  m_unsaved.push_back(change);
  return false;
}

int Profile::GetInt(const wchar_t* section, const wchar_t* entry, int fallback) const {
  const auto value = Load().Get(OrEmpty(section), OrEmpty(entry));
  if (!value) return fallback;
  // Through 64 bits: an entry that another program wrote unsigned keeps its bits.
  return static_cast<int>(static_cast<std::uint32_t>(std::wcstoll(value->c_str(), nullptr, 10)));
}

bool Profile::WriteInt(const wchar_t* section, const wchar_t* entry, int value) {
  return WriteString(section, entry, CString::Formatted(L"%d", value));
}

CString Profile::GetString(const wchar_t* section, const wchar_t* entry, const wchar_t* fallback) const {
  const auto value = Load().Get(OrEmpty(section), OrEmpty(entry));
  return value ? CString(*value) : CString(fallback);
}

bool Profile::WriteString(const wchar_t* section, const wchar_t* entry, const wchar_t* value) {
  const std::wstring in(OrEmpty(section));
  if (entry == nullptr) {
    return Apply([in](IniText& text) {
      text.RemoveSection(in);
      return true;
    });
  }
  const std::wstring name(entry);
  if (value == nullptr) {
    return Apply([in, name](IniText& text) {
      text.Remove(in, name);
      return true;
    });
  }
  return Apply([in, name, to = std::wstring(value)](IniText& text) { return text.Set(in, name, to); });
}

}  // namespace coregui
