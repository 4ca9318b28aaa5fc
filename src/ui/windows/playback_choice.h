// How an animation is played: so many frames a second, and what follows the last one.
#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>

#include "anim/anim_settings.h"

namespace kelvo::ui {

class PlaybackChoice : public QObject {
  Q_OBJECT

 public:
  // Adds its rows to `form`, as the settings have them.
  PlaybackChoice(const app::SettingsStore& settings, QFormLayout* form, QWidget* parent);

  int Rate() const { return rate_->value(); }
  anim::Playing Playing() const { return static_cast<anim::Playing>(cboPlaying_->currentIndex()); }
  void Keep(app::SettingsStore& settings) const;

 signals:
  void Changed();

 private:
  QSpinBox* rate_;
  QComboBox* cboPlaying_;
};

}  // namespace kelvo::ui
