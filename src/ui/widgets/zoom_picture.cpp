#include "ui/widgets/zoom_picture.h"

#include <QPainter>
#include <utility>

#include "model/palette.h"
#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kSmallestZoomBox = 4;  // display pixels: the height of a box at 4:1

}  // namespace

ZoomPicture::ZoomPicture(model::Surface& surface, const model::ZoomArea& area, QWidget* parent)
    : SurfaceView(surface, kSmallestZoomBox, parent), area_(area) {}

void ZoomPicture::ShowPreview(editing::Points points, model::C64Colour colour) {
  if (points.empty() && preview_.empty()) return;
  preview_ = std::move(points);
  colour_ = colour;
  Refresh();
}

void ZoomPicture::PaintOverlay(QPainter& painter) {
  const QColor fill = QColor::fromRgb(model::SurfaceColour(colour_));
  const QColor rim = InkOn(fill);
  for (const model::PixelPoint& point : preview_) {
    if (!area_.ShowsPixel(point.x, point.y)) continue;
    const model::Rect at = area_.PixelRect(point.x, point.y);
    painter.fillRect(QRect(at.x, at.y, at.width, at.height), rim);
    painter.fillRect(QRect(at.x + 1, at.y + 1, at.width - 2, at.height - 2), fill);
  }
}

}  // namespace kelvo::ui
