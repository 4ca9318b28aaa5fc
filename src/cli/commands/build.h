// Builds of C64 programs, as the editor makes them.
#pragma once

#include <filesystem>
#include <string>

#include "app/bytes.h"
#include "c64out/animation_release.h"
#include "cli/commands/commands.h"
#include "model/picture_image.h"

namespace kelvo::cli {

// A folder among the temporary ones, for its owner alone, that is removed with all that is in it when this goes out of
// scope. No two are the same.
class TemporaryFolder {
 public:
  // Throws app::FileError.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  // May be asked by a signal handler.
  static bool AnyIsThere();

 private:
  std::filesystem::path path_;
};

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
