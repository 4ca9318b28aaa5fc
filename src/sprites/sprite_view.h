// Drawing for the sprite converter.
#pragma once

#include <vector>

#include "model/surface.h"
#include "sprites/sprite.h"

namespace kelvo::sprites {

// Draws the whole picture at 2x, a picture pixel as 4 x 2, into a surface of 640 x 400.
void DrawSource(const model::PictureImage& picture, model::Surface& surface);

// Draws one sprite or four as they lie together, as large as fits a surface of 192 x 168.
void DrawSprites(const std::vector<Sprite>& sprites, model::Surface& surface);

}  // namespace kelvo::sprites
