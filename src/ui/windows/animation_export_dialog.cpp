#include "ui/windows/animation_export_dialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvo::ui {

AnimationExportDialog::AnimationExportDialog(const QString& title, QWidget* parent)
    : QDialog(parent), form_(new QFormLayout), image_(form_, this) {
  setObjectName("frmExportAnimation");
  setWindowTitle(title);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdStd");
  buttons->button(QDialogButtonBox::Ok)->setText("&Export...");
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form_);
  column->addWidget(buttons);
}

void AnimationExportDialog::AddPlayback(const app::SettingsStore& settings) {
  playback_ = new PlaybackChoice(settings, form_, this);
}

}  // namespace kelvo::ui
