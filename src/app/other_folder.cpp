#include "app/other_folder.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "app/file_name.h"
#include "app/path_text.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

// The temporary folder is the user's own here.
constexpr const char* kFolder = "Kelvo";

bool MakeOwn(const fs::path& folder) {
  std::error_code ignored;
  fs::create_directory(folder, ignored);
  return fs::is_directory(fs::symlink_status(folder, ignored));
}

#else

const std::string kFolder = "Kelvo-" + std::to_string(geteuid());

bool MakeOwn(const fs::path& folder) {
  constexpr mode_t kOwnRights = 0700, kOthersRights = 0077;
  mkdir(folder.c_str(), kOwnRights);
  struct stat made {};
  return lstat(folder.c_str(), &made) == 0 && S_ISDIR(made.st_mode) && made.st_uid == geteuid() &&
         (made.st_mode & kOthersRights) == 0;
}

#endif

}  // namespace

fs::path OtherFolderFor(const fs::path& program_folder) {
  std::error_code error;
  const fs::path temporary = fs::temp_directory_path(error);
  if (error) return {};
  std::string name = TextFromPath(fs::absolute(program_folder, error));
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '/' || c == '\\' || c == ':'; }, '%');
  return temporary / kFolder / PathFromText(FittingName(name, ""));
}

bool MakeOtherFolder(const fs::path& folder) {
  return !folder.empty() && MakeOwn(folder.parent_path()) && MakeOwn(folder);
}

}  // namespace kelvo::app
