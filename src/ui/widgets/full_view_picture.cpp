#include "ui/widgets/full_view_picture.h"

#include <QPainter>

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

void FullViewPicture::PaintOverlay(QPainter& painter) {
  // White dashes on black: to be seen on every picture.
  const QRect rim(mark_.x, mark_.y, mark_.width - 1, mark_.height - 1);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawRect(rim);
  painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
  painter.drawRect(rim);
}

}  // namespace kelvo::ui
