#include <cstdio>

#include "DeskApp.h"

int main(int argc, char** argv) {
  const desk::DeskOptions options =
      desk::ParseArguments(argc, argv, CString::FromUtf8(DESK_SURVEY_FILE).Str());
  if (!options.ok) {
    std::fputs(desk::kUsage, stderr);
    return 2;
  }
  desk::DeskApp app(options);
  return app.Main();
}
