#include "model/cell_palette.h"

#include "model/palette.h"
#include "model/pixel_place.h"

namespace kelvo::model {

CellPalette PaletteOfCell(const PictureImage& picture, int cell) {
  const auto index = static_cast<std::size_t>(cell);
  const std::uint8_t screen = picture.ScreenMemory[index];
  return {SurfaceColour(picture.BackgroundColour), SurfaceColour(C64Colour::FromHighNibble(screen)),
          SurfaceColour(C64Colour::FromByte(screen)), SurfaceColour(C64Colour::FromByte(picture.ColourMemory[index]))};
}

CellPixels PixelsOfCell(const PictureImage& picture, int cell) {
  const CellPalette palette = PaletteOfCell(picture, cell);
  CellPixels pixels{};
  for (int line = 1; line <= 8; ++line) {
    const std::uint8_t byte = picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + line)];
    for (int position = 1; position <= 4; ++position) {
      pixels[PixelInCell(line, position)] = PixelIn(palette, byte, position);
    }
  }
  return pixels;
}

}  // namespace kelvo::model
