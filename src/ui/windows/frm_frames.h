// The frame strip: all frames of the animation in a row.
#pragma once

#include <QLabel>
#include <QListView>
#include <QWidget>

#include "ui/windows/frame_deeds.h"
#include "ui/windows/frame_list.h"

namespace kelvo::ui {

class frmFrames : public QWidget {
  Q_OBJECT

 public:
  // The settings outlive the window.
  frmFrames(const app::SettingsStore& settings, QWidget* parent);

  // The frames as they are now. The list's own place stays, unless another frame is the current one.
  void Show(const anim::FrameRow& row, std::optional<int> current);
  void ForgetPictures() { list_.ForgetPictures(); }
  const anim::FrameRow& Frames() const { return list_.Frames(); }
  // Puts the list's place on a frame, or on the next one where there is none of that number.
  void Select(int number);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void Asked(FrameDeed deed, int number);  // 0 where there are no frames
  void MoveAsked(int from, int to);        // frame numbers
  void Opened();                           // it is to be seen now
  void Closed();

 protected:
  void keyReleaseEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void AddActions();
  void Ask(FrameDeed deed);
  void AskMove(int distance);
  int Selected() const;
  QSize SizeFor(int frames) const;

  FrameList list_;
  QListView* lstFrames_;
  QLabel* hint_;
  std::optional<int> current_;
};

}  // namespace kelvo::ui
