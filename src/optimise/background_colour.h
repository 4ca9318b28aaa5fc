// "Optimize background color": pixels that show the background colour are drawn with the background's bit pair.
#pragma once

#include "app/long_work.h"
#include "model/picture_image.h"
#include "optimise/cell_sweep.h"

namespace kelvo::optimise {

// Turns every pixel of one cell whose slot shows the background colour into %00, and says how many there were. The
// cell's bytes are Bitmap[index + 1]
// .. Bitmap[index + 8]; a negative index does nothing. Its colours stay, also those that no pixel uses any more.
int OptimizeChar(model::PictureImage& picture, int index);

// What a pass changed.
struct Optimized {
  int pixels = 0;  // 0..32000
  int cells = 0;   // 0..1000
};

// The whole picture. It looks the same before and after.
Optimized OptimizeBackgroundColor(model::PictureImage& picture, app::Progress& progress, const ShowCell& show);

}  // namespace kelvo::optimise
