#include "app/path_text.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {

std::string ShortPath(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored) ? app::TextFromPath(path) : std::string();
}

}  // namespace kelvo::c64out
