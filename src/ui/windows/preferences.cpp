#include "ui/windows/preferences.h"

#include "editing/preferences.h"
#include "files/backups.h"
#include "ui/widgets/settings_dialog.h"

namespace kelvo::ui {

void ShowPreferences(app::SettingsStore& settings, QWidget* parent) {
  SettingsDialog dialog(settings, "frmPreferences", "Preferences", parent);
  dialog.AddCheckBox(editing::k4thColReplaces, "&4th char color replaces selected color");
  dialog.AddCheckBox(editing::kReplaceLeastUsedColWhenFilling, "&Replace least used color when filling");
  dialog.AddCheckBox(editing::kCloseCircles, "&Close circles where they run steeply");
  dialog.AddCheckBox(editing::kTellRefusalsInStatusBar, "&Tell refusals of full cells in the status bar");
  dialog.AddNumber(files::kKeepBackupsDays, files::kMostBackupDays, "Days that every &backup is kept:", "for ever",
                   "Of the days before those the last backup of each picture stays");
  dialog.AddCheckBox(kCtrlZStepsBack, "Ctrl+&Z steps back and Ctrl+Y forward");
  dialog.exec();
}

}  // namespace kelvo::ui
