#include "app/settings_store.h"

#include "app/text.h"

namespace kelvo::app {

int ReadNumber(const SettingsStore& settings, const Setting& setting, int lowest, int highest) {
  const auto stored = WholeNumber<int>(settings.Read(setting));
  if (stored && *stored >= lowest && *stored <= highest) return *stored;
  return WholeNumber<int>(setting.default_value).value_or(lowest);
}

bool IsOn(const SettingsStore& settings, const Setting& setting) {
  return ReadNumber(settings, setting, 0, 1) == 1;
}

}  // namespace kelvo::app
