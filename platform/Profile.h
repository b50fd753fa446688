#pragma once

#include <functional>
#include <vector>

#include "core/Export.h"
#include "platform/CString.h"

namespace coregui {

class IniText;

/// The application's profile: what it remembers from run to run, in sections of entries. It is an ini file in
/// the user's configuration folder, `<folder>/<company>/<name>.ini`, which is read at every question, so that
/// what another program writes meanwhile is seen; names are compared ignoring case.
///
/// When the file cannot be written, the reason goes to the status output once, and what was written stays
/// known for this run.
class COREGUI_API Profile {
 public:
  /// The one of the application.
  static Profile& Get();

  Profile();
  ~Profile();
  Profile(const Profile&) = delete;
  Profile& operator=(const Profile&) = delete;

  /// The company key; empty: the file lies in the folder itself. Characters that a file name may not hold
  /// become '_'.
  void SetCompany(const CString& company);
  /// The profile name; empty: "CoreGUI".
  void SetName(const CString& name);
  /// Another folder than the user's (empty: the user's again).
  void SetFolder(const CString& folder);
  CString GetPath() const;

  /// The value as a number: decimal digits with an optional sign, the rest ignored; `fallback` when there is
  /// no such entry.
  int GetInt(const wchar_t* section, const wchar_t* entry, int fallback) const;
  bool WriteInt(const wchar_t* section, const wchar_t* entry, int value);
  CString GetString(const wchar_t* section, const wchar_t* entry, const wchar_t* fallback = L"") const;
  /// A null value deletes the entry, a null entry the section. False when it could not be saved or a name
  /// cannot be one (empty, a section with ']', an entry with '=', line ends).
  bool WriteString(const wchar_t* section, const wchar_t* entry, const wchar_t* value);

 private:
  using Change = std::function<bool(IniText&)>;
  IniText Load() const;
  bool Apply(const Change& change);
  bool Save(const IniText& text);
  void Forget();

  CString m_company;
  CString m_name;
  CString m_folder;
  std::vector<Change> m_unsaved;  ///< made while the file could not be written, in order
};

}  // namespace coregui
