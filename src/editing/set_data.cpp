#include "editing/set_data.h"

namespace kelvo::editing {

using model::BitPair;

void SetSlotColour(model::PictureImage& picture, int cell, BitPair pair, model::C64Colour colour) {
  const auto index = static_cast<std::size_t>(cell);
  std::uint8_t& screen = picture.ScreenMemory.at(index);
  switch (pair) {
    case BitPair::k11:
      picture.ColourMemory.at(index) = colour.Byte();
      return;
    case BitPair::k10:
      screen = static_cast<std::uint8_t>((screen & 0xF0) | colour.Byte());
      return;
    case BitPair::k01:
      screen = static_cast<std::uint8_t>(colour.Byte() << 4 | (screen & 0x0F));
      return;
    case BitPair::k00:
      return;
  }
}

void SetBits(model::PictureImage& picture, int byte, int position, BitPair pair) {
  std::uint8_t& bits = picture.Bitmap.at(static_cast<std::size_t>(byte));
  bits = model::WithPairAt(bits, position, pair);
}

void SetData(model::PictureImage& picture, int byte, int position, BitPair pair, int cell, model::C64Colour colour) {
  SetBits(picture, byte, position, pair);
  SetSlotColour(picture, cell, pair, colour);
}

}  // namespace kelvo::editing
