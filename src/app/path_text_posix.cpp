#include "app/path_text.h"

namespace kelvo::app {

std::filesystem::path PathFromText(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

std::string TextFromPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace kelvo::app
