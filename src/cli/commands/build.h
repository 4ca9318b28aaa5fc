// Builds of C64 programs, as the editor makes them.
#pragma once

#include <string>

#include "app/bytes.h"
#include "c64out/animation_release.h"
#include "cli/commands/commands.h"
#include "model/picture_image.h"

namespace kelvo::cli {

struct BuiltProgram {
  app::Bytes bytes;
  std::string notes;  // lines
};

// The program that shows `picture`. Each build has a program folder of its own, with what is shipped: the user's is not
// touched. Throws std::runtime_error that says which tool failed, and why.
BuiltProgram BuildProgram(const model::PictureImage& picture, const Arguments& arguments, const Ports& ports);
// The same of an animation.
BuiltProgram BuildProgram(c64out::Release release, const Arguments& arguments, const Ports& ports);

}  // namespace kelvo::cli
