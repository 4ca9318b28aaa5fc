#include "ui/widgets/cell_change_tint.h"

#include <QColor>

#include "model/cell_palette.h"

namespace kelvo::ui {
namespace {

constexpr QColor kTint(60, 150, 255, 70), kLine(150, 205, 255, 210);

}  // namespace

void PaintCellChange(QPainter& painter, const model::PictureImage& before, const model::PictureImage& now, int cell,
                     const QRect& place) {
  if (model::PixelsOfCell(before, cell) == model::PixelsOfCell(now, cell)) return;
  painter.fillRect(place, kTint);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(kLine);
  painter.drawRect(place.adjusted(1, 1, -2, -2));
}

}  // namespace kelvo::ui
