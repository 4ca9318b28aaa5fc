#include "ui/widgets/sprite_picture.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kBoxWidth = 4, kBoxHeight = 2;  // of a picture pixel at 2×
constexpr int kSmallestSpritePixel = 2;

}  // namespace

SpritePicture::SpritePicture(model::Surface& surface, QWidget* parent)
    : SurfaceView(surface, kSmallestSpritePixel, parent) {}

void SpritePicture::ShowArea(const sprites::CaptureArea& area) {
  if (area_ == area) return;
  area_ = area;
  Refresh();
}

model::PixelPoint SpritePicture::PixelAt(QPoint at) {
  return {at.x() / kBoxWidth + 1, at.y() / kBoxHeight + 1};
}

void SpritePicture::PaintOverlay(QPainter& painter) {
  const QRect rim((area_.left - 1) * kBoxWidth, (area_.top - 1) * kBoxHeight, area_.Width() * kBoxWidth - 1,
                  area_.Height() * kBoxHeight - 1);
  PaintRim(painter, rim, Qt::DashLine);
}

void SpritePicture::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return emit KeyMoved(-1, 0);
    case Qt::Key_Right:
      return emit KeyMoved(1, 0);
    case Qt::Key_Up:
      return emit KeyMoved(0, -1);
    case Qt::Key_Down:
      return emit KeyMoved(0, 1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return emit KeyCaptured();
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace kelvo::ui
