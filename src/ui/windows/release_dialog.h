// "Animation for the C64": what an animation takes, before a program is made of it.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <exception>
#include <optional>

#include "c64out/animation_release.h"
#include "ui/windows/playback_choice.h"
#include "ui/windows/release_table.h"

namespace kelvo::ui {

class ReleaseDialog : public QDialog {
  Q_OBJECT

 public:
  ReleaseDialog(anim::AnimationFrames animation, app::SettingsStore& settings, QWidget* parent);

  // Reads the frames, then asks; both can be stopped. Empty when the user does not want it. Throws what
  // c64out::MakeRelease() does. How it is to be played is kept.
  std::optional<c64out::Release> Ask();

 private:
  bool MakeRelease();
  void MakeAnew();
  void ShowRelease();

  anim::AnimationFrames animation_;
  app::SettingsStore& settings_;
  std::optional<c64out::Release> release_;
  std::exception_ptr failure_;

  QLabel* lblFrames_;
  QLabel* lblNotes_;
  QLabel* lblAdvice_;
  ReleaseTable* table_;
  PlaybackChoice* playback_;
  QCheckBox* chkBackground_;
  QPushButton* cmdBuild_;
};

}  // namespace kelvo::ui
