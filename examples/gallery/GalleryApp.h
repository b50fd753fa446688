#pragma once

#include "GalleryWindow.h"
#include "coregui/coregui.h"

namespace gallery {

/// What the command line asks for.
struct Options {
  CString picture;  ///< not empty: write the sheet of pictures there and end
  bool dark = false;
  bool ok = true;
};

Options ParseArguments(int argc, const char* const* argv);

class GalleryApp : public CCoreGUIApp {
 public:
  explicit GalleryApp(Options options) : m_options(std::move(options)) {}
  BOOL InitInstance() override;
  int ExitInstance() override;

 private:
  Options m_options;
  GalleryWindow m_window;
  bool m_failed = false;
};

}  // namespace gallery
