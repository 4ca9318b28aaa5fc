#include "app/settings_store.h"

#include <charconv>
#include <optional>

namespace kelvo::app {
namespace {

std::optional<int> NumberIn(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

int ReadNumber(const SettingsStore& settings, const Setting& setting, int lowest, int highest) {
  const auto stored = NumberIn(settings.Read(setting));
  if (stored && *stored >= lowest && *stored <= highest) return *stored;
  return NumberIn(setting.default_value).value_or(lowest);
}

}  // namespace kelvo::app
