// A folder for the time that work takes.
#pragma once

#include <filesystem>

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

}  // namespace kelvo::cli
