// The keys that walk through the steps of the history.
#pragma once

#include "app/settings_store.h"
#include "ui/main_menu.h"

namespace kelvo::ui {

// Who prefers it walks by Ctrl+Z and Ctrl+Y; Undo has no key then.
void ShowStepKeys(MainMenu& menu, const app::SettingsStore& settings);

}  // namespace kelvo::ui
