#include "ui/widgets/image_drag.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QWidget>
#include <utility>

namespace kelvo::ui {

ImageDrag::ImageDrag(QWidget* source, std::function<QImage()> image)
    : QObject(source), source_(source), image_(std::move(image)) {
  source->installEventFilter(this);
}

// The widget sees nothing of a press with Ctrl, nor of what follows.
bool ImageDrag::eventFilter(QObject* watched, QEvent* event) {
  const auto* mouse = dynamic_cast<QMouseEvent*>(event);
  if (mouse == nullptr) return QObject::eventFilter(watched, event);
  const bool is_press = event->type() == QEvent::MouseButtonPress;
  if (is_press && mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::ControlModifier) {
    pressed_at_ = mouse->pos();
    return true;
  }
  if (!pressed_at_) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::MouseButtonRelease) pressed_at_.reset();
  const bool is_far =
      pressed_at_ && (mouse->pos() - *pressed_at_).manhattanLength() >= QApplication::startDragDistance();
  if (event->type() == QEvent::MouseMove && is_far) Drag();
  return true;
}

void ImageDrag::Drag() {
  pressed_at_.reset();
  const QImage image = image_();
  auto* data = new QMimeData;
  data->setImageData(image);
  auto* drag = new QDrag(source_);  // which it deletes itself, with the data
  drag->setMimeData(data);
  drag->setPixmap(QPixmap::fromImage(image.scaled(image.size() / 2)));
  drag->exec(Qt::CopyAction);
}

}  // namespace kelvo::ui
