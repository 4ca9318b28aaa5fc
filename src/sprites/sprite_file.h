// Sprites as files that assemblers and sprite editors read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sprites/sprite.h"

namespace kelvo::sprites {

// `format` is "kelvo" (the text of the editor's converter), "64tass", "acme", "kickass" or "ca65" (source with a label
// for each sprite), "bin" (64 bytes a sprite) or "spd" (a sprite editor's). The colours used most become the sprites',
// other than `background`, as the converter presets them; a sprite's last byte says that it is multicolour, and its own
// colour, but in "kelvo". `title` stands in a comment.
std::string SpriteFile(std::string_view format, const std::vector<Sprite>& sprites, model::C64Colour background,
                       const std::string& title);

}  // namespace kelvo::sprites
