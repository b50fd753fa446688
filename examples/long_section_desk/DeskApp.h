#pragma once

#include <string>

#include "DeskWindow.h"
#include "coregui/coregui.h"

namespace desk {

/// What the command line asks for.
struct DeskOptions {
  std::wstring file;     ///< the survey to open
  std::wstring picture;  ///< not empty: write a PNG of the window there and end
  std::wstring pdf;      ///< not empty: print the long-section there and end
  CSize size{1280, 800};
  bool dark = false;
  bool ok = true;  ///< false: an argument was not understood
};

/// long_section_desk [FILE.csv] [--png PICTURE.png] [--pdf PAGE.pdf] [--size 1280x800] [--dark]
DeskOptions ParseArguments(int argc, const char* const* argv, const std::wstring& ownSurvey);

/// The program: one desk.
class DeskApp : public CWinApp {
 public:
  explicit DeskApp(DeskOptions options) : m_options(std::move(options)) {}
  BOOL InitInstance() override;
  int ExitInstance() override;

 private:
  bool WritePicture();
  bool WriteWhatIsAskedFor();

  DeskOptions m_options;
  DeskWindow m_window;
  bool m_failed = false;
};

}  // namespace desk
