// What another background colour would mean for the cells of a picture.
#pragma once

#include <array>

#include "model/picture_image.h"

namespace kelvo::optimise {

// Numbers of cells, 0..1000; no cell is in both.
struct BackgroundEffect {
  int gain_room = 0;  // have more own colours free than now, and look the same apart from the background
  int clash = 0;  // show the background beside an own colour that would be the same: the two could not be told apart

  friend bool operator==(const BackgroundEffect&, const BackgroundEffect&) = default;
};

// By colour number. The background that the picture has changes nothing.
std::array<BackgroundEffect, model::C64Colour::kCount> WhatIfBackground(const model::PictureImage& picture);

}  // namespace kelvo::optimise
