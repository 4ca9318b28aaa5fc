#include "anim/anim_settings.h"

#include <algorithm>

namespace kelvo::anim {

AnimProperties ReadAnimProperties(const app::SettingsStore& settings) {
  return {settings.Read(kFolder), settings.Read(kAnimPrefix)};
}

int ReadPlayRate(const app::SettingsStore& settings) {
  return app::ReadNumber(settings, kPlayRate, kSlowestRate, kFastestRate);
}

void KeepPlayRate(app::SettingsStore& settings, int rate) {
  settings.Write(kPlayRate, std::to_string(std::clamp(rate, kSlowestRate, kFastestRate)));
}

bool ReadOnionSkin(const app::SettingsStore& settings) {
  return app::ReadNumber(settings, kOnionSkin, 0, 1) == 1;
}

void KeepOnionSkin(app::SettingsStore& settings, bool on) {
  settings.Write(kOnionSkin, on ? "1" : "0");
}

}  // namespace kelvo::anim
