// Sprites as assembler source.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "sprites/sprite.h"

namespace kelvo::sprites {

enum class Notation { kBinary, kHexadecimal };

// The three chosen colours, in the order of their lists; an empty one matches no pixel.
using ChosenColours = std::array<std::optional<model::C64Colour>, 3>;

// ".byte" lines that end with CR LF, 64 bytes a sprite: 63 and a padding byte. The first chosen colour becomes %01, the
// second %11, the third %10, on purpose in another order than the lists have; any other colour %00. Several sprites
// follow one another.
std::string SpriteText(const std::vector<Sprite>& sprites, const ChosenColours& colours, Notation notation);

}  // namespace kelvo::sprites
