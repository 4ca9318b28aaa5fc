// Where VICE is, and what the picture's program is called on a disk.
#pragma once

#include "app/messages.h"
#include "ui/widgets/settings_dialog.h"

namespace kelvo::ui {

class frmViceSettings : public SettingsDialog {
  Q_OBJECT

 public:
  frmViceSettings(app::SettingsStore& settings, app::Messages& messages, QWidget* parent);

 signals:
  // Whether builds that need VICE can be chosen from now on.
  void ViceEntriesEnabled(bool enabled);

 protected:
  void cmdStd_Click() override;

 private:
  void Browse();

  app::Messages& messages_;
  QLineEdit* path_;
};

}  // namespace kelvo::ui
