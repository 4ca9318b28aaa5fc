#include "anim/anim_settings.h"

#include <algorithm>

#include "model/onion_skin.h"

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
  return app::IsOn(settings, kOnionSkin);
}

void KeepOnionSkin(app::SettingsStore& settings, bool on) {
  settings.Write(kOnionSkin, on ? "1" : "0");
}

OnionFrames ReadOnionFrames(const app::SettingsStore& settings) {
  return static_cast<OnionFrames>(app::ReadNumber(settings, kOnionFrames, 0, static_cast<int>(OnionFrames::kBoth)));
}

void KeepOnionFrames(app::SettingsStore& settings, OnionFrames frames) {
  settings.Write(kOnionFrames, std::to_string(static_cast<int>(frames)));
}

int ReadOnionStrength(const app::SettingsStore& settings) {
  return app::ReadNumber(settings, kOnionStrength, model::OnionSkin::kFaintest, model::OnionSkin::kStrongest);
}

void KeepOnionStrength(app::SettingsStore& settings, int quarters) {
  settings.Write(kOnionStrength, std::to_string(quarters));
}

}  // namespace kelvo::anim
