// make-animations FOLDER: draws three animations, each in a folder of its own, to try the player with.
#include <cstdio>
#include <exception>
#include <filesystem>

#include "anim/frame_names.h"
#include "animations.h"
#include "app/whole_file.h"
#include "files/picture_format.h"

namespace {

namespace fs = std::filesystem;

void WriteFrames(const fs::path& folder, const kelvo::samples::Frames& frames) {
  fs::create_directories(folder);
  const kelvo::anim::FrameNames names({(folder / "").string(), "anim"});
  int number = kelvo::anim::kFirstFrame;
  for (kelvo::model::PictureImage frame : frames) {
    kelvo::files::Sign(frame);
    kelvo::app::WriteWholeFile(names.Path(number++), kelvo::files::Encode(frame));
  }
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kelvo::samples;
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-animations FOLDER\n");
    return 2;
  }
  try {
    const fs::path folder = argv[1];
    WriteFrames(folder / "walk", DrawWalk());
    WriteFrames(folder / "dissolve", DrawDissolve());
    WriteFrames(folder / "snow", DrawSnow());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make-animations: %s\n", error.what());
    return 1;
  }
  return 0;
}
