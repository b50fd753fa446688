#include "DeskApp.h"

#include <cstdio>
#include <cwchar>

namespace desk {

DeskOptions ParseArguments(int argc, const char* const* argv, const std::wstring& ownSurvey) {
  DeskOptions options;
  options.file = ownSurvey;
  for (int i = 1; i < argc; ++i) {
    const std::wstring argument = CString::FromUtf8(argv[i]).Str();
    const bool hasValue = i + 1 < argc;
    if (argument == L"--dark") {
      options.dark = true;
    } else if (argument == L"--png" && hasValue) {
      options.picture = CString::FromUtf8(argv[++i]).Str();
    } else if (argument == L"--pdf" && hasValue) {
      options.pdf = CString::FromUtf8(argv[++i]).Str();
    } else if (argument == L"--size" && hasValue) {
      int width = 0;
      int height = 0;
      options.ok = std::sscanf(argv[++i], "%dx%d", &width, &height) == 2 && width > 0 && height > 0 &&
                   width <= 16384 && height <= 16384 && options.ok;
      options.size = options.ok ? CSize(width, height) : options.size;
    } else if (argument.starts_with(L"--")) {
      options.ok = false;
    } else {
      options.file = argument;
    }
  }
  return options;
}

BOOL DeskApp::InitInstance() {
  if (m_options.dark) {
    SetDarkTheme(true);
  }
  if (!m_window.CreateDesk(m_options.size)) {
    m_failed = true;
    return FALSE;
  }
  SetMainWnd(&m_window);
  m_window.ShowWindow(SW_SHOW);
  CWinApp::PumpPending();
  m_window.Open(m_options.file);
  if (m_options.picture.empty() && m_options.pdf.empty()) {
    return TRUE;
  }
  CWinApp::PumpPending();
  m_failed = !WriteWhatIsAskedFor();
  m_window.DestroyWindow();
  return FALSE;
}

bool DeskApp::WriteWhatIsAskedFor() {
  if (!m_options.pdf.empty() && !m_window.PrintToPdf(m_options.pdf)) {
    coreStatusOut((L"The page " + m_options.pdf + L" could not be written.").c_str());
    return false;
  }
  return m_options.picture.empty() || WritePicture();
}

int DeskApp::ExitInstance() {
  return m_failed ? 1 : CWinApp::ExitInstance();
}

bool DeskApp::WritePicture() {
  const CRect client = m_window.GetClientRectangle();
  CBitmap bitmap;
  const CClientDC like(&m_window);
  if (!bitmap.CreateCompatibleBitmap(&like, client.Width(), client.Height())) {
    return false;
  }
  CMemoryDC dc(&like, &bitmap);
  m_window.PrintTo(&dc);
  if (!bitmap.SaveFile(m_options.picture.c_str())) {
    coreStatusOut((L"The picture " + m_options.picture + L" could not be written.").c_str());
    return false;
  }
  return true;
}

}  // namespace desk
