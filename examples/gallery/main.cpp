// gallery [--png PICTURE.png] [--dark]

#include <cstdio>

#include "GalleryApp.h"

int main(int argc, char** argv) {
  const gallery::Options options = gallery::ParseArguments(argc, argv);
  if (!options.ok) {
    std::fputs("usage: gallery [--png PICTURE.png] [--dark]\n", stderr);
    return 2;
  }
  gallery::GalleryApp app(options);
  return app.Main();
}
