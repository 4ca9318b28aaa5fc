// A picture, or a part of one, as colour numbers under the cell rule.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/c64_colour.h"
#include "model/picture_image.h"

namespace kelvo::convert {

// Cells of 4 x 8 pixels: 1..40 wide and 1..25 high. All indices count from 0, row by row.
struct CellGrid {
  static constexpr int kCellWidth = 4, kCellHeight = 8, kCellPixels = kCellWidth * kCellHeight;

  int cells_wide = model::PictureImage::kCellsWide, cells_high = model::PictureImage::kCellsHigh;

  int Width() const { return cells_wide * kCellWidth; }
  int Height() const { return cells_high * kCellHeight; }
  int Cells() const { return cells_wide * cells_high; }
  std::size_t Pixels() const { return static_cast<std::size_t>(Width()) * static_cast<std::size_t>(Height()); }

  // The place of pixel `k` (0..31, row by row) of `cell`, and the cell of the pixel at x, y.
  int XOf(int cell, int k) const { return cell % cells_wide * kCellWidth + k % kCellWidth; }
  int YOf(int cell, int k) const { return cell / cells_wide * kCellHeight + k / kCellWidth; }
  std::size_t PixelOf(int cell, int k) const { return static_cast<std::size_t>(YOf(cell, k) * Width() + XOf(cell, k)); }
  int CellAt(int x, int y) const { return y / kCellHeight * cells_wide + x / kCellWidth; }

  friend bool operator==(const CellGrid&, const CellGrid&) = default;
};

inline constexpr int kColours = model::C64Colour::kCount;

// Bit n stands for colour n.
using ColourSet = std::uint16_t;
inline constexpr ColourSet kAllColours = 0xFFFF;
inline constexpr int kMostColours = 4;  // of a cell: the background and three of its own

constexpr ColourSet SetOf(int colour) {
  return static_cast<ColourSet>(1U << colour);
}

struct ColourMap {
  CellGrid grid;
  model::C64Colour background;
  std::vector<std::uint8_t> colours;  // a number for each pixel, row by row

  ColourSet ColoursIn(int cell) const {
    ColourSet set = 0;
    for (int k = 0; k < CellGrid::kCellPixels; ++k) set |= SetOf(colours[grid.PixelOf(cell, k)]);
    return set;
  }
};

}  // namespace kelvo::convert
