#include "ui/windows/playback_choice.h"

namespace kelvo::ui {

PlaybackChoice::PlaybackChoice(const app::SettingsStore& settings, QFormLayout* form, QWidget* parent)
    : QObject(parent), rate_(new QSpinBox(parent)), cboPlaying_(new QComboBox(parent)) {
  rate_->setObjectName("rate");
  rate_->setRange(anim::kSlowestRate, anim::kFastestRate);
  rate_->setSuffix(" frames a second");
  rate_->setKeyboardTracking(false);
  rate_->setValue(anim::ReadPlayRate(settings));
  cboPlaying_->setObjectName("cboPlaying");
  cboPlaying_->addItems({"Once", "Round and round", "To and fro"});
  cboPlaying_->setCurrentIndex(static_cast<int>(anim::ReadPlaying(settings)));
  form->addRow("&Rate:", rate_);
  form->addRow("&Playing:", cboPlaying_);
  connect(rate_, &QSpinBox::valueChanged, this, &PlaybackChoice::Changed);
  connect(cboPlaying_, &QComboBox::currentIndexChanged, this, &PlaybackChoice::Changed);
}

void PlaybackChoice::Keep(app::SettingsStore& settings) const {
  anim::KeepPlayRate(settings, Rate());
  anim::KeepPlaying(settings, Playing());
}

}  // namespace kelvo::ui
