#include "model/cell_view.h"

#include "model/palette.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

// Draws the four by eight boxes of a cell; `colour_of` gives a byte's pixel at a position (1..4).
template <typename ColourOf>
void DrawBoxes(const std::uint8_t* bytes, ColourOf&& colour_of, Surface& surface) {
  const int width = surface.Width() / 4, height = surface.Height() / 8;
  for (int line = 0; line < 8; ++line) {
    for (int position = 1; position <= 4; ++position) {
      surface.Fill({(position - 1) * width, line * height, width, height},
                   SurfaceColour(colour_of(bytes[line], position)));
    }
  }
}

const std::uint8_t* BytesOf(const PictureImage& picture, int cell) {
  return &picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 1)];
}

}  // namespace

void DrawCellView(const PictureImage& picture, int cell, Surface& surface) {
  DrawBoxes(
      BytesOf(picture, cell),
      [&](std::uint8_t byte, int position) { return GetPixelColour(picture, byte, position, BaseOfCell(cell) + 1); },
      surface);
}

void DrawCharCopy(const DetachedCell& cell, C64Colour background, Surface& surface) {
  DrawBoxes(
      &cell[3], [&](std::uint8_t byte, int position) { return GetPixelColour(cell, byte, position, background); },
      surface);
}

std::array<int, 4> CountPairs(const PictureImage& picture, int cell) {
  std::array<int, 4> counts{};
  for (int line = 0; line < 8; ++line) {
    for (int position = 1; position <= 4; ++position) {
      ++counts[static_cast<std::size_t>(PairAt(BytesOf(picture, cell)[line], position))];
    }
  }
  return counts;
}

}  // namespace kelvo::model
