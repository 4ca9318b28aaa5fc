// The picture box of the full view, with a marker around the part that the zoom window shows.
#pragma once

#include "model/picture_image.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class FullViewPicture : public SurfaceView {
  Q_OBJECT

 public:
  FullViewPicture(model::Surface& surface, QWidget* parent);

  void Mark(const model::Rect& area);
  // Tints cells by what is free in `picture`; null: not.
  void ShowCellUse(const model::PictureImage* picture);

 protected:
  void PaintOverlay(QPainter& painter) override;

 private:
  model::Rect mark_;
  const model::PictureImage* cell_use_ = nullptr;
};

}  // namespace kelvo::ui
