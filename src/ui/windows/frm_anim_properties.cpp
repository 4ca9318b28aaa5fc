#include "ui/windows/frm_anim_properties.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>

#include "anim/anim_settings.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

frmAnimProperties::frmAnimProperties(app::SettingsStore& settings, QWidget* parent)
    : SettingsDialog(settings, "frmAnimProperties", "Animation properties", parent),
      folder_(AddText(anim::kFolder, "Animation &folder",
                      "It is the beginning of every frame's path, so it ends in a separator")) {
  AddText(anim::kAnimPrefix, "Animation &prefix", "Frames are named prefix, four digits, .kvp");
  auto* browse = new QPushButton("&Browse...");
  browse->setObjectName("browseFolder");
  browse->setAutoDefault(false);
  AddBeside(*folder_, browse);
  connect(browse, &QPushButton::clicked, this, &frmAnimProperties::Browse);
}

void frmAnimProperties::Browse() {
  const QString folder = QFileDialog::getExistingDirectory(this, "Animation folder", StillThere(folder_->text()));
  if (folder.isEmpty()) return;
  const QString path = NativePath(folder);
  folder_->setText(path.endsWith(QDir::separator()) ? path : path + QDir::separator());
}

}  // namespace kelvo::ui
