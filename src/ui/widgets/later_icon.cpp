#include "ui/widgets/later_icon.h"

namespace kelvo::ui {

const QIcon& LaterIcon::Icon() {
  if (make_) icon_ = std::exchange(make_, nullptr)();
  return icon_;
}

void LaterIcon::paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) {
  Icon().paint(painter, place, Qt::AlignCenter, mode, state);
}

// Engines are asked in pixels of the display; the icon in front of this one tells its scale.
QPixmap LaterIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  return Icon().pixmap(size, 1, mode, state);
}

QSize LaterIcon::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  return Icon().actualSize(size, mode, state);
}

QList<QSize> LaterIcon::availableSizes(QIcon::Mode mode, QIcon::State state) {
  return Icon().availableSizes(mode, state);
}

}  // namespace kelvo::ui
