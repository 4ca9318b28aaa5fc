#include "app/free_name.h"

#include <system_error>

namespace kelvo::app {

std::filesystem::path FreeNameBeside(const std::filesystem::path& file) {
  std::filesystem::path name = file;
  std::error_code ignored;
  do {
    name += ".old";
  } while (std::filesystem::exists(std::filesystem::symlink_status(name, ignored)));
  return name;
}

}  // namespace kelvo::app
