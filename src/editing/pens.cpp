#include "editing/pens.h"

#include <string_view>

namespace kelvo::editing {

namespace {

constexpr std::string_view kKeys = "12345678QWERTYUI";

}  // namespace

char KeyForPen(model::C64Colour colour) {
  return kKeys[static_cast<std::size_t>(colour.Number())];
}

std::optional<model::C64Colour> PenForKey(char key) {
  const char upper = key >= 'a' && key <= 'z' ? static_cast<char>(key - 'a' + 'A') : key;
  const auto place = kKeys.find(upper);
  if (place == std::string_view::npos) return std::nullopt;
  return model::C64Colour::FromNumber(static_cast<int>(place));
}

}  // namespace kelvo::editing
