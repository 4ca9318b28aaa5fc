// Drawing one cell much enlarged.
#pragma once

#include <array>
#include <cstdint>

#include "model/picture_image.h"
#include "model/surface.h"

namespace kelvo::model {

// One pixel of an enlarged cell is 24 x 12 display pixels.
inline constexpr int kCellViewBoxWidth = 24, kCellViewBoxHeight = 12;
inline constexpr int kCellViewWidth = 4 * kCellViewBoxWidth, kCellViewHeight = 8 * kCellViewBoxHeight;

// Draws `cell` (1..1000) into a surface of kCellViewWidth x kCellViewHeight.
void DrawCellView(const PictureImage& picture, int cell, Surface& surface);

// How many of the cell's 32 pixels show each bit pair, %00 first.
std::array<int, 4> CountPairs(const PictureImage& picture, int cell);

}  // namespace kelvo::model
