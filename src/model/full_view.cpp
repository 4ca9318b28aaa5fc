#include "model/full_view.h"

#include <algorithm>
#include <cmath>

#include "model/cell_palette.h"
#include "model/palette.h"
#include "model/pixel_colour.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

constexpr int kCellSide = 8;  // display pixels of a cell, across and down

bool IsOneColour(std::uint8_t byte) {
  return byte == 0xFF || byte == 0xAA || byte == 0x55;
}

// One line of a cell, eight display pixels: a byte of one colour is one run.
void DrawCellLine(std::uint8_t byte, const CellPalette& palette, std::uint32_t* at) {
  if (IsOneColour(byte)) {
    std::fill_n(at, kCellSide, PixelIn(palette, byte, 1));
    return;
  }
  for (int position = 1; position <= 4; ++position, at += 2) at[0] = at[1] = PixelIn(palette, byte, position);
}

}  // namespace

Rect FullViewCellRect(int cell) {
  return {(cell - 1) % PictureImage::kCellsWide * kCellSide, (cell - 1) / PictureImage::kCellsWide * kCellSide,
          kCellSide, kCellSide};
}

void DrawPicture(const PictureImage& picture, Surface& surface, app::Progress& progress) {
  const app::ProgressScope scope(progress, PictureImage::kCellsHigh - 1);
  surface.Fill({0, 0, kFullViewWidth, kFullViewHeight}, SurfaceColour(picture.BackgroundColour));
  int cell = 1;
  const std::uint8_t* bytes = &picture.Bitmap[1];
  for (int row = 0; row < PictureImage::kCellsHigh; ++row) {
    for (int column = 0; column < PictureImage::kCellsWide; ++column, ++cell) {
      const CellPalette palette = PaletteOfCell(picture, cell);
      for (int line = 0; line < kCellSide; ++line, ++bytes) {
        if (*bytes == 0) continue;  // background only: the fill has drawn it
        DrawCellLine(*bytes, palette, surface.Row(row * kCellSide + line) + column * kCellSide);
      }
    }
    progress.Advance(row);
  }
}

void RedrawChar(const PictureImage& picture, int cell, Surface& surface) {
  const CellPalette palette = PaletteOfCell(picture, cell);
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
