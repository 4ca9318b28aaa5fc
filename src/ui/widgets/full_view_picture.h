// The picture box of the full view, with a marker around the part that the zoom window shows.
#pragma once

#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class FullViewPicture : public SurfaceView {
  Q_OBJECT

 public:
  FullViewPicture(model::Surface& surface, QWidget* parent);

  void Mark(const model::Rect& area);

 protected:
  void PaintOverlay(QPainter& painter) override;

 private:
  model::Rect mark_;
};

}  // namespace kelvo::ui
