// How the cells of a picture use their colours.
#pragma once

#include <array>

#include "model/picture_image.h"

namespace kelvo::model {

inline constexpr int kOwnColours = 3;

// How many of the own colours of `cell` (1..1000) a new colour may take, 0..3, by the rule of painting: those that no
// pixel shows, and those that show the background colour.
int FreeOwnColours(const PictureImage& picture, int cell);

// By colour number: in how many cells at least one pixel shows the colour, 0..1000.
std::array<int, C64Colour::kCount> CellsShowing(const PictureImage& picture);

}  // namespace kelvo::model
