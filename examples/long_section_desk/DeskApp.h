#pragma once

#include <optional>
#include <string>

#include "DeskWindow.h"
#include "PrintChoice.h"
#include "coregui/coregui.h"

namespace desk {

inline constexpr CSize kDeskSize{1280, 800};

/// What the command line asks for.
struct DeskOptions {
  std::wstring file;          ///< the survey to open
  std::wstring picture;       ///< not empty: write a PNG of the window there and end
  std::wstring pdf;           ///< not empty: print the long-section there and end
  PrintChoice print;          ///< how it is printed
  std::optional<CSize> size;  ///< of the window; none: as it was, or kDeskSize
  bool dark = false;
  bool ok = true;  ///< false: an argument was not understood

  /// A run for a script: it writes what is asked for and ends.
  bool IsUnattended() const { return !picture.empty() || !pdf.empty(); }
};

/// Reads the arguments that kUsage names; the last of the same kind counts.
DeskOptions ParseArguments(int argc, const char* const* argv, const std::wstring& ownSurvey);

inline constexpr char kUsage[] =
    "usage: long_section_desk [FILE.csv] [--size 1280x800] [--dark]\n"
    "         [--png PICTURE.png] [--pdf PAGES.pdf [--paper A3] [--scale 500:50]]\n"
    "With --png or --pdf it writes these files and ends; --scale prints 1:500 along and 1:50 upwards,\n"
    "on as many sheets as it takes.\n";

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
