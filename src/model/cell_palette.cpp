#include "model/cell_palette.h"

#include "model/palette.h"

namespace kelvo::model {

CellPalette PaletteOfCell(const PictureImage& picture, int cell) {
  const auto index = static_cast<std::size_t>(cell);
  const std::uint8_t screen = picture.ScreenMemory[index];
  return {SurfaceColour(picture.BackgroundColour), SurfaceColour(C64Colour::FromHighNibble(screen)),
          SurfaceColour(C64Colour::FromByte(screen)), SurfaceColour(C64Colour::FromByte(picture.ColourMemory[index]))};
}

}  // namespace kelvo::model
