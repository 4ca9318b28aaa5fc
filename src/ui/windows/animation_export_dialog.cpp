#include "ui/windows/animation_export_dialog.h"

#include <QVBoxLayout>

#include "ui/widgets/dialog_buttons.h"

namespace kelvo::ui {

AnimationExportDialog::AnimationExportDialog(const QString& title, QWidget* parent)
    : QDialog(parent), form_(new QFormLayout), image_(form_, this) {
  setObjectName("frmExportAnimation");
  setWindowTitle(title);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form_);
  column->addWidget(MakeDialogButtons("&Export...", this));
}

void AnimationExportDialog::AddPlayback(const app::SettingsStore& settings) {
  playback_ = new PlaybackChoice(settings, form_, this);
}

}  // namespace kelvo::ui
