// make-samples FOLDER: draws the pictures that the editor ships with.
#include <cstdio>
#include <exception>
#include <filesystem>

#include "picture_writer.h"
#include "pictures.h"

int main(int argc, char** argv) {
  using namespace kelvo::samples;
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-samples FOLDER\n");
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    WritePicture(folder, "landscape", DrawLandscape());
    WritePicture(folder, "kelvo", DrawLettering());
    WritePicture(folder, "testcard", DrawTestCard());
    WritePicture(folder, "planet", DrawPlanet());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make-samples: %s\n", error.what());
    return 1;
  }
  return 0;
}
