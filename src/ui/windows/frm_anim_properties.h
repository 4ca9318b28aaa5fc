// Where the frames of the animation are, and how they are named.
#pragma once

#include "ui/widgets/settings_dialog.h"

namespace kelvo::ui {

class frmAnimProperties : public SettingsDialog {
  Q_OBJECT

 public:
  frmAnimProperties(app::SettingsStore& settings, QWidget* parent);

 private:
  void Browse();

  QLineEdit* folder_;
};

}  // namespace kelvo::ui
