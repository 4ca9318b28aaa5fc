#include "ui/widgets/full_view_picture.h"

#include <QPainter>

#include "model/full_view.h"
#include "ui/widgets/cell_use_tint.h"
#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kWholePixels = 1;

}  // namespace

FullViewPicture::FullViewPicture(model::Surface& surface, QWidget* parent)
    : SurfaceView(surface, kWholePixels, parent) {}

void FullViewPicture::Mark(const model::Rect& area) {
  if (mark_ == area) return;
  mark_ = area;
  Refresh();
}

void FullViewPicture::ShowCellUse(const model::PictureImage* picture) {
  cell_use_ = picture;
  Refresh();
}

void FullViewPicture::PaintOverlay(QPainter& painter) {
  for (int cell = 1; cell_use_ != nullptr && cell <= model::PictureImage::kCells; ++cell) {
    const model::Rect at = model::FullViewCellRect(cell);
    PaintCellUse(painter, *cell_use_, cell, {at.x, at.y, at.width, at.height});
  }
  PaintRim(painter, QRect(mark_.x, mark_.y, mark_.width - 1, mark_.height - 1), Qt::DotLine);
}

}  // namespace kelvo::ui
