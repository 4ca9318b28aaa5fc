// The picture box of the zoom window, with the shape under way drawn over the picture.
#pragma once

#include "editing/shapes.h"
#include "model/c64_colour.h"
#include "model/zoom_area.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class ZoomPicture : public SurfaceView {
  Q_OBJECT

 public:
  ZoomPicture(model::Surface& surface, const model::ZoomArea& area, QWidget* parent);

  // Points that are not in the picture yet; an empty list takes them away.
  void ShowPreview(editing::Points points, model::C64Colour colour);

 protected:
  void PaintOverlay(QPainter& painter) override;

 private:
  const model::ZoomArea& area_;
  editing::Points preview_;
  model::C64Colour colour_;
};

}  // namespace kelvo::ui
