#include "dialogs/FileDialogs.h"

#include "core/Paths.h"
#include "core/TextFile.h"
#include "dialogs/MessageFunctions.h"

namespace {

CString FilterOf(const CString& text1, const CString& extension) {
  if (text1.Find(L'|') >= 0) return text1;
  if (extension.IsEmpty()) return {};
  const CString pattern = L"*." + extension;
  return (text1.IsEmpty() ? pattern : text1) + L" (" + pattern + L")|" + pattern + L"|All files (*.*)|*.*||";
}

}  // namespace

bool coreFileDialog(const wchar_t* title, CString& path, const wchar_t* text1, const wchar_t* text2,
                    bool open, DWORD flags, CWnd* parent) {
  CString extension(text2);
  extension.TrimLeft(L"*.");
  CFileDialog dialog(open ? TRUE : FALSE, extension, path, flags, FilterOf(text1, extension), parent);
  dialog.SetTitle(title);
  if (dialog.DoModal() != IDOK) return false;
  path = dialog.GetPathName();
  return true;
}

bool coreGetNewFilePath(CString& path, const wchar_t* text1, const wchar_t* text2, const wchar_t* searchIn,
                        CWnd* parent) {
  const CString folder = coreExtractFilePath(searchIn);
  const CString found = folder + coreExtractFileName(path).c_str();
  if (!folder.IsEmpty() && coreFileExist(found)) {
    path = found;
    return true;
  }
  const CString question = CString::Formatted(
      L"The following required file was not found:\n\n%s\n\nWould you like to look for the file yourself ?",
      path.GetString());
  if (ConfirmMessage(question, parent) == IDNO) return false;
  return coreFileDialog(L"Find missing file", path, text1, text2, true, OFN_FILEMUSTEXIST, parent);
}

bool coreGetFolder(CString& folder, const wchar_t* title, CWnd* parent, const wchar_t* initialFolder) {
  CString chosen(initialFolder);
  if (!coregui::ChooseFolder(chosen, title, parent)) return false;
  folder = chosen;
  return true;
}
