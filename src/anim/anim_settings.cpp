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

Playing ReadPlaying(const app::SettingsStore& settings) {
  return static_cast<Playing>(app::ReadNumber(settings, kPlaying, 0, static_cast<int>(Playing::kToAndFro)));
}

void KeepPlaying(app::SettingsStore& settings, Playing playing) {
  settings.Write(kPlaying, std::to_string(static_cast<int>(playing)));
}

bool ReadOnionSkin(const app::SettingsStore& settings) {
  return app::ReadNumber(settings, kOnionSkin, 0, 1) == 1;
}

void KeepOnionSkin(app::SettingsStore& settings, bool on) {
  settings.Write(kOnionSkin, on ? "1" : "0");
}

}  // namespace kelvo::anim
