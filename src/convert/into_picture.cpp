#include "convert/into_picture.h"

#include <array>

#include "model/bit_pair.h"
#include "model/pixel_place.h"

namespace kelvo::convert {
namespace {

using model::PictureImage;

// Which of a cell's four colours each bit pair shows.
std::array<std::uint8_t, kMostColours> SlotsOf(ColourSet set, std::uint8_t background) {
  std::array<std::uint8_t, kMostColours> slots;
  slots.fill(background);
  std::size_t next = 1;
  for (std::uint8_t colour = 0; colour < model::C64Colour::kCount && next < slots.size(); ++colour) {
    if (colour != background && (set & SetOf(colour)) != 0) slots[next++] = colour;
  }
  return slots;
}

void PutCell(PictureImage& picture, const ColourMap& map, int cell, int target) {
  const auto slots = SlotsOf(map.ColoursIn(cell), map.background.Byte());
  const auto at = static_cast<std::size_t>(target);
  picture.ScreenMemory.at(at) = static_cast<std::uint8_t>(slots[1] << 4 | slots[2]);
  picture.ColourMemory.at(at) = slots[3];
  const auto base = static_cast<std::size_t>(model::BaseOfCell(target));
  for (int k = 0; k < CellGrid::kCellPixels; ++k) {
    const std::uint8_t colour = map.colours[map.grid.PixelOf(cell, k)];
    std::size_t pair = 0;
    while (slots.at(pair) != colour) ++pair;
    std::uint8_t& byte = picture.Bitmap.at(base + 1 + static_cast<std::size_t>(k / CellGrid::kCellWidth));
    byte = model::WithPairAt(byte, k % CellGrid::kCellWidth + 1, static_cast<model::BitPair>(pair));
  }
}

}  // namespace

void PutInto(PictureImage& picture, const ColourMap& map, int column, int row) {
  picture.BackgroundColour = map.background;
  for (int cell = 0; cell < map.grid.Cells(); ++cell) {
    const int to_column = column + cell % map.grid.cells_wide, to_row = row + cell / map.grid.cells_wide;
    const bool inside =
        to_column >= 0 && to_column < PictureImage::kCellsWide && to_row >= 0 && to_row < PictureImage::kCellsHigh;
    if (inside) PutCell(picture, map, cell, to_row * PictureImage::kCellsWide + to_column + 1);
  }
}

PictureImage PictureOf(const ColourMap& map) {
  PictureImage picture;
  PutInto(picture, map);
  return picture;
}

}  // namespace kelvo::convert
