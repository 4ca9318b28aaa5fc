// What is drawn on colours so that it is seen on every one.
#pragma once

#include <QColor>
#include <QPainter>

namespace kelvo::ui {

// Black or white, whichever reads better on `colour`.
inline QColor InkOn(const QColor& colour) {
  constexpr int kLight = 120;  // of the 256 greys of qGray
  return qGray(colour.rgb()) > kLight ? Qt::black : Qt::white;
}

// A rim of white `dashes` on black.
inline void PaintRim(QPainter& painter, const QRectF& rim, Qt::PenStyle dashes) {
  painter.setPen(Qt::black);
  painter.drawRect(rim);
  painter.setPen(QPen(Qt::white, 1, dashes));
  painter.drawRect(rim);
}

}  // namespace kelvo::ui
