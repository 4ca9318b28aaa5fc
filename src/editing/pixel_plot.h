// The plot: one pixel in one colour, under the rule that a cell shows four colours at most.
#pragma once

#include "model/picture_image.h"

namespace kelvo::editing {

enum class PlotResult {
  kOutside,     // not in the picture: nothing done
  kPlotted,     // the pixel shows the pen's colour
  kRecoloured,  // the cell is full: the clicked pixel's own slot took the colour, and every pixel that shows it with it
  kCellFull,    // the cell is full and may not be recoloured: nothing done
};

enum class FullCell { kRecolour, kRefuse };

// Plots x (1..160), y (1..200). The background is tested before the cell's own colours. A slot that shows the
// background colour counts as free even while pixels use it, on purpose: those pixels change to the new colour. A pixel
// of the background in a full cell is left alone.
PlotResult PlotPixel(model::PictureImage& picture, int x, int y, model::C64Colour pen, FullCell full_cell);

}  // namespace kelvo::editing
