// Settings of the C64 output.
#pragma once

#include "app/settings_store.h"

namespace kelvo::c64out {

inline constexpr app::Setting kVicePath{"VICESettings", "VICEPath", ""};
inline constexpr app::Setting kVicePrgName{"VICESettings", "PRGName", ""};

// Only a text until the user sends something.
inline constexpr std::string_view kDefaultC64Ip = "192.168.1.64";
inline constexpr app::Setting kC64Ip{"CodenetSettings", "C64IP", kDefaultC64Ip};
inline constexpr app::Setting kCodenetPrgName{"CodenetSettings", "PRGName", ""};

}  // namespace kelvo::c64out
