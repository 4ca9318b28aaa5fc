#include "model/pixel_colour.h"

#include <stdexcept>

namespace kelvo::model {

CellColours ColoursOfCell(const PictureImage& picture, int cell) {
  const auto index = static_cast<std::size_t>(cell);
  const std::uint8_t screen = picture.ScreenMemory.at(index);
  return {.CellColour11 = C64Colour::FromByte(picture.ColourMemory.at(index)),
          .CellColour10 = C64Colour::FromByte(screen),
          .CellColour01 = C64Colour::FromHighNibble(screen)};
}

C64Colour GetColFromBits(std::string_view pair, const CellColours& cell, C64Colour background) {
  return GetColFromBits(BitPairFromText(pair).value_or(BitPair::k00), cell, background);
}

C64Colour ColourInCell(const PictureImage& picture, int cell, BitPair pair) {
  return GetColFromBits(pair, ColoursOfCell(picture, cell), picture.BackgroundColour);
}

C64Colour GetPixelColour(const PictureImage& picture, std::uint8_t byte, int position, int index) {
  return ColourInCell(picture, CellOfByte(index), PairAt(byte, position));
}

C64Colour GetPixelColour(const DetachedCell& cell, std::uint8_t byte, int position, C64Colour background) {
  const CellColours colours{.CellColour11 = C64Colour::FromNumber(cell[1]).value_or(C64Colour()),
                            .CellColour10 = C64Colour::FromByte(cell[2]),
                            .CellColour01 = C64Colour::FromHighNibble(cell[2])};
  return GetColFromBits(PairAt(byte, position), colours, background);
}

PixelData GetPixelData(const PictureImage& picture, int x, int y) {
  if (!IsInPicture(x, y)) throw std::out_of_range("a pixel outside the picture was asked for");
  const PixelPlace place = LookUpPixel(x, y);
  const BitPair pair = PairAt(picture.Bitmap[static_cast<std::size_t>(place.byte)], place.position);
  return {place, pair, ColourInCell(picture, place.cell, pair)};
}

}  // namespace kelvo::model
