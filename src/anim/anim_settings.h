// What animation mode keeps in the settings.
#pragma once

#include <string>

#include "app/settings_store.h"

namespace kelvo::anim {

inline constexpr app::Setting kFolder{"AnimProperties", "Folder", ""};
inline constexpr app::Setting kAnimPrefix{"AnimProperties", "AnimPrefix", "anim"};
inline constexpr app::Setting kPlayRate{"AnimProperties", "PlayRate", "10"};
inline constexpr app::Setting kOnionSkin{"AnimProperties", "OnionSkin", "0"};  // 1: the frame before shines through
inline constexpr app::Setting kPlaying{"AnimProperties", "Playing", "1"};      // a number of Playing

inline constexpr app::Setting kOnionFrames{"AnimProperties", "OnionFrames", "0"};      // a number of OnionFrames
inline constexpr app::Setting kOnionStrength{"AnimProperties", "OnionStrength", "1"};  // quarters

inline constexpr int kSlowestRate = 1, kFastestRate = 25;  // frames a second

// What follows the last frame when an animation is played: an end, the first frame again, or the way back.
enum class Playing { kOnce, kRound, kToAndFro };

struct AnimProperties {
  std::string folder;  // the beginning of every frame's path, used as it was typed
  std::string prefix;  // of every frame's file name
};

AnimProperties ReadAnimProperties(const app::SettingsStore& settings);

// Frames a second, kSlowestRate..kFastestRate.
int ReadPlayRate(const app::SettingsStore& settings);
void KeepPlayRate(app::SettingsStore& settings, int rate);

Playing ReadPlaying(const app::SettingsStore& settings);
void KeepPlaying(app::SettingsStore& settings, Playing playing);

bool ReadOnionSkin(const app::SettingsStore& settings);
void KeepOnionSkin(app::SettingsStore& settings, bool on);

// Which frames shine through, and how much of what is to be seen is theirs, in quarters.
enum class OnionFrames { kBefore, kAfter, kBoth };
OnionFrames ReadOnionFrames(const app::SettingsStore& settings);
void KeepOnionFrames(app::SettingsStore& settings, OnionFrames frames);
int ReadOnionStrength(const app::SettingsStore& settings);
void KeepOnionStrength(app::SettingsStore& settings, int quarters);

}  // namespace kelvo::anim
