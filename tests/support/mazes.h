// The picture that a fill has the longest way through.
#pragma once

#include "editing/set_data.h"
#include "support/painted.h"

namespace kelvo::support {

// Corridors of background one pixel wide between walls of colour 1, joined at alternate ends.
inline model::PictureImage Maze() {
  model::PictureImage picture;
  for (int cell = 1; cell <= 1000; ++cell) SetCell(picture, cell, {}, 1, 2, 3);
  for (int x = 2; x <= 160; x += 2) {
    for (int y = 1; y <= 200; ++y) {
      if (y == (x / 2 % 2 == 0 ? 1 : 200)) continue;
      const model::PixelPlace place = model::LookUpPixel(x, y);
      editing::SetData(picture, place.byte, place.position, model::BitPair::k11, place.cell, Colour(1));
    }
  }
  return picture;
}

}  // namespace kelvo::support
