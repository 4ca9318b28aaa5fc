#include "sprites/sprite.h"

#include <algorithm>

#include "model/pixel_colour.h"

namespace kelvo::sprites {
namespace {

using model::PictureImage;

// Where an area of `length` begins along one axis of `limit` pixels, counted from 1.
int Begin(int pointer, int length, int limit, int grid_step, Alignment alignment) {
  if (alignment == Alignment::kFree) return std::clamp(pointer - length / 2, 1, limit - length + 1);
  const int last = (limit - length) / grid_step * grid_step;
  return std::clamp((pointer - 1) / grid_step * grid_step, 0, last) + 1;
}

Sprite CaptureOne(const PictureImage& picture, int left, int top) {
  Sprite sprite;
  for (int i = 0; i < kSpritePixels; ++i) {
    sprite[static_cast<std::size_t>(i)] =
        model::GetPixelData(picture, left + i % kSpriteWidth, top + i / kSpriteWidth).colour;
  }
  return sprite;
}

}  // namespace

CaptureArea CaptureAt(model::PixelPoint pointer, CaptureSize size, Alignment alignment) {
  CaptureArea area{.size = size};
  area.left = Begin(pointer.x, area.Width(), PictureImage::kWidth, kSpriteWidth, alignment);
  area.top = Begin(pointer.y, area.Height(), PictureImage::kHeight, kSpriteHeight, alignment);
  return area;
}

std::vector<Sprite> Capture(const PictureImage& picture, const CaptureArea& area) {
  std::vector<Sprite> sprites;
  for (int top = area.top; top < area.top + area.Height(); top += kSpriteHeight) {
    for (int left = area.left; left < area.left + area.Width(); left += kSpriteWidth) {
      sprites.push_back(CaptureOne(picture, left, top));
    }
  }
  return sprites;
}

void Erase(PictureImage& picture, const CaptureArea& area) {
  for (int y = area.top; y < area.top + area.Height(); ++y) {
    for (int x = area.left; x < area.left + area.Width(); ++x) {
      const model::PixelPlace place = model::LookUpPixel(x, y);
      std::uint8_t& byte = picture.Bitmap[static_cast<std::size_t>(place.byte)];
      byte = model::WithPairAt(byte, place.position, model::BitPair::k00);
    }
  }
}

std::vector<model::C64Colour> MostUsedColours(const std::vector<Sprite>& sprites, model::C64Colour background) {
  std::array<int, model::C64Colour::kCount> counts{};
  for (const Sprite& sprite : sprites) {
    for (const model::C64Colour colour : sprite) ++counts[static_cast<std::size_t>(colour.Number())];
  }
  counts[static_cast<std::size_t>(background.Number())] = 0;
  std::vector<model::C64Colour> colours;
  for (int place = 0; place < 3; ++place) {
    const auto most = std::max_element(counts.begin(), counts.end());
    if (*most == 0) break;
    colours.push_back(*model::C64Colour::FromNumber(static_cast<int>(most - counts.begin())));
    *most = 0;
  }
  return colours;
}

}  // namespace kelvo::sprites
