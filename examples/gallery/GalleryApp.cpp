#include "GalleryApp.h"

#include <string_view>

namespace gallery {

Options ParseArguments(int argc, const char* const* argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--dark") {
      options.dark = true;
    } else if (argument == "--png" && i + 1 < argc) {
      options.picture = CString::FromUtf8(argv[++i]);
    } else {
      options.ok = false;
    }
  }
  return options;
}

BOOL GalleryApp::InitInstance() {
  if (!CCoreGUIApp::InitInstance()) return FALSE;
  if (m_options.dark) SetDarkTheme(true);
  m_failed = !m_window.CreateModeless();
  if (m_failed) return FALSE;
  SetMainWnd(&m_window);
  if (m_options.picture.IsEmpty()) return TRUE;
  m_failed = !m_window.WriteSheet(m_options.picture);
  m_window.DestroyWindow();
  return FALSE;
}

int GalleryApp::ExitInstance() {
  const int code = CCoreGUIApp::ExitInstance();
  return m_failed ? 1 : code;
}

}  // namespace gallery
