// The picture box of the zoom window. Over the picture it shows the shape under way, the keyboard's cursor, and cells
// that the cell rule has just refused or recoloured.
#pragma once

#include <deque>
#include <optional>

#include "editing/shapes.h"
#include "model/c64_colour.h"
#include "model/picture_views.h"
#include "model/zoom_area.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class ZoomPicture : public SurfaceView {
  Q_OBJECT

 public:
  ZoomPicture(model::Surface& surface, const model::ZoomArea& area, QWidget* parent);

  // Points that are not in the picture yet; an empty list takes them away.
  void ShowPreview(editing::Points points, model::C64Colour colour);

  void ShowCursor(std::optional<model::PixelPoint> at);
  void FlashCell(int cell, model::FullCellFate fate);  // 1..1000
  // Tints cells by what is free in `picture`; null: not.
  void ShowCellUse(const model::PictureImage* picture);
  // Tints cells that look otherwise in `now`, which outlives the box, than in `before`; empty: not.
  void ShowChanges(const model::PictureImage& now, const std::optional<model::PictureImage>& before);
  bool ShowsChanges() const { return before_.has_value(); }

 protected:
  void PaintOverlay(QPainter& painter) override;

 private:
  struct Flash {
    int cell;
    model::FullCellFate fate;
  };
  void PaintCells(QPainter& painter) const;
  void PaintPreview(QPainter& painter) const;
  void PaintFlashes(QPainter& painter) const;
  void PaintCursor(QPainter& painter) const;

  const model::ZoomArea& area_;
  editing::Points preview_;
  model::C64Colour colour_;
  std::optional<model::PixelPoint> cursor_;
  const model::PictureImage* cell_use_ = nullptr;
  const model::PictureImage* now_ = nullptr;
  std::optional<model::PictureImage> before_;
  std::deque<Flash> flashes_;  // the oldest first, which ends first
};

}  // namespace kelvo::ui
