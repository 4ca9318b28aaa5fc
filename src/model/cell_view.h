// Drawing one cell much enlarged.
#pragma once

#include <array>

#include "model/picture_image.h"
#include "model/pixel_colour.h"
#include "model/surface.h"

namespace kelvo::model {

// One pixel of the enlarged cell in the char data window is 20 x 10 display pixels.
inline constexpr int kCellViewWidth = 80, kCellViewHeight = 80;

// Fills a surface, whose sides are multiples of 4 and 8, with `cell` (1..1000).
void DrawCellView(const PictureImage& picture, int cell, Surface& surface);

// The same for the cell in the copy buffer.
void DrawCharCopy(const DetachedCell& cell, C64Colour background, Surface& surface);

// How many of the cell's 32 pixels show each bit pair, %00 first.
std::array<int, 4> CountPairs(const PictureImage& picture, int cell);

}  // namespace kelvo::model
