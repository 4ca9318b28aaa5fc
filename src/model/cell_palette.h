// A cell's four colours, ready to be put on a surface.
#pragma once

#include <array>
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

}  // namespace kelvo::model
