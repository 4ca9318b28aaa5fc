// Where a pixel lies in the bytes of a picture.
#pragma once

#include "model/picture_image.h"

namespace kelvo::model {

struct PixelPoint {
  int x = 1, y = 1;  // 1..160, 1..200

  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// A pixel's coordinates with everything that follows from them. For a point outside the picture the indices follow the
// same arithmetic and lie outside their ranges; ask IsInPicture() first.
struct PixelPlace {
  int x = 1;         // 1..160 from the left
  int y = 1;         // 1..200 from the top
  int column = 1;    // of the cell, 1..40
  int row = 1;       // of the cell, 1..25
  int line = 1;      // within the cell, 1..8 from the top
  int position = 1;  // within the byte, 1..4 from the left (1 = bits 7-6)
  int base = 0;      // the cell's bytes are Bitmap[base + 1] .. Bitmap[base + 8]
  int byte = 1;      // index into Bitmap, 1..8000
  int cell = 1;      // index into ScreenMemory and ColourMemory, 1..1000

  friend bool operator==(const PixelPlace&, const PixelPlace&) = default;
};

PixelPlace LookUpPixel(int x, int y);

constexpr bool IsInPicture(int x, int y) {
  return x >= 1 && x <= PictureImage::kWidth && y >= 1 && y <= PictureImage::kHeight;
}

// The cell (1..1000) that bitmap byte `index` (1..8000) belongs to.
constexpr int CellOfByte(int index) {
  return (index + 7) / 8;
}

// The base index of `cell` (1..1000): its bytes are Bitmap[base + 1] .. Bitmap[base + 8].
constexpr int BaseOfCell(int cell) {
  return (cell - 1) * 8;
}

}  // namespace kelvo::model
