#include "sprites/sprite_text.h"

#include "app/number_text.h"

namespace kelvo::sprites {
namespace {

using model::BitPair;

struct Layout {
  std::size_t bytes_per_line;
  bool padding_has_own_line;
};

// Three bytes a line in binary, as a sprite's rows have them; eight in hexadecimal, where the padding byte fills the
// last.
constexpr Layout LayoutOf(Notation notation) {
  return notation == Notation::kBinary ? Layout{3, true} : Layout{8, false};
}

BitPair PairOf(model::C64Colour colour, const ChosenColours& chosen) {
  for (std::size_t list = 0; list < chosen.size(); ++list) {
    if (chosen[list] == colour) return kPairOfList[list];
  }
  return BitPair::k00;
}

std::string ByteText(int byte, Notation notation) {
  return notation == Notation::kBinary ? "%" + app::ByteToBinary(byte) : "$" + app::ToHex(byte);
}

std::string OneSprite(const Sprite& sprite, const ChosenColours& chosen, Notation notation) {
  const Layout layout = LayoutOf(notation);
  const auto bytes = SpriteBytes(sprite, chosen);
  std::string text;
  for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
    text += byte % layout.bytes_per_line == 0 ? ".byte " : ",";
    text += ByteText(bytes[byte], notation);
    if (byte % layout.bytes_per_line == layout.bytes_per_line - 1) text += "\r\n";
  }
  return text + (layout.padding_has_own_line ? ".byte " : ",") + ByteText(0, notation) + "\r\n";
}

}  // namespace

std::array<std::uint8_t, kSpritePixels / 4> SpriteBytes(const Sprite& sprite, const ChosenColours& colours) {
  std::array<std::uint8_t, kSpritePixels / 4> bytes{};
  for (std::size_t pixel = 0; pixel < sprite.size(); ++pixel) {
    bytes[pixel / 4] =
        model::WithPairAt(bytes[pixel / 4], static_cast<int>(pixel % 4) + 1, PairOf(sprite[pixel], colours));
  }
  return bytes;
}

std::string SpriteText(const std::vector<Sprite>& sprites, const ChosenColours& colours, Notation notation) {
  std::string text;
  for (const Sprite& sprite : sprites) text += OneSprite(sprite, colours, notation);
  return text;
}

}  // namespace kelvo::sprites
