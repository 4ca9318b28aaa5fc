// Paint > Preferences.
#pragma once

#include <QWidget>

#include "app/settings_store.h"

namespace kelvo::ui {

// Ctrl+Z and Ctrl+Y walk through the steps; Undo has no key then.
inline constexpr app::Setting kCtrlZStepsBack{"Preferences", "CtrlZStepsBack", "0"};

// Returns when the dialog is closed.
void ShowPreferences(app::SettingsStore& settings, QWidget* parent);

}  // namespace kelvo::ui
