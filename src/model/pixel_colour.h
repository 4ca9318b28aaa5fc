// Which colour a bit pair or a pixel shows.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/bit_pair.h"
#include "model/picture_image.h"
#include "model/pixel_place.h"

namespace kelvo::model {

// The three colours of a cell's own, as the pointer's cell has them.
struct CellColours {
  C64Colour CellColour11, CellColour10, CellColour01;

  friend bool operator==(const CellColours&, const CellColours&) = default;
};

// The own colours of `cell` (1..1000).
CellColours ColoursOfCell(const PictureImage& picture, int cell);

// The colour that `pair` shows in a cell with the colours `cell` on the background `background`.
constexpr C64Colour GetColFromBits(BitPair pair, const CellColours& cell, C64Colour background) {
  switch (pair) {
    case BitPair::k11:
      return cell.CellColour11;
    case BitPair::k10:
      return cell.CellColour10;
    case BitPair::k01:
      return cell.CellColour01;
    case BitPair::k00:
      break;
  }
  return background;
}

// The same for a pair's text; any text that names no pair gives the background colour.
C64Colour GetColFromBits(std::string_view pair, const CellColours& cell, C64Colour background);

// The colour that `pair` shows in `cell` (1..1000) of `picture`.
C64Colour ColourInCell(const PictureImage& picture, int cell, BitPair pair);

// The colour of the pixel at `position` (1..4 from the left) of `byte`, taken as bitmap byte `index` (1..8000).
// Throws std::out_of_range for an index that belongs to no cell.
C64Colour GetPixelColour(const PictureImage& picture, std::uint8_t byte, int position, int index);

// A cell that is held apart from the picture: its colour byte, its screen byte and its eight bitmap bytes, used from
// index 1.
using DetachedCell = std::array<std::uint8_t, 11>;

// The colour of the pixel at `position` (1..4) of `byte` in a detached cell. Its colour byte is taken whole, not masked
// to its low nibble, on purpose: a value above 15 shows as colour 0.
C64Colour GetPixelColour(const DetachedCell& cell, std::uint8_t byte, int position, C64Colour background);

struct PixelData {
  PixelPlace place;
  BitPair pair;
  C64Colour colour;
};

// What `picture` holds at x (1..160), y (1..200). Throws std::out_of_range outside the picture.
PixelData GetPixelData(const PictureImage& picture, int x, int y);

}  // namespace kelvo::model
