// The names of files on their way to their place, and what becomes of those that never get there.
#pragma once

#include <filesystem>

namespace kelvo::app {

// A name in `folder` that no other writer takes.
std::filesystem::path TemporaryName(const std::filesystem::path& folder);

// Such a name for a file or a folder on its way. What still has it in the end goes, with all that is in it.
class PassingPlace {
 public:
  explicit PassingPlace(const std::filesystem::path& folder) : path_(TemporaryName(folder)) {}
  ~PassingPlace();
  PassingPlace(const PassingPlace&) = delete;
  PassingPlace& operator=(const PassingPlace&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Whether a file is called as TemporaryName() calls one.
bool IsTemporaryName(const std::filesystem::path& file);

// Where the file lies that will be renamed to `target`.
std::filesystem::path FolderOf(const std::filesystem::path& target);

}  // namespace kelvo::app
