// The look of "Tint changed cells": a tint over each cell that a frame does not have as the frame before it has.
#pragma once

#include <QPainter>
#include <QRect>

#include "model/picture_image.h"

namespace kelvo::ui {

// Tints `cell` (1..1000), which is shown at `place`, where it does not look the same in both pictures. A line around it
// tells without colours too.
void PaintCellChange(QPainter& painter, const model::PictureImage& before, const model::PictureImage& now, int cell,
                     const QRect& place);

}  // namespace kelvo::ui
