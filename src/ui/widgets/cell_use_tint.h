// The look of "Cell use": a tint over each cell that says how many own colours it has free.
#pragma once

#include <QPainter>
#include <QRect>

#include "model/picture_image.h"

namespace kelvo::ui {

// Tints `cell` (1..1000), which is shown at `place`: the fewer colours are free, the stronger. A cell with all three
// free stays as it is; a full one is crossed out, so that it is told without colours too.
void PaintCellUse(QPainter& painter, const model::PictureImage& picture, int cell, const QRect& place);

}  // namespace kelvo::ui
