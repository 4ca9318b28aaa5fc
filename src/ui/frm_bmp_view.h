// The full view: the whole picture at 1:1.
#pragma once

#include <QProgressBar>
#include <QWidget>

#include "model/full_view.h"
#include "model/picture_image.h"
#include "model/surface.h"
#include "ui/frame_progress.h"
#include "ui/surface_view.h"

namespace kelvo::ui {

class frmBMPView : public QWidget {
  Q_OBJECT

 public:
  frmBMPView(const model::PictureImage& picture, QWidget* parent);

  void DrawPicture();
  void RedrawChar(int cell);    // 1..1000
  void PutPixel(int x, int y);  // 1..160, 1..200
  void ShowPlainCaption();      // no pointer is over the picture

  app::Progress& Progress() { return progress_; }

 signals:
  void ZoomAreaChosen(int col, int row);  // 1..40, 1..25

 private:
  void picStd_MouseMove(QPoint at);
  void picStd_Click();

  const model::PictureImage& picture_;
  model::Surface surface_;
  model::FullViewPointer pointer_;
  SurfaceView* picStd_;
  QProgressBar* ProgressBar1_;
  FrameProgress progress_;
};

}  // namespace kelvo::ui
