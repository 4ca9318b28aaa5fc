#include "app/free_name.h"

#include <string>
#include <system_error>

#include "app/file_name.h"
#include "app/path_text.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

bool IsTaken(const fs::path& name) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(name, ignored));
}

}  // namespace

fs::path FreeNameBeside(const fs::path& file) {
  const std::string stem = TextFromPath(file.filename());
  std::string ending;
  fs::path name;
  do {
    ending += ".old";
    name = file.parent_path() / PathFromText(FittingName(stem, ending));
  } while (IsTaken(name));
  return name;
}

fs::path FreeNameIn(const fs::path& folder, std::string_view stem, std::string_view mark, std::string_view ending) {
  const auto named = [&](const std::string& number) {
    return folder / PathFromText(FittingName(stem, std::string(mark) + number + std::string(ending)));
  };
  fs::path name = named("");
  for (int number = 2; IsTaken(name); ++number) name = named("_" + std::to_string(number));
  return name;
}

}  // namespace kelvo::app
