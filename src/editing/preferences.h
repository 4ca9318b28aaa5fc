// The user's preferences for painting, read afresh at each use.
#pragma once

#include "app/settings_store.h"

namespace kelvo::editing {

inline constexpr app::Setting k4thColReplaces{"Preferences", "4thColReplaces", "1"};
inline constexpr app::Setting kReplaceLeastUsedColWhenFilling{"Preferences", "ReplaceLeastUsedColWhenFilling", "0"};
inline constexpr app::Setting kCloseCircles{"Preferences", "CloseCircles", "0"};
// A full cell that refuses a color is told in the status bar instead of a message box.
inline constexpr app::Setting kTellRefusalsInStatusBar{"Preferences", "TellRefusalsInStatusBar", "0"};

}  // namespace kelvo::editing
