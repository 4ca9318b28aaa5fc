// Settings of the C64 output.
#pragma once

#include <string_view>

#include "app/settings_store.h"

namespace kelvo::c64out {

inline constexpr app::Setting kVicePath{"VICESettings", "VICEPath", ""};
inline constexpr app::Setting kVicePrgName{"VICESettings", "PRGName", ""};
// 0 or 1 each.
inline constexpr app::Setting kCheckPrograms{"VICESettings", "CheckPrograms", "1"};
inline constexpr app::Setting kKeyEndsPicture{"VICESettings", "KeyEndsPicture", "0"};
inline constexpr app::Setting kFadeIn{"VICESettings", "FadeIn", "0"};
inline constexpr app::Setting kOneEmulator{"VICESettings", "OneEmulator", "0"};  // a preview ends the one before

// Where a C64 is looked for until the user says otherwise. It is only a text: nothing is sent until the user sends.
inline constexpr std::string_view kDefaultC64Address = "192.168.1.64";
inline constexpr app::Setting kCodenetC64Ip{"CodenetSettings", "C64IP", kDefaultC64Address};
inline constexpr app::Setting kCodenetPrgName{"CodenetSettings", "PRGName", ""};

}  // namespace kelvo::c64out
