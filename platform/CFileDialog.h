#pragma once

#include "platform/CObject.h"
#include "platform/CString.h"
#include "platform/Types.h"

class CWnd;

inline constexpr DWORD OFN_OVERWRITEPROMPT = 0x0002;
inline constexpr DWORD OFN_PATHMUSTEXIST = 0x0800;
inline constexpr DWORD OFN_FILEMUSTEXIST = 0x1000;

/// Asks for a file to open or to save.
class COREGUI_API CFileDialog : public CObject {
 public:
  /// `filter`: pairs of a name and its patterns, all parted by '|': L"Survey (*.csv)|*.csv;*.txt|All|*.*||".
  /// `extension` is added to a name to save that has none. `name` may hold a folder to start in.
  explicit CFileDialog(BOOL open, const wchar_t* extension = nullptr, const wchar_t* name = nullptr,
                       DWORD flags = OFN_OVERWRITEPROMPT, const wchar_t* filter = nullptr,
                       CWnd* parent = nullptr);

  void SetTitle(const wchar_t* title) { m_title = title; }
  /// IDOK or IDCANCEL; that also when the parent's window was destroyed under it.
  int DoModal();
  const CString& GetPathName() const { return m_path; }  ///< the whole path
  CString GetFileName() const;                           ///< name with extension
  CString GetFileTitle() const;                          ///< name without extension
  CString GetFileExt() const;                            ///< without the '.'

 private:
  bool m_open;
  CString m_extension;
  CString m_path;
  DWORD m_flags;
  CString m_filter;
  CString m_title;
  CWnd* m_parent;  ///< borrowed: must outlive DoModal
};

namespace coregui {

/// Asks for a folder that exists, starting in `folder`; none can be made or renamed there. False, with
/// `folder` unchanged, when none was chosen.
COREGUI_API bool ChooseFolder(CString& folder, const wchar_t* title, CWnd* parent);

}  // namespace coregui
