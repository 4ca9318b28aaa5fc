// Connects the frame strip with the frames on the disk.
#pragma once

#include <QObject>

#include "anim/frame_order.h"
#include "ui/desks/animation_desk.h"
#include "ui/ports/file_watch.h"
#include "ui/windows/frm_frames.h"

namespace kelvo::ui {

// While the strip is not to be seen, nothing is read.
class FrameStripDesk : public QObject {
  Q_OBJECT

 public:
  // All of it outlives the desk.
  FrameStripDesk(const files::PictureSurroundings& with, AnimationDesk& animation, frmFrames& strip);

  void Refresh();
  // The frames look otherwise.
  void StartAfresh();

 private:
  void Do(FrameDeed deed, int number);
  std::string WordOf(FrameDeed deed, int number);
  void MoveFrame(int from, int to);
  void Change(const std::function<std::string()>& change);

  AnimationDesk& animation_;
  frmFrames& strip_;
  anim::FrameOrder order_;
  FileWatch folder_;
};

}  // namespace kelvo::ui
