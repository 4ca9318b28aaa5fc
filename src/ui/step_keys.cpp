#include "ui/step_keys.h"

#include "ui/windows/preferences.h"

namespace kelvo::ui {

void ShowStepKeys(MainMenu& menu, const app::SettingsStore& settings) {
  const bool by_ctrl_z = app::IsOn(settings, kCtrlZStepsBack);
  menu.SetKeys("mnuUndo", by_ctrl_z ? "" : "Ctrl+Z");
  menu.SetKeys("mnuStepBack", by_ctrl_z ? "Ctrl+Z; Ctrl+Alt+Z" : "Ctrl+Alt+Z");
  menu.SetKeys("mnuStepForward", by_ctrl_z ? "Ctrl+Y; Ctrl+Alt+Y" : "Ctrl+Alt+Y");
}

}  // namespace kelvo::ui
