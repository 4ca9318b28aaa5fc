// A cell's colours, ready to be put on a surface: the four that it has, and those that its pixels show.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/bit_pair.h"
#include "model/picture_image.h"

namespace kelvo::model {

// Surface colours by bit pair, %00 first.
using CellPalette = std::array<std::uint32_t, 4>;

// The colours of `cell` (1..1000).
CellPalette PaletteOfCell(const PictureImage& picture, int cell);

// The colour of the pixel at `position` (1..4 from the left) of `byte`.
inline std::uint32_t PixelIn(const CellPalette& palette, std::uint8_t byte, int position) {
  return palette[static_cast<std::size_t>(PairAt(byte, position))];
}

// The colours of a cell's pixels: four of each line, from the top.
using CellPixels = std::array<std::uint32_t, 32>;

// What `cell` (1..1000) looks like.
CellPixels PixelsOfCell(const PictureImage& picture, int cell);

// Where a pixel stands in them, at `line` 1..8 and `position` 1..4 of its cell.
constexpr std::size_t PixelInCell(int line, int position) {
  return static_cast<std::size_t>(4 * (line - 1) + position - 1);
}

}  // namespace kelvo::model
