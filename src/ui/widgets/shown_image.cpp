#include "ui/widgets/shown_image.h"

namespace kelvo::ui {

// Pixels that come out large are meant to be seen as such.
void ShownImage::Draw(QPainter& painter, const QRectF& place) const {
  constexpr int kLarge = 2;
  painter.fillRect(place, backdrop);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, place.width() < kLarge * pixels.width());
  painter.drawImage(place, pixels);
}

QRectF ShownImage::WholeAround(const convert::Area& area, const QRectF& place) const {
  const double across = place.width() / area.width, down = place.height() / area.height;
  return {place.x() - area.left * across, place.y() - area.top * down, size.width() * across, size.height() * down};
}

}  // namespace kelvo::ui
