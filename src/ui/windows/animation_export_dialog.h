// What exporting an animation as images asks: how large they are, and for a GIF how it is played.
#pragma once

#include <QDialog>
#include <QFormLayout>

#include "ui/windows/image_size_rows.h"
#include "ui/windows/playback_choice.h"

namespace kelvo::ui {

class AnimationExportDialog : public QDialog {
  Q_OBJECT

 public:
  AnimationExportDialog(const QString& title, QWidget* parent);

  // Asks how it is played, too.
  void AddPlayback(const app::SettingsStore& settings);

  const ImageSizeRows& Image() const { return image_; }
  const PlaybackChoice* Playback() const { return playback_; }  // null where it is not asked

 private:
  QFormLayout* form_;
  ImageSizeRows image_;
  PlaybackChoice* playback_ = nullptr;
};

}  // namespace kelvo::ui
