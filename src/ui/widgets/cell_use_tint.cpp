#include "ui/widgets/cell_use_tint.h"

#include <QColor>
#include <array>

#include "model/cell_use.h"

namespace kelvo::ui {
namespace {

// By how many own colours are free.
const std::array<QColor, model::kOwnColours>& Tints() {
  static const std::array<QColor, model::kOwnColours> tints{QColor(255, 40, 40, 90), QColor(255, 190, 0, 70),
                                                            QColor(60, 220, 90, 50)};
  return tints;
}

}  // namespace

void PaintCellUse(QPainter& painter, const model::PictureImage& picture, int cell, const QRect& place) {
  const auto free = static_cast<std::size_t>(model::FreeOwnColours(picture, cell));
  if (free == model::kOwnColours) return;
  painter.fillRect(place, Tints().at(free));
  if (free > 0) return;
  const QRect inside = place.adjusted(1, 1, -1, -1);
  painter.setPen(Qt::black);
  painter.drawLine(inside.topLeft(), inside.bottomRight());
  painter.setPen(Qt::white);
  painter.drawLine(inside.bottomLeft(), inside.topRight());
}

}  // namespace kelvo::ui
