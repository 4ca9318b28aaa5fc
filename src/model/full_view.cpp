#include "model/full_view.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "model/cell_palette.h"
#include "model/palette.h"
#include "model/pixel_colour.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

constexpr int kCellSide = 8;  // display pixels of a cell, across and down

// True when the byte's four pixels are of one bit pair.
constexpr bool IsOneColour(std::uint8_t byte) {
  return (byte & 3) * 0b01010101 == byte;
}

// A cell's colours by bit pair, each twice: the two equal display pixels of a picture pixel, put down in one go.
using DoubledPalette = std::array<std::uint64_t, 4>;

DoubledPalette Doubled(const CellPalette& palette) {
  const auto twice = [](std::uint32_t colour) { return std::uint64_t{colour} << 32 | colour; };
  return {twice(palette[0]), twice(palette[1]), twice(palette[2]), twice(palette[3])};
}

// One line of a cell, eight display pixels: a byte of one colour is one run.
void DrawCellLine(std::uint8_t byte, const DoubledPalette& palette, std::uint32_t* at) {
  const auto put = [&](int position, std::uint64_t colour) { std::memcpy(at + 2 * position, &colour, sizeof colour); };
  if (IsOneColour(byte)) {
    const std::uint64_t colour = palette[byte & 3];
    for (int position = 0; position < 4; ++position) put(position, colour);
    return;
  }
  for (int position = 0; position < 4; ++position) put(position, palette[byte >> (6 - 2 * position) & 3]);
}

}  // namespace

Rect FullViewCellRect(int cell) {
  return {(cell - 1) % PictureImage::kCellsWide * kCellSide, (cell - 1) / PictureImage::kCellsWide * kCellSide,
          kCellSide, kCellSide};
}

void DrawPicture(const PictureImage& picture, Surface& surface, app::Progress& progress) {
  const app::ProgressScope scope(progress, PictureImage::kCellsHigh - 1);
  surface.Fill({0, 0, kFullViewWidth, kFullViewHeight}, SurfaceColour(picture.BackgroundColour));
  const int stride = surface.Width();
  int cell = 1;
  const std::uint8_t* bytes = &picture.Bitmap[1];
  for (int row = 0; row < PictureImage::kCellsHigh; ++row) {
    for (int column = 0; column < PictureImage::kCellsWide; ++column, ++cell) {
      const DoubledPalette palette = Doubled(PaletteOfCell(picture, cell));
      std::uint32_t* at = surface.Row(row * kCellSide) + column * kCellSide;
      for (int line = 0; line < kCellSide; ++line, ++bytes, at += stride) {
        if (*bytes != 0) DrawCellLine(*bytes, palette, at);  // else background only: the fill has drawn it
      }
    }
    progress.Advance(row);
  }
}

void RedrawChar(const PictureImage& picture, int cell, Surface& surface) {
  const DoubledPalette palette = Doubled(PaletteOfCell(picture, cell));
  const Rect at = FullViewCellRect(cell);
  const std::uint8_t* bytes = &picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 1)];
  for (int line = 0; line < kCellSide; ++line) DrawCellLine(bytes[line], palette, surface.Row(at.y + line) + at.x);
}

void PutPixel(const PictureImage& picture, int x, int y, Surface& surface) {
  const std::uint32_t colour = SurfaceColour(GetPixelData(picture, x, y).colour);
  std::fill_n(surface.Row(y - 1) + (x - 1) * 2, 2, colour);
}

FullViewPointer PointAtFullView(int display_x, int display_y) {
  const auto count = [](double value, int last) {
    return std::clamp(static_cast<int>(std::nearbyint(value + 0.51)), 1, last);
  };
  FullViewPointer pointer;
  pointer.x = count(display_x / 2.0, PictureImage::kWidth);
  pointer.y = count(display_y, PictureImage::kHeight);
  pointer.col = count(static_cast<float>(pointer.x - 1) / 4.0F, PictureImage::kCellsWide);
  pointer.row = count(static_cast<float>(pointer.y - 1) / 8.0F, PictureImage::kCellsHigh);
  return pointer;
}

}  // namespace kelvo::model
