// The picture in memory, byte for byte as a C64 keeps it.
#pragma once

#include <array>
#include <cstdint>

#include "model/c64_colour.h"

namespace kelvo::model {

// A multicolour bitmap of 160 x 200 pixels in 40 x 25 cells of 4 x 8, with its colours. A plain value: a snapshot is a
// copy, undo an assignment. All arrays are used from index 1; index 0 and the indices above the used range are spare
// bytes that reading a file may fill with its neighbouring bytes. Nothing displays them, and a saved file carries them.
struct PictureImage {
  static constexpr int kWidth = 160, kHeight = 200;
  static constexpr int kCellsWide = 40, kCellsHigh = 25, kCells = kCellsWide * kCellsHigh;
  static constexpr int kBitmapBytes = 8000;

  std::array<std::uint8_t, 8242> Bitmap{};  // 1..8000: a cell's eight lines follow one another, then the next cell
  std::array<std::uint8_t, 1025> ScreenMemory{};  // 1..1000: high nibble the colour of %01, low nibble that of %10
  std::array<std::uint8_t, 1025> ColourMemory{};  // 1..1000: low nibble the colour of %11, high nibble ignored
  C64Colour BackgroundColour;                     // the colour of %00, one for the whole picture
  std::uint8_t LoadAddressLow = 0x00;             // where a saved file loads on a C64: $5800 for a new picture,
  std::uint8_t LoadAddressHigh = 0x58;            // else what the last file read had

  friend bool operator==(const PictureImage&, const PictureImage&) = default;
};

// Sets every byte of the three arrays from index 1 on to 255, so that parts a file does not reach show %11 in
// colour 15.
void ClearForLoading(PictureImage& picture);

}  // namespace kelvo::model
