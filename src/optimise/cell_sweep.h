// The way over all cells that the whole-picture passes share.
#pragma once

#include <functional>

#include "app/long_work.h"
#include "model/pixel_place.h"

namespace kelvo::optimise {

// Where the cell that a pass has come to is shown. Called a thousand times in a pass, so it is to be cheap.
using ShowCell = std::function<void(int cell)>;  // 1..1000

// Visits the cells row by row, left to right; each is shown, then `visit`ed with the place of its lower right pixel.
// The progress runs from 0 to 1000.
template <typename Visit>
void SweepCells(app::Progress& progress, const ShowCell& show, Visit&& visit) {
  using model::PictureImage;
  const app::ProgressScope scope(progress, PictureImage::kCells);
  int done = 0;
  for (int row = 1; row <= PictureImage::kCellsHigh; ++row) {
    for (int column = 1; column <= PictureImage::kCellsWide; ++column) {
      const model::PixelPlace place = model::LookUpPixel(column * 4, row * 8);
      show(place.cell);
      visit(place);
      progress.Advance(++done);
    }
  }
}

}  // namespace kelvo::optimise
