#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

// Division that rounds down below zero too, so that points left of and above the picture get cells outside it.
constexpr int FloorDivide(int value, int divisor) {
  return value >= 0 ? value / divisor : -((divisor - 1 - value) / divisor);
}

}  // namespace

PixelPlace LookUpPixel(int x, int y) {
  PixelPlace place{.x = x, .y = y};
  place.column = FloorDivide(x - 1, 4) + 1;
  place.row = FloorDivide(y - 1, 8) + 1;
  place.line = 8 - (8 * place.row - y);
  place.position = 4 - (4 * place.column - x);
  place.base = (place.row - 1) * 320 + (place.column - 1) * 8;
  place.byte = place.base + place.line;
  place.cell = (place.row - 1) * PictureImage::kCellsWide + place.column;
  return place;
}

}  // namespace kelvo::model
