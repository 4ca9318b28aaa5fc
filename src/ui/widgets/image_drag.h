// Drags an image out of a widget, with Ctrl held.
#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <functional>
#include <optional>

class QWidget;

namespace kelvo::ui {

class ImageDrag : public QObject {
  Q_OBJECT

 public:
  // `image` is asked for what is dragged. Belongs to `source`.
  ImageDrag(QWidget* source, std::function<QImage()> image);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Drag();

  QWidget* source_;
  std::function<QImage()> image_;
  std::optional<QPoint> pressed_at_;
};

}  // namespace kelvo::ui
