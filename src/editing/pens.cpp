#include "editing/pens.h"

#include <string_view>

namespace kelvo::editing {

std::optional<model::C64Colour> PenForKey(char key) {
  constexpr std::string_view kKeys = "12345678QWERTYUI";
  const char upper = key >= 'a' && key <= 'z' ? static_cast<char>(key - 'a' + 'A') : key;
  const auto place = kKeys.find(upper);
  if (place == std::string_view::npos) return std::nullopt;
  return model::C64Colour::FromNumber(static_cast<int>(place));
}

}  // namespace kelvo::editing
