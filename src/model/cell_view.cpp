#include "model/cell_view.h"

#include "model/cell_palette.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

// Calls `visit` with the cell's pixels: column 0..3, line 0..7, byte.
template <typename Visit>
void ForEachPixel(const PictureImage& picture, int cell, Visit&& visit) {
  for (int line = 0; line < 8; ++line) {
    const std::uint8_t byte = picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 1 + line)];
    for (int column = 0; column < 4; ++column) visit(column, line, PairAt(byte, column + 1));
  }
}

}  // namespace

void DrawCellView(const PictureImage& picture, int cell, Surface& surface) {
  const CellPalette palette = PaletteOfCell(picture, cell);
  ForEachPixel(picture, cell, [&](int column, int line, BitPair pair) {
    surface.Fill({column * kCellViewBoxWidth, line * kCellViewBoxHeight, kCellViewBoxWidth, kCellViewBoxHeight},
                 palette[static_cast<std::size_t>(pair)]);
  });
}

std::array<int, 4> CountPairs(const PictureImage& picture, int cell) {
  std::array<int, 4> counts{};
  ForEachPixel(picture, cell, [&](int, int, BitPair pair) { ++counts[static_cast<std::size_t>(pair)]; });
  return counts;
}

}  // namespace kelvo::model
