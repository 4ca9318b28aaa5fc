// The frame window of the animation mode.
#pragma once

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>

#include "anim/frame_navigation.h"

namespace kelvo::ui {

class frmAnim : public QWidget {
  Q_OBJECT

 public:
  explicit frmAnim(QWidget* parent);

  // `current` is empty while the picture in memory is no frame.
  void ShowFrame(const QString& current, int count);
  void ShowPlaying(bool playing);
  void SetPlayRate(int rate) { rate_->setValue(rate); }
  void SetOnionSkin(bool on) { onion_skin_->setChecked(on); }
  int PlayRate() const { return rate_->value(); }

 signals:
  void MoveAsked(anim::FrameMove move);
  void NumberTyped(const QString& number);
  void PlayAsked();
  void PlayWindowAsked();
  void PlayRateChanged(int rate);
  void OnionSkinChanged(bool on);
  // A key was let go that neither the number fields nor the buttons use.
  void KeyReleased(QKeyEvent* event);
  void Closed(QPoint place);  // of its content, on the display

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  QWidget* MakeButtons();
  QWidget* MakeNumber();
  QWidget* MakePlayer();
  bool Uses(int key) const;

  QLineEdit* txtFrame_;
  QLabel* count_;
  QPushButton* cmdPlay_;
  QSpinBox* rate_;
  QCheckBox* onion_skin_;
};

}  // namespace kelvo::ui
