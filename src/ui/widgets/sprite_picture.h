// The picture of the sprite converter at 2×, with the capture rectangle.
#pragma once

#include "sprites/sprite.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class SpritePicture : public SurfaceView {
  Q_OBJECT

 public:
  SpritePicture(model::Surface& surface, QWidget* parent);

  void ShowArea(const sprites::CaptureArea& area);
  // The picture pixel under a place of the surface.
  static model::PixelPoint PixelAt(QPoint at);

 signals:
  void KeyMoved(int dx, int dy);  // pixels
  void KeyCaptured();

 protected:
  void PaintOverlay(QPainter& painter) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  sprites::CaptureArea area_;
};

}  // namespace kelvo::ui
