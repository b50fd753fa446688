#include "DeskApp.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>

namespace desk {

namespace {

/// "1280x800".
bool ParseSize(const char* text, std::optional<CSize>& size) {
  int width = 0;
  int height = 0;
  constexpr int kMost = 16384;
  if (std::sscanf(text, "%dx%d", &width, &height) != 2 || width < 1 || height < 1 || width > kMost ||
      height > kMost) {
    return false;
  }
  size = CSize(width, height);
  return true;
}

/// "500:50".
bool ParseScale(const char* text, PrintChoice& print) {
  const auto isScale = [](double scale) { return scale >= kLeastScale && scale <= kLargestScale; };
  print.toScale = true;
  return std::sscanf(text, "%lf:%lf", &print.horizontal, &print.vertical) == 2 && isScale(print.horizontal) &&
         isScale(print.vertical);
}

bool ParsePaper(const std::wstring& name, PrintChoice& print) {
  const auto paper = std::find_if(kPapers.begin(), kPapers.end(), [&name](const Paper& each) {
    return CString(each.name).CompareNoCase(name.c_str()) == 0;
  });
  print.paper = static_cast<int>(paper - kPapers.begin());
  return paper != kPapers.end();
}

}  // namespace

DeskOptions ParseArguments(int argc, const char* const* argv, const std::wstring& ownSurvey) {
  DeskOptions options;
  options.file = ownSurvey;
  for (int i = 1; i < argc; ++i) {
    const std::wstring argument = coregui::FromFileName(argv[i]);
    if (argument == L"--dark") {
      options.dark = true;
      continue;
    }
    if (!argument.starts_with(L"--")) {
      options.file = argument;
      continue;
    }
    if (++i == argc) {
      options.ok = false;
      break;
    }
    const std::wstring value = coregui::FromFileName(argv[i]);
    if (argument == L"--png") {
      options.picture = value;
    } else if (argument == L"--pdf") {
      options.pdf = value;
    } else if (argument == L"--size") {
      options.ok = ParseSize(argv[i], options.size) && options.ok;
    } else if (argument == L"--scale") {
      options.ok = ParseScale(argv[i], options.print) && options.ok;
    } else if (argument == L"--paper") {
      options.ok = ParsePaper(value, options.print) && options.ok;
    } else {
      options.ok = false;
    }
  }
  return options;
}

BOOL DeskApp::InitInstance() {
  SetRegistryKey(L"CoreGUI");
  SetProfileName(L"Long-section desk");
  if (m_options.dark) {
    SetDarkTheme(true);
  }
  if (!m_window.CreateDesk(m_options.size.value_or(kDeskSize))) {
    m_failed = true;
    return FALSE;
  }
  SetMainWnd(&m_window);
  if (m_options.IsUnattended()) {
    m_window.SetUnattended();
  }
  if (m_options.IsUnattended() || m_options.size) {
    m_window.ShowWindow(SW_SHOW);
  } else {
    m_window.ShowAsBefore();
  }
  CWinApp::PumpPending();
  m_window.SetFocus();  // the toolkit starts with the first button
  const bool opened = m_window.Open(m_options.file);
  if (!m_options.IsUnattended()) {
    return TRUE;
  }
  CWinApp::PumpPending();
  // A picture of a desk without its survey is still written: it says why.
  m_failed = !WriteWhatIsAskedFor() || !opened;
  m_window.DestroyWindow();
  return FALSE;
}

bool DeskApp::WriteWhatIsAskedFor() {
  bool done = true;
  if (!m_options.pdf.empty() && !m_window.PrintToPdf(m_options.pdf, m_options.print)) {
    coreStatusOut((m_options.pdf + L" could not be written.").c_str());
    done = false;
  }
  return (m_options.picture.empty() || WritePicture()) && done;
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
