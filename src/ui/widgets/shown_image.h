// An image that may be larger than its pixels are kept, and the part of it that is wanted.
#pragma once

#include <QImage>
#include <QPainter>

#include "convert/preparation.h"

namespace kelvo::ui {

struct ShownImage {
  QImage pixels;                // reduced where the image is large
  QSize size;                   // the image's own
  QColor backdrop = Qt::black;  // behind transparent parts and beside the image

  // Draws the image so that all of it fills `place`.
  void Draw(QPainter& painter, const QRectF& place) const;
  // Where all of it lies when `area` lies at `place`.
  QRectF WholeAround(const convert::Area& area, const QRectF& place) const;
};

}  // namespace kelvo::ui
