// The file that the picture in memory belongs to.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace kelvo::files {

// Both are empty while the picture has no file; but one that came of an image has a name before it has a file.
struct CurrentFile {
  std::filesystem::path CurrentFilePath;
  std::string CurrentFileName;  // as the title bar and the status bar show it

  bool HasFile() const { return !CurrentFilePath.empty(); }
  std::string NameOr(std::string_view unnamed) const {
    return CurrentFileName.empty() ? std::string(unnamed) : CurrentFileName;
  }
};

// Where a file is now that was at a path: the same path for one that was not moved, an empty one for one that is gone.
using WhereNow = std::function<std::filesystem::path(const std::filesystem::path&)>;

// The name that goes with `path`: the file name without a trailing ".PRG" in any case.
std::string NameOfPath(const std::filesystem::path& path);

// The current file for a path.
CurrentFile SetFileParameters(const std::filesystem::path& path);

// The program with its version, the credit line, and the name in brackets ("unnamed.kvp" without a file).
std::string WindowTitle(const CurrentFile& file);

// What the first status panel shows: the name, in brackets without a file; or "[unnamed]".
std::string StatusName(const CurrentFile& file);

}  // namespace kelvo::files
