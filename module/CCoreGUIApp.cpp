#include "module/CCoreGUIApp.h"

#include <filesystem>

#include "controls/CFontCombo.h"
#include "core/TextFile.h"
#include "dialogs/MessageFunctions.h"
#include "module/Registration.h"
#include "platform/Links.h"

namespace {

constexpr const wchar_t* kCompany = L"Fenwarrow";
constexpr const wchar_t* kProfileName = L"Strandmere 8.1";
const CString kHelpName = L"Strandmere";
const CString kHelpExtension = L".chm";

CString ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? CString() : CString::FromUtf8(program.parent_path().string());
}

}  // namespace

CCoreGUIApp::CCoreGUIApp() = default;

CCoreGUIApp::~CCoreGUIApp() {
  Unregister();
}

BOOL CCoreGUIApp::InitInstance() {
  if (!m_registered && !coregui::RegisterLibrary()) return FALSE;
  m_registered = true;
  SetRegistryKey(kCompany);
  SetProfileName(kProfileName);
  CFontCombo::BuildFontCache();
  return CWinApp::InitInstance();
}

int CCoreGUIApp::ExitInstance() {
  Unregister();
  return CWinApp::ExitInstance();
}

void CCoreGUIApp::Unregister() {
  if (m_registered) coregui::UnregisterLibrary();
  m_registered = false;
}

CString CCoreGUIApp::GetHelpFile() const {
  const CString folder = m_helpFolder.IsEmpty() ? ProgramFolder() : m_helpFolder;
  return folder + (folder.IsEmpty() ? L"" : L"/") + kHelpName + kHelpExtension;
}

bool CCoreGUIApp::OpenHelp(CWnd* owner) {
  const CString file = GetHelpFile();
  if (!coreFileExist(file)) {
    ErrorMessage(L"The help file \"" + file + L"\" was not found.", owner);
    return false;
  }
  if (!OnShowHelp(file)) {
    ErrorMessage(L"There is no program to open the help file \"" + file + L"\" with.", owner);
    return false;
  }
  return true;
}

bool CCoreGUIApp::OnShowHelp(const CString& file) {
  return coregui::OpenLink(file);
}
