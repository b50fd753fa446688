// long_section_desk [FILE.csv] [--png PICTURE.png] [--pdf PAGE.pdf] [--size 1280x800] [--dark]

#include <cstdio>

#include "DeskApp.h"

int main(int argc, char** argv) {
  const desk::DeskOptions options =
      desk::ParseArguments(argc, argv, CString::FromUtf8(DESK_SURVEY_FILE).Str());
  if (!options.ok) {
    std::fputs(
        "usage: long_section_desk [FILE.csv] [--png PICTURE.png] [--pdf PAGE.pdf] [--size 1280x800] "
        "[--dark]\n",
        stderr);
    return 2;
  }
  desk::DeskApp app(options);
  return app.Main();
}
