// Sprites as assembler source.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/bit_pair.h"
#include "sprites/sprite.h"

namespace kelvo::sprites {

enum class Notation { kBinary, kHexadecimal };

// The three chosen colours, in the order of their lists; an empty one matches no pixel.
using ChosenColours = std::array<std::optional<model::C64Colour>, 3>;

// What the colour of each list becomes, on purpose in another order than the lists have.
inline constexpr std::array kPairOfList{model::BitPair::k01, model::BitPair::k11, model::BitPair::k10};

// The 63 bytes of a sprite. A chosen colour becomes the pair of its list, any other colour %00.
std::array<std::uint8_t, kSpritePixels / 4> SpriteBytes(const Sprite& sprite, const ChosenColours& colours);

// ".byte" lines that end with CR LF, 64 bytes a sprite: SpriteBytes() and a padding byte. Several sprites
// follow one another.
std::string SpriteText(const std::vector<Sprite>& sprites, const ChosenColours& colours, Notation notation);

}  // namespace kelvo::sprites
