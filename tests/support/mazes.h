// Pictures that fills have long ways through.
#pragma once

#include "editing/set_data.h"
#include "support/pictures.h"

namespace kelvo::support {

// Nothing but walls, in colour 1.
inline model::PictureImage SolidWall() {
  model::PictureImage picture;
  for (int cell = 1; cell <= 1000; ++cell) SetCell(picture, cell, {255, 255, 255, 255, 255, 255, 255, 255}, 1, 2, 3);
  return picture;
}

// Makes x, y background.
inline void Carve(model::PictureImage& picture, int x, int y) {
  const model::PixelPlace place = model::LookUpPixel(x, y);
  editing::SetBits(picture, place.byte, place.position, model::BitPair::k00);
}

// Corridors one pixel wide, joined at alternate ends.
inline model::PictureImage Maze() {
  model::PictureImage picture = SolidWall();
  for (int x = 1; x <= 160; ++x) {
    for (int y = 1; y <= 200; ++y) {
      if (x % 2 == 1 || y == (x / 2 % 2 == 0 ? 1 : 200)) Carve(picture, x, y);
    }
  }
  return picture;
}

// Carves a fork of the tree at x, y; `chambers` counts down those that are left to carve.
inline void CarveFork(model::PictureImage& picture, int x, int y, int& chambers, int arm = 32, bool across = true) {
  if (arm < 4) {
    if (--chambers < 0) return;
    for (int place = 0; place < 25; ++place) Carve(picture, x - 2 + place % 5, y - 2 + place / 5);
    return;
  }
  for (int step = -arm; step <= arm; ++step) Carve(picture, x + (across ? step : 0), y + (across ? 0 : step));
  for (const int end : {-arm, arm}) {
    CarveFork(picture, x + (across ? end : 0), y + (across ? 0 : end), chambers, across ? arm : arm / 2, !across);
  }
}

// A corridor that forks again and again until it has 256 ends, the first `chambers` of them in a chamber. A fill from
// x 80, y 100 reaches all chambers at once: from about 80 on they have more pixels at one time than the window of its
// queue holds.
inline model::PictureImage Tree(int chambers = 256) {
  model::PictureImage picture = SolidWall();
  CarveFork(picture, 80, 100, chambers);
  return picture;
}

}  // namespace kelvo::support
