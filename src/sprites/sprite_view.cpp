#include "sprites/sprite_view.h"

#include "model/palette.h"
#include "model/pixel_colour.h"

namespace kelvo::sprites {

void DrawSource(const model::PictureImage& picture, model::Surface& surface) {
  for (int y = 1; y <= model::PictureImage::kHeight; ++y) {
    for (int x = 1; x <= model::PictureImage::kWidth; ++x) {
      const model::C64Colour colour = model::GetPixelData(picture, x, y).colour;
      surface.Fill({(x - 1) * 4, (y - 1) * 2, 4, 2}, model::SurfaceColour(colour));
    }
  }
}

void DrawSprites(const std::vector<Sprite>& sprites, model::Surface& surface) {
  surface.Fill({0, 0, surface.Width(), surface.Height()}, model::SurfaceColour({}));
  const int across = sprites.size() > 1 ? 2 : 1;
  const int height = surface.Height() / (across * kSpriteHeight), width = height * 2;
  for (std::size_t n = 0; n < sprites.size(); ++n) {
    const int left = static_cast<int>(n) % 2 * kSpriteWidth, top = static_cast<int>(n) / 2 * kSpriteHeight;
    for (int i = 0; i < kSpritePixels; ++i) {
      surface.Fill({(left + i % kSpriteWidth) * width, (top + i / kSpriteWidth) * height, width, height},
                   model::SurfaceColour(sprites[n][static_cast<std::size_t>(i)]));
    }
  }
}

}  // namespace kelvo::sprites
